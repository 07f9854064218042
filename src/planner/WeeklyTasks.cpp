#include "planner/WeeklyTasks.h"

#include <algorithm>

#include "planner/ListShapes.h"
#include "planner/TaskLine.h"

namespace velmora {
namespace {

constexpr const char* kFirstText = "Task";
constexpr const char* kTextOfNone = "Weekly Task Set At This Time.";

NumberedList::Matches at(const std::string& time) {
    return [&time](const NumberedEntry& entry) { return shownTime(entry.time) == time; };
}

struct DayAndTime {
    std::string day;
    std::string time;
};

DayAndTime partsOf(const std::string& line) {
    const auto [day, rest] = splitTaskLine(line);
    return {std::string(day), std::string(splitTaskLine(rest).first)};
}

std::string lineOf(std::string_view day, const NumberedEntry& entry) {
    return std::string(day) + " - " + shownTime(entry.time) + " - " + entry.message;
}

}  // namespace

WeeklyTasks::WeeklyTasks(SettingsStore& settings, const Clock& clock)
    : settings_(settings), clock_(clock) {}

void WeeklyTasks::Open() {
    const Moment now = clock_.now();
    day_ = static_cast<int>(std::chrono::weekday(dateOf(now)).c_encoding()) + 1;
    time_ = ClockTime::of(now);
    text_ = kFirstText;
    fill();
}

std::string_view WeeklyTasks::dayName() const {
    return kWeekdayNames[static_cast<std::size_t>(day_ - 1)];
}

void WeeklyTasks::Add() {
    if (text_.empty())
        text_ = kTextOfNone;
    const std::string time = time_.text();
    listOf(dayName()).replaceOrAppend(at(time), time, text_);
    fill();
}

void WeeklyTasks::Pick(const std::string& line) {
    const auto [day, time] = partsOf(line);
    const auto name = std::find(kWeekdayNames.begin(), kWeekdayNames.end(), day);
    if (name == kWeekdayNames.end())
        return;
    const auto task = listOf(day).find(at(time));
    if (!task)
        return;
    text_ = task->message;
    day_ = static_cast<int>(name - kWeekdayNames.begin()) + 1;
    time_ = ClockTime::fromText(time);
}

void WeeklyTasks::Remove(const std::string& line) {
    if (line.empty())
        return;
    // A task that another copy of the program has given another text since is not the one meant.
    listOf(partsOf(line).day).remove([&, day = partsOf(line).day](const NumberedEntry& entry) {
        return lineOf(day, entry) == line;
    });
    fill();
}

NumberedList WeeklyTasks::listOf(std::string_view day) const {
    return {settings_, weeklyTasksOf(day)};
}

void WeeklyTasks::fill() {
    lines_.clear();
    for (const std::string_view day : kWeekdayNames)
        for (const NumberedEntry& entry : listOf(day).entries())
            if (!shownTime(entry.time).empty())
                lines_.push_back(lineOf(day, entry));
}

}  // namespace velmora
