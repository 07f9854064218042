#pragma once

#include <array>
#include <string>

#include "platform/Clock.h"
#include "platform/Messages.h"

namespace velmora {

// What the form `Schedule` leaves for the commands that wait for it: both empty while it is open,
// times of 24 hours ("09:05") once applied.
struct ScheduleTexts {
    std::string ScheduleBegin;
    std::string ScheduleEnd;
};

// What the form `Schedule` knows: the two times of an event.
class ScheduleTimes {
  public:
    enum class Part { BeginHour, BeginMinute, EndHour, EndMinute };

    ScheduleTimes(ScheduleTexts& texts, Messages& messages, const Clock& clock);

    // The form opens: from now on for an hour. Both texts are emptied.
    void Open();

    // 0 to 23 for hours, 0 to 59 for minutes.
    [[nodiscard]] int value(Part part) const { return values_[static_cast<std::size_t>(part)]; }
    void setValue(Part part, int value) { values_[static_cast<std::size_t>(part)] = value; }

    // The value in two digits, as the form's labels show it.
    [[nodiscard]] std::string label(Part part) const;

    // Fills both texts, and the form is to close: true. Or tells the user that the event must end
    // after it starts: false, and nothing changes.
    [[nodiscard]] bool Apply();

  private:
    ScheduleTexts& texts_;
    Messages& messages_;
    const Clock& clock_;
    std::array<int, 4> values_{};
};

}  // namespace velmora
