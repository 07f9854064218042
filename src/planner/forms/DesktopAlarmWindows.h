#pragma once

#include <functional>
#include <memory>

#include "planner/AlarmWindows.h"
#include "planner/forms/AlarmAlert.h"
#include "platform/CodePage.h"

namespace velmora {

// The windows of alarms on the desktop. The alert is made when the first alarm goes off.
class DesktopAlarmWindows final : public AlarmWindows {
  public:
    // What the user's buttons on the alert do.
    struct Answers {
        std::function<void()> ok;
        std::function<void(int minutes)> snooze;
    };

    // `codePage` must outlive the object.
    DesktopAlarmWindows(const CodePage& codePage, Answers answers);

    void showAlert(const std::string& message) override;
    void closeAlert() override;
    void warnAboveAll(const std::string& title, const std::string& text) override;

    // Brings the alert before all other windows, with the keys; nothing while none is open.
    void bringAlertToFront();

  private:
    const CodePage& codePage_;
    Answers answers_;
    std::unique_ptr<AlarmAlert> alert_;
};

}  // namespace velmora
