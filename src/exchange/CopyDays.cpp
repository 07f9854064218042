#include "exchange/CopyDays.h"

#include <algorithm>
#include <charconv>

namespace velmora {
namespace {

constexpr std::size_t kDays = 7;
constexpr std::size_t kWeeks = 4;
constexpr std::string_view kPattern = ".0000-00-00";

std::string padded(unsigned number, std::size_t width) {
    const std::string digits = std::to_string(number);
    return std::string(width - std::min(width, digits.size()), '0') + digits;
}

unsigned numberIn(std::string_view text, std::size_t at, std::size_t width) {
    unsigned number = 0;
    std::from_chars(text.data() + at, text.data() + at + width, number);
    return number;
}

Day mondayOf(Day day) {
    return day - (std::chrono::weekday(day) - std::chrono::Monday);
}

}  // namespace

std::string nameOfCopy(std::string_view file, Day day) {
    const std::chrono::year_month_day date(day);
    return std::string(file) + "." +
           padded(static_cast<unsigned>(static_cast<int>(date.year())), 4) + "-" +
           padded(static_cast<unsigned>(date.month()), 2) + "-" +
           padded(static_cast<unsigned>(date.day()), 2);
}

std::optional<Day> dayOfCopy(std::string_view file, std::string_view name) {
    if (!name.starts_with(file) || name.size() != file.size() + kPattern.size())
        return std::nullopt;
    const std::string_view date = name.substr(file.size());
    for (std::size_t i = 0; i < date.size(); ++i) {
        const bool isDigit = date[i] >= '0' && date[i] <= '9';
        if (kPattern[i] == '0' ? !isDigit : date[i] != kPattern[i])
            return std::nullopt;
    }
    const std::chrono::year_month_day day(std::chrono::year(static_cast<int>(numberIn(date, 1, 4))),
                                          std::chrono::month(numberIn(date, 6, 2)),
                                          std::chrono::day(numberIn(date, 9, 2)));
    return day.ok() ? std::optional(Day(day)) : std::nullopt;
}

std::set<Day> daysToKeep(const std::set<Day>& days) {
    std::set<Day> kept;
    std::set<Day> weeks;
    for (auto day = days.rbegin(); day != days.rend(); ++day) {
        if (kept.size() < kDays)
            kept.insert(*day);
        else if (weeks.size() < kWeeks && weeks.insert(mondayOf(*day)).second)
            kept.insert(*day);
    }
    return kept;
}

}  // namespace velmora
