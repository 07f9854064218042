#pragma once

#include <string>
#include <string_view>

#include "platform/Clock.h"

namespace velmora {

// A minute of the day, as alarms and weekly tasks are set for.
struct ClockTime {
    int hour = 0;    // 0 to 23
    int minute = 0;  // 0 to 59

    // The hands of the clock at a moment; seconds are dropped.
    static ClockTime of(Moment moment);

    // Reads two numbers at both sides of the first ":", each held within its range.
    static ClockTime fromText(std::string_view text);

    // "09:05".
    [[nodiscard]] std::string text() const;

    // On the same clock face: 23:57 and 5 minutes are 00:02.
    [[nodiscard]] ClockTime plusMinutes(int minutes) const;

    bool operator==(const ClockTime&) const = default;
};

// "00" to "99".
[[nodiscard]] std::string twoDigits(int number);

// How a stored time is shown and compared: a time as "hh:mm", any other text as it is; blanks at
// both ends cut.
[[nodiscard]] std::string shownTime(std::string_view stored);

}  // namespace velmora
