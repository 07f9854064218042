#pragma once

#include "planner/AlarmWindows.h"
#include "platform/CodePage.h"
#include "platform/Notices.h"

namespace velmora {

// The windows of alarms with a notice of the desktop beside each, for where a window can not come
// to the front by itself. A notice goes with its window.
class AnnouncedAlarms final : public AlarmWindows {
  public:
    // The subjects of the notices: of the alert, and of the box of a weekly task.
    static constexpr const char* kAlert = "alarm";
    static constexpr const char* kTask = "task";

    // All must outlive the object.
    AnnouncedAlarms(AlarmWindows& windows, Notices& notices, const CodePage& codePage)
        : windows_(windows), notices_(notices), codePage_(codePage) {}

    void showAlert(const std::string& message) override;
    void closeAlert() override;
    void warnAboveAll(const std::string& title, const std::string& text) override;

  private:
    AlarmWindows& windows_;
    Notices& notices_;
    const CodePage& codePage_;
};

}  // namespace velmora
