#pragma once

#include <chrono>
#include <map>
#include <string>
#include <string_view>
#include <vector>

#include "platform/calendar/DayTasks.h"

namespace velmora {

// Appointments that could not be stored yet, by their day, in the order in which they were made.
class UnstoredTasks {
  public:
    using Day = std::chrono::year_month_day;

    void add(Day day, const DayTask& task) { tasks_[day].push_back(task); }

    // Those of a day; they are the caller's from then on.
    [[nodiscard]] std::vector<DayTask> take(Day day);

    [[nodiscard]] bool empty() const { return tasks_.empty(); }
    // The first of the first day goes; there must be one.
    void removeFirst();
    [[nodiscard]] const std::map<Day, std::vector<DayTask>>& all() const { return tasks_; }

    // All of them as one text, and back. Whatever else is read gives what can be made out of it.
    [[nodiscard]] std::string text() const;
    [[nodiscard]] static UnstoredTasks read(std::string_view text);

  private:
    std::map<Day, std::vector<DayTask>> tasks_;
};

}  // namespace velmora
