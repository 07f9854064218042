#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "core/SettingsStore.h"
#include "planner/ClockTime.h"
#include "planner/NumberedList.h"
#include "platform/Clock.h"

namespace velmora {

// What the form `Form10` knows: the tasks of each weekday, which ring at their time every week. A
// time stands once on a day. All changes throw Failure when they can not be stored.
class WeeklyTasks {
  public:
    // Both must outlive the object.
    WeeklyTasks(SettingsStore& settings, const Clock& clock);

    // The form opens: the present weekday and time, and the tasks of all days.
    void Open();

    // 1 to 7; Sunday is 1.
    [[nodiscard]] int day() const { return day_; }
    void setDay(int day) { day_ = day; }
    [[nodiscard]] std::string_view dayName() const;

    [[nodiscard]] ClockTime time() const { return time_; }
    void setHour(int hour) { time_.hour = hour; }
    void setMinute(int minute) { time_.minute = minute; }

    [[nodiscard]] const std::string& text() const { return text_; }
    void setText(const std::string& text) { text_ = text; }

    // "Monday - 09:05 - Put the bins out", Sunday's first.
    [[nodiscard]] const std::vector<std::string>& lines() const { return lines_; }

    // Sets a task, or changes the text of the one at this time; an empty text gets one of its own.
    void Add();

    // The user picked a line: its day, time and whole text are taken over. Nothing changes when
    // the task is there no more.
    void Pick(const std::string& line);

    // Removes the first task of the line's day and time; nothing for an empty line.
    void Remove(const std::string& line);

  private:
    [[nodiscard]] NumberedList listOf(std::string_view day) const;
    void fill();

    SettingsStore& settings_;
    const Clock& clock_;
    int day_ = 1;
    ClockTime time_;
    std::string text_;
    std::vector<std::string> lines_;
};

}  // namespace velmora
