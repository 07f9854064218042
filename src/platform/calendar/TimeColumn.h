#pragma once

#include <chrono>
#include <string>
#include <string_view>
#include <vector>

#include "platform/calendar/DayTasks.h"

namespace velmora {

inline constexpr std::chrono::minutes kSlot{30};
inline constexpr std::chrono::minutes kDay{24 * 60};

// A stretch of a day in minutes since midnight; `end` is behind `begin` and at most kDay.
struct TimeSpan {
    std::chrono::minutes begin{0};
    std::chrono::minutes end{0};

    friend bool operator==(const TimeSpan&, const TimeSpan&) = default;
};

// A time of day as the day view writes it: "02:05 PM". The end of the day is "11:59 PM", since no
// text says midnight and means the later one.
[[nodiscard]] std::string writeTime(std::chrono::minutes time);

// Which times of a day the view shows, in slots of half an hour.
class TimeColumn {
  public:
    // Sets the first or last time of the column, as "h:NN AM/PM". The last time is shown in full:
    // to the end of its hour. "12:00 AM" as the last time is the end of the day. While the two
    // contradict each other the last pair that did not stays in use, so a new pair may come in any
    // order. Throws Failure for a text that is no time and keeps the former limit.
    void setFirst(std::string_view time);
    void setLast(std::string_view time);

    // What the limits ask for. Midnight to midnight at first.
    [[nodiscard]] TimeSpan limits() const { return limits_; }

    // The limits, widened by whole slots to whatever lies outside them.
    [[nodiscard]] TimeSpan shown(const std::vector<TimeSpan>& spans) const;

    // When a block takes place. A begin that can not be read is the first time of the column; an
    // end that can not be read or is not behind the begin makes the block one slot long.
    [[nodiscard]] TimeSpan spanOf(const DayTask& task) const;

  private:
    void settle();

    std::chrono::minutes first_{0};
    std::chrono::minutes last_{0};
    TimeSpan limits_{std::chrono::minutes(0), kDay};
};

// Where dragged edges come to lie.
inline constexpr std::chrono::minutes kDragStep{5};

// What of a block a drag moves.
enum class Grip { Begin, End, Whole };

// `span` after a drag by so many minutes: moved edges lie on whole five minutes, the block keeps at
// least five minutes and stays within `bounds`. With Grip::Whole its length stays.
[[nodiscard]] TimeSpan dragged(TimeSpan span, Grip grip, std::chrono::minutes by, TimeSpan bounds);

}  // namespace velmora
