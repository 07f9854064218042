#pragma once

#include <chrono>
#include <functional>
#include <string>
#include <vector>

#include "core/SettingsStore.h"
#include "planner/ClockTime.h"
#include "planner/NumberedList.h"
#include "platform/Clock.h"

namespace velmora {

// What the form `Alarm` knows: the alarms of the day that the planner shows, asked anew at each
// action. Times are unique here, so that adding a time again changes its message. All changes throw
// Failure when they can not be stored.
class AlarmEditor {
  public:
    // `shownDay` gives the date of the month on show. All must outlive the editor.
    AlarmEditor(SettingsStore& settings, const Clock& clock,
                std::function<std::chrono::year_month_day()> shownDay);

    // The form opens: the present time, the message that stands there at first, and the alarms.
    void Open();

    [[nodiscard]] ClockTime time() const { return time_; }
    void setHour(int hour) { time_.hour = hour; }
    void setMinute(int minute) { time_.minute = minute; }

    // Byte by byte; a snoozed message may have line ends.
    [[nodiscard]] const std::string& message() const { return message_; }
    void setMessage(const std::string& message) { message_ = message; }

    // The times of the alarms in the order in which they were set.
    [[nodiscard]] const std::vector<std::string>& times() const { return times_; }

    // Sets an alarm at time(); the message gets a text of its own when it is empty.
    void AddOrChange();

    // The user picked a line of times(): the first alarm of that time is taken into time() and
    // message(). Nothing changes when there is none any more.
    void Pick(const std::string& line);

    // Removes the first alarm of the picked time and empties the message; nothing for a blank line.
    // An alarm that has another message than when times() was read stays, and its message shows.
    void Remove(const std::string& line);

  private:
    [[nodiscard]] NumberedList list() const;
    void fill();

    SettingsStore& settings_;
    const Clock& clock_;
    std::function<std::chrono::year_month_day()> shownDay_;
    ClockTime time_;
    std::string message_;
    std::vector<std::string> times_;
    std::vector<NumberedEntry> shown_;  // as times() was read
};

}  // namespace velmora
