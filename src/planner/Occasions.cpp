#include "planner/Occasions.h"

#include <algorithm>
#include <array>
#include <utility>

#include "planner/ListShapes.h"
#include "platform/Text.h"

namespace velmora {
namespace {

constexpr unsigned kHighestDay = 31;

std::string_view nameOf(unsigned month) {
    return kMonthNames[month - 1];
}

unsigned monthNamed(std::string_view name) {
    const auto* found = std::find(kMonthNames.begin(), kMonthNames.end(), name);
    return found == kMonthNames.end() ? 0 : static_cast<unsigned>(found - kMonthNames.begin()) + 1;
}

bool isMonth(unsigned month) {
    return month >= 1 && month <= kMonthNames.size();
}

}  // namespace

unsigned highestDayOf(unsigned month) {
    static constexpr std::array<unsigned, 12> kDays{31, 29, 31, 30, 31, 30, 31, 31, 30, 31, 30, 31};
    return isMonth(month) ? kDays[month - 1] : kHighestDay;
}

OccasionLine splitOccasionLine(std::string_view line) {
    constexpr std::string_view kDash = " -";
    const std::size_t dash = std::min(line.find(kDash), line.size());
    const std::string_view front = line.substr(0, dash);
    const std::size_t blank = std::min(front.find(' '), front.size());
    const std::string_view behind = line.substr(std::min(dash + kDash.size(), line.size()));
    const int day = std::max(readWhole(front.substr(blank)), 0);
    return {{monthNamed(front.substr(0, blank)), static_cast<unsigned>(day)},
            std::string(trimBlanks(behind))};
}

std::vector<std::string> messagesOf(const NumberedList& list) {
    std::vector<std::string> messages;
    for (NumberedEntry& entry : list.entries())
        if (!trimBlanks(entry.message).empty())
            messages.push_back(std::move(entry.message));
    return messages;
}

NumberedList Occasions::listOf(OccasionDay day) const {
    return {settings_, occasionsOf(nameOf(day.month), day.day)};
}

std::vector<std::string> Occasions::On(OccasionDay day) const {
    return messagesOf(listOf(day));
}

std::vector<std::string> Occasions::Lines() const {
    std::vector<std::string> lines;
    for (unsigned month = 1; month <= kMonthNames.size(); ++month)
        for (unsigned day = 1; day <= kHighestDay; ++day)
            for (const std::string& text : On({month, day}))
                lines.push_back(std::string(nameOf(month)) + (day < 10 ? " 0" : " ") +
                                std::to_string(day) + " - " + text);
    return lines;
}

void Occasions::Add(OccasionDay day, std::string_view text) {
    listOf(day).append("", text);
}

bool Occasions::Remove(std::string_view line) {
    const OccasionLine wanted = splitOccasionLine(line);
    if (!isMonth(wanted.day.month))
        return false;
    return listOf(wanted.day).remove([&](const NumberedEntry& entry) {
        return trimBlanks(entry.message) == wanted.text;
    });
}

}  // namespace velmora
