#include "planner/forms/DesktopAlarmWindows.h"

#include <utility>

#include "platform/qt/TopmostBox.h"

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

void DesktopAlarmWindows::bringAlertToFront() {
    if (!alert_ || !alert_->isVisible())
        return;
    alert_->raise();
    alert_->activateWindow();
}

void DesktopAlarmWindows::warnAboveAll(const std::string& title, const std::string& text) {
    warnAboveAllWindows(title, text, codePage_);
}

}  // namespace velmora
