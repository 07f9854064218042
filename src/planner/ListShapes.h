#pragma once

#include <array>
#include <chrono>
#include <string>
#include <string_view>

#include "planner/NumberedList.h"

// The numbered lists of the planner.
namespace velmora {

// In keys and list lines they are English in every locale. Sunday first.
inline constexpr std::array<std::string_view, 7> kWeekdayNames{
    "Sunday", "Monday", "Tuesday", "Wednesday", "Thursday", "Friday", "Saturday"};
inline constexpr std::array<std::string_view, 12> kMonthNames{
    "January", "February", "March",     "April",   "May",      "June",
    "July",    "August",   "September", "October", "November", "December"};

[[nodiscard]] std::string_view weekdayNameOf(std::chrono::year_month_day date);

// The alarms of a day, pairs: "Alarms\03092001", "Alarms\030920011T", "Alarms\030920011M".
[[nodiscard]] NumberedListShape alarmsOf(std::chrono::year_month_day date);

// The to-do lines, single texts: "Tasks\NumTasks", "Tasks\1".
[[nodiscard]] NumberedListShape toDoLines();

// The weekly tasks of a weekday in English, pairs: "Weekly\Monday\NumTasks", "Weekly\Monday\1T",
// "Weekly\Monday\1M".
[[nodiscard]] NumberedListShape weeklyTasksOf(std::string_view weekday);

// The monthly tasks of a day from 1 to 31, single texts: "Monthly\9\NumTasks", "Monthly\9\1M".
[[nodiscard]] NumberedListShape monthlyTasksOf(unsigned day);

// The yearly occasions of a day, single texts: "Events\March\09\NumTasks", "Events\March\09\1M".
[[nodiscard]] NumberedListShape occasionsOf(std::string_view month, unsigned day);

}  // namespace velmora
