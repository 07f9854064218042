#include "planner/StoredText.h"

#include <algorithm>

#include "platform/DateText.h"
#include "platform/Format.h"
#include "platform/Text.h"

namespace velmora {

namespace {

void appendPadded(std::string& text, int number, std::size_t width) {
    const std::string digits = std::to_string(number);
    text.append(width - std::min(width, digits.size()), '0');
    text += digits;
}

// The number of `count` digits at `begin`, or -1.
int digitsAt(std::string_view text, std::size_t begin, std::size_t count) {
    int number = 0;
    for (const char c : text.substr(begin, count)) {
        if (c < '0' || c > '9')
            return -1;
        number = number * 10 + (c - '0');
    }
    return number;
}

std::string_view withoutFraction(std::string_view time) {
    const std::size_t point = time.find('.');
    if (point == std::string_view::npos)
        return time;
    const bool digits = time.find_first_not_of("0123456789", point + 1) == std::string_view::npos;
    return digits ? time.substr(0, point) : time;
}

}  // namespace

std::string storedDay(std::chrono::year_month_day day) {
    std::string text;
    text.reserve(10);
    appendPadded(text, int(day.year()), 4);
    text += '-';
    appendPadded(text, static_cast<int>(unsigned(day.month())), 2);
    text += '-';
    appendPadded(text, static_cast<int>(unsigned(day.day())), 2);
    return text;
}

std::optional<std::chrono::year_month_day> readStoredDay(std::string_view text) {
    if (text.size() != 10 || text[4] != '-' || text[7] != '-')
        return std::nullopt;
    const int year = digitsAt(text, 0, 4);
    const int month = digitsAt(text, 5, 2);
    const int day = digitsAt(text, 8, 2);
    if (year < 0 || month < 0 || day < 0)
        return std::nullopt;
    const std::chrono::year_month_day result{std::chrono::year(year),
                                             std::chrono::month(static_cast<unsigned>(month)),
                                             std::chrono::day(static_cast<unsigned>(day))};
    return result.ok() ? std::optional(result) : std::nullopt;
}

std::string storedMoment(Moment moment) {
    const auto midnight = std::chrono::floor<std::chrono::days>(moment);
    const std::chrono::hh_mm_ss time(moment - midnight);
    std::string text = storedDay(std::chrono::year_month_day(midnight));
    text += ' ';
    appendPadded(text, static_cast<int>(time.hours().count()), 2);
    text += ':';
    appendPadded(text, static_cast<int>(time.minutes().count()), 2);
    text += ':';
    appendPadded(text, static_cast<int>(time.seconds().count()), 2);
    return text;
}

std::optional<Moment> readMoment(std::string_view text, std::chrono::year pivotYear) {
    text = trimBlanks(text);
    // The time begins behind the blank in front of its first colon: "March 9, 2026 2:05 PM".
    std::size_t split = text.size();
    if (const std::size_t colon = text.find(':'); colon != std::string_view::npos)
        split = std::min(text.rfind(' ', colon), text.size());
    const auto day = readDate(text.substr(0, split), pivotYear);
    if (!day)
        return std::nullopt;
    const Moment midnight{std::chrono::local_days(*day)};
    const std::string_view rest = trimBlanks(text.substr(split));
    if (rest.empty())
        return midnight;
    const auto time = readTimeOfDay(withoutFraction(rest));
    return time ? std::optional(midnight + *time) : std::nullopt;
}

}  // namespace velmora
