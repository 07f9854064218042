#include "planner/forms/DesktopAlarmWindows.h"

#include <QMessageBox>
#include <utility>

#include "platform/Text.h"
#include "platform/qt/QtText.h"

namespace velmora {

DesktopAlarmWindows::DesktopAlarmWindows(const CodePage& codePage, Answers answers)
    : codePage_(codePage), answers_(std::move(answers)) {}

void DesktopAlarmWindows::showAlert(const std::string& message) {
    if (!alert_) {
        alert_ = std::make_unique<AlarmAlert>(codePage_);
        QObject::connect(alert_.get(), &AlarmAlert::okPressed, alert_.get(),
                         [this] { answers_.ok(); });
        QObject::connect(alert_.get(), &AlarmAlert::snoozePressed, alert_.get(),
                         [this](int minutes) { answers_.snooze(minutes); });
    }
    alert_->present(message);
}

void DesktopAlarmWindows::closeAlert() {
    if (alert_)
        alert_->hide();
}

// Without an owner, and no dialog to the window manager: it shows while the main window is
// minimised.
void DesktopAlarmWindows::warnAboveAll(const std::string& title, const std::string& text) {
    QMessageBox box(QMessageBox::Warning, toQt(title, codePage_), toQt(withLf(text), codePage_),
                    QMessageBox::Ok);
    box.setObjectName(QStringLiteral("MessageBox"));
    box.setTextFormat(Qt::PlainText);
    box.setWindowModality(Qt::ApplicationModal);  // which makes it a dialog
    box.setWindowFlags(Qt::Window | Qt::WindowStaysOnTopHint);
    box.exec();
}

}  // namespace velmora
