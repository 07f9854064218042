#pragma once

#include <functional>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "planner/AlarmWindows.h"

namespace velmora::test {

// Keeps the alert's message while it is open and writes down the boxes.
class FakeAlarmWindows final : public AlarmWindows {
  public:
    void showAlert(const std::string& message) override { alert = message; }
    void closeAlert() override { alert.reset(); }
    void warnAboveAll(const std::string& title, const std::string& text) override {
        boxes_.push_back(title + "|" + text);
        if (whileOpen)
            whileOpen();
    }

    // The boxes since the last call.
    std::vector<std::string> takeBoxes() { return std::exchange(boxes_, {}); }

    std::optional<std::string> alert;

    // Runs while each box is open, as timers do.
    std::function<void()> whileOpen;

  private:
    std::vector<std::string> boxes_;
};

}  // namespace velmora::test
