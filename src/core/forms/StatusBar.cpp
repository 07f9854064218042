#include "core/forms/StatusBar.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QMouseEvent>

#include "core/forms/JobBar.h"
#include "platform/controls/ElidedLabel.h"
#include "platform/qt/Icons.h"
#include "platform/qt/QtText.h"

namespace velmora {
namespace {

constexpr int kHeight = 28;
constexpr int kPanel1Width = 88;
const QString kBeforeFile = QStringLiteral(":  ");

}  // namespace

StatusBar::StatusBar(const CodePage& codePage, QWidget* parent)
    : QStatusBar(parent),
      codePage_(codePage),
      panel2_(new ElidedLabel(Qt::ElideRight, this)),
      job_(new JobBar(this)) {
    setObjectName(QStringLiteral("StatusBar1"));
    setSizeGripEnabled(false);
    setFixedHeight(kHeight);
    setContentsMargins(0, 0, 0, 0);
    auto* panel1 = new QLabel(this);
    panel1->setObjectName(QStringLiteral("StatusBar1_1"));
    panel1->setFixedWidth(kPanel1Width - 2);
    panel1->setAlignment(Qt::AlignCenter);
    panel1->setPixmap(applicationIcon().pixmap({16, 16}, devicePixelRatioF()));
    panel1->setProperty("role", "panel1");
    panel2_->setObjectName(QStringLiteral("StatusBar1_2"));
    panel2_->setIndent(6);
    panel2_->installEventFilter(this);
    // Permanent panels: the toolkit's own messages never cover them.
    addPermanentWidget(panel1);
    addPermanentWidget(panel2_, 1);
    addPermanentWidget(job_);
    job_->hide();  // the bar has just shown it
}

void StatusBar::show(const std::string& text) {
    if (text == shown_)
        return;  // jobs tell the same thousands of times
    shown_ = text;
    present(toQt(text, codePage_), {});
}

void StatusBar::showFile(const std::string& text, const std::string& path) {
    const QString file = toQt(path, codePage_);
    shown_.reset();
    present(text.empty() ? file : toQt(text, codePage_) + kBeforeFile + file, file);
}

void StatusBar::present(const QString& text, const QString& file) {
    panel2_->setText(text);
    if (file == file_)
        return;
    file_ = file;
    panel2_->setCursor(file.isEmpty() ? Qt::ArrowCursor : Qt::PointingHandCursor);
    panel2_->setToolTip(file.isEmpty() ? QString() : tr("Click to open this file"));
}

bool StatusBar::eventFilter(QObject* watched, QEvent* event) {
    if (watched == panel2_ && event->type() == QEvent::MouseButtonRelease && !file_.isEmpty() &&
        static_cast<QMouseEvent*>(event)->button() == Qt::LeftButton)
        emit fileChosen(file_);
    return QStatusBar::eventFilter(watched, event);
}

std::string StatusBar::text() const {
    return fromQt(panel2_->text(), codePage_);
}

}  // namespace velmora
