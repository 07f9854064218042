#pragma once

#include <string>

#include "telephony/DialerPane.h"

namespace velmora::test {

// Keeps the state of the buttons.
class FakeDialerPane final : public DialerPane {
  public:
    [[nodiscard]] std::string number() const override { return display; }
    void enableSend(bool enabled) override { sendEnabled = enabled; }
    void enableHangUp(bool enabled) override { hangUpEnabled = enabled; }
    void showCallHangUp(bool shown) override { callHangUpShown = shown; }

    std::string display;
    bool sendEnabled = false;
    bool hangUpEnabled = false;
    bool callHangUpShown = false;
};

}  // namespace velmora::test
