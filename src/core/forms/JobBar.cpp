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

// More steps than the bar has pixels on a fine screen; the others need no painting.
constexpr int kSteps = 500;

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
    JobCancel->setProperty("variant", "small");
    JobCancel->setToolTip(tr("Ends the job behind the entry in hand"));
    auto* row = new QHBoxLayout(this);
    row->setContentsMargins(kGap, 0, 1, 0);
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
    setVisible(shown);
}

void JobBar::showProgress(int done, int all) {
    const int step = all <= 0 ? 0 : static_cast<int>(qint64{done} * kSteps / all);
    if (JobProgress->isVisibleTo(this) && step == JobProgress->value() && done < all)
        return;
    const QLocale locale;
    JobCount->setText(tr("%1 of %2").arg(locale.toString(done), locale.toString(all)));
    JobProgress->setValue(step);
    JobCount->show();
    JobProgress->show();
}

}  // namespace velmora
