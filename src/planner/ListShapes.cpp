#include "planner/ListShapes.h"

#include "platform/Format.h"

namespace velmora {
namespace {

constexpr std::int64_t kMostAlarms = 5000;
constexpr std::int64_t kMostToDoLines = 5000;
constexpr std::int64_t kMostTasksOfADay = 9000;

NumberedListShape tasksUnder(KeyFamily family, const std::string& day,
                             std::string_view timeSuffix) {
    const std::string prefix = std::string(family.prefix) + day + "\\";
    return {.countKey = prefix + "NumTasks",
            .prefix = prefix,
            .timeSuffix = timeSuffix,
            .messageSuffix = "M",
            .mostEntries = kMostTasksOfADay};
}

std::string twoDigits(unsigned number) {
    return (number < 10 ? "0" : "") + std::to_string(number);
}

}  // namespace

std::string_view weekdayNameOf(std::chrono::year_month_day date) {
    return kWeekdayNames[std::chrono::weekday(date).c_encoding()];
}

NumberedListShape alarmsOf(std::chrono::year_month_day date) {
    const std::string key =
        std::string(keys::Alarms.prefix) +
        formatMoment(std::chrono::local_days(date), "mmddyyyy", LocaleFormats());
    return {.countKey = key,
            .prefix = key,
            .timeSuffix = "T",
            .messageSuffix = "M",
            .mostEntries = kMostAlarms};
}

NumberedListShape toDoLines() {
    const std::string prefix(keys::Tasks.prefix);
    return {.countKey = prefix + "NumTasks",
            .prefix = prefix,
            .timeSuffix = "",
            .messageSuffix = "",
            .mostEntries = kMostToDoLines};
}

NumberedListShape weeklyTasksOf(std::string_view weekday) {
    return tasksUnder(keys::Weekly, std::string(weekday), "T");
}

NumberedListShape monthlyTasksOf(unsigned day) {
    return tasksUnder(keys::Monthly, std::to_string(day), "");
}

NumberedListShape occasionsOf(std::string_view month, unsigned day) {
    return tasksUnder(keys::Events, std::string(month) + "\\" + twoDigits(day), "");
}

}  // namespace velmora
