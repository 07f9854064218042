#pragma once

#include <string>

namespace velmora {

// The windows of alarms, as their logic sees them. Texts are code-page text.
class AlarmWindows {
  public:
    virtual ~AlarmWindows() = default;

    // Brings up `AlarmAlert` with this message, or gives the open one another; it takes the
    // focus from nobody.
    virtual void showAlert(const std::string& message) = 0;
    virtual void closeAlert() = 0;

    // A box with an exclamation mark and OK above all windows of the desktop. Returns when the user
    // has answered it, or the program ends; timers go on meanwhile.
    virtual void warnAboveAll(const std::string& title, const std::string& text) = 0;
};

}  // namespace velmora
