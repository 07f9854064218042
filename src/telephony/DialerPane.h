#pragma once

#include <string>

namespace velmora {

// The parts of the main window that dial and hang up.
class DialerPane {
  public:
    virtual ~DialerPane() = default;

    // The number on the display, in code-page text.
    [[nodiscard]] virtual std::string number() const = 0;

    virtual void enableSend(bool enabled) = 0;
    virtual void enableHangUp(bool enabled) = 0;

    // The second hang-up button, over the card of the entry that is being called.
    virtual void showCallHangUp(bool shown) = 0;
};

}  // namespace velmora
