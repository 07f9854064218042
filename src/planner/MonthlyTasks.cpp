#include "planner/MonthlyTasks.h"

#include <algorithm>

#include "planner/ListShapes.h"
#include "planner/TaskLine.h"
#include "platform/Text.h"

namespace velmora {
namespace {

constexpr const char* kFirstText = "Task";
constexpr const char* kTextOfNone = "Monthly Task.";
constexpr int kLastDay = 31;

int dayOf(std::string_view line) {
    return std::clamp(readWhole(splitTaskLine(line).first), 1, kLastDay);
}

}  // namespace

MonthlyTasks::MonthlyTasks(SettingsStore& settings, const Clock& clock)
    : settings_(settings), clock_(clock) {}

void MonthlyTasks::Open() {
    day_ = static_cast<int>(static_cast<unsigned>(dateOf(clock_.now()).day()));
    text_ = kFirstText;
    fill();
}

void MonthlyTasks::Add() {
    if (text_.empty())
        text_ = kTextOfNone;
    listOf(day_).append({}, text_);
    fill();
}

void MonthlyTasks::Pick(const std::string& line) {
    if (!line.empty())
        day_ = dayOf(line);
}

void MonthlyTasks::Remove(const std::string& line) {
    if (line.empty())
        return;
    const std::string_view text = trimBlanks(splitTaskLine(line).second);
    listOf(dayOf(line)).remove([text](const NumberedEntry& entry) {
        return trimBlanks(entry.message) == text;
    });
    fill();
}

NumberedList MonthlyTasks::listOf(int day) const {
    return {settings_, monthlyTasksOf(static_cast<unsigned>(day))};
}

void MonthlyTasks::fill() {
    lines_.clear();
    for (int day = 1; day <= kLastDay; ++day)
        for (const NumberedEntry& entry : listOf(day).entries())
            if (!trimBlanks(entry.message).empty())
                lines_.push_back(std::to_string(day) + " - " + entry.message);
}

}  // namespace velmora
