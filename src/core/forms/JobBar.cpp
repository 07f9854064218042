#include "core/forms/JobBar.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QLocale>
#include <QProgressBar>
#include <QPushButton>

namespace velmora {
namespace {

constexpr int kBarWidth = 120;
constexpr int kBarHeight = 8;
constexpr int kGap = 8;

constexpr int kSteps = 1000;

// Painted more often than that, the bar would take more time than many a job.
constexpr int kBetweenPaints = 100;  // milliseconds

}  // namespace

JobBar::JobBar(QWidget* parent)
    : QWidget(parent),
      JobCount(new QLabel(this)),
      JobProgress(new QProgressBar(this)),
      JobCancel(new QPushButton(tr("Cancel"), this)) {
    setObjectName(QStringLiteral("JobBar"));
    JobCount->setObjectName(QStringLiteral("JobCount"));
    JobCount->setProperty("role", "hint");
    JobProgress->setObjectName(QStringLiteral("JobProgress"));
    JobProgress->setTextVisible(false);
    JobProgress->setFixedSize(kBarWidth, kBarHeight);
    JobProgress->setRange(0, kSteps);
    JobProgress->setAccessibleName(tr("Progress"));
    JobCancel->setObjectName(QStringLiteral("JobCancel"));
    JobCancel->setProperty("variant", "status");
    JobCancel->setToolTip(tr("Ends the job behind the entry in hand"));
    auto* row = new QHBoxLayout(this);
    row->setContentsMargins(kGap, 0, kGap, 0);
    row->setSpacing(kGap);
    row->addWidget(JobCount);
    row->addWidget(JobProgress);
    row->addWidget(JobCancel);
    connect(JobCancel, &QPushButton::clicked, this, &JobBar::cancelChosen);
    showCancelIcon(false);
}

void JobBar::showCancelIcon(bool shown) {
    JobCount->hide();
    JobProgress->hide();
    JobProgress->setValue(0);
    sinceShown_.start();
    setVisible(shown);
}

void JobBar::showProgress(int done, int all) {
    if (!sinceShown_.hasExpired(kBetweenPaints) && done < all)
        return;
    sinceShown_.start();
    const int step = all <= 0 ? 0 : static_cast<int>(qint64{done} * kSteps / all);
    const QLocale locale;
    JobCount->setText(tr("%1 of %2").arg(locale.toString(done), locale.toString(all)));
    JobProgress->setValue(step);
    JobCount->show();
    JobProgress->show();
}

}  // namespace velmora
