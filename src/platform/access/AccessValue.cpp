#include "platform/access/AccessValue.h"

#include <array>
#include <charconv>
#include <chrono>
#include <cmath>
#include <cstdio>
#include <system_error>

namespace velmora::access {

namespace {

using namespace std::chrono;

constexpr local_days kDayZero{year(1899) / 12 / 30};
constexpr double kFirstDay = -657434;  // 1 January 100
constexpr double kLastDay = 2958465;   // 31 December 9999
constexpr double kSecondsOfDay = 86400;

// A stored time lies up to this far below the second that it means.
constexpr double kRounding = 0.0005;

}  // namespace

std::optional<std::string> momentText(double dayNumber) {
    if (!std::isfinite(dayNumber))
        return std::nullopt;
    double day = std::trunc(dayNumber);
    double second = std::floor(std::fabs(dayNumber - day) * kSecondsOfDay + kRounding);
    if (second >= kSecondsOfDay) {
        second -= kSecondsOfDay;
        day += 1;
    }
    if (day < kFirstDay || day > kLastDay)
        return std::nullopt;
    const year_month_day date(kDayZero + days(static_cast<int>(day)));
    const hh_mm_ss time(seconds(static_cast<int>(second)));
    char text[64];
    std::snprintf(text, sizeof text, "%04d-%02u-%02u %02d:%02d:%02d", int(date.year()),
                  unsigned(date.month()), unsigned(date.day()),
                  static_cast<int>(time.hours().count()), static_cast<int>(time.minutes().count()),
                  static_cast<int>(time.seconds().count()));
    return text;
}

std::string plainNumber(std::string_view text) {
    std::string result(text);
    double number = 0;
    const auto read = std::from_chars(text.data(), text.data() + text.size(), number);
    if (read.ec != std::errc() || read.ptr != text.data() + text.size() || !std::isfinite(number))
        return result;
    if (result.find_first_of("eE") != std::string::npos) {
        std::array<char, 400> digits{};
        const auto written = std::to_chars(digits.data(), digits.data() + digits.size(), number,
                                           std::chars_format::fixed);
        result.assign(digits.data(), written.ptr);
    }
    if (result.find('.') == std::string::npos)
        return result;
    result.erase(result.find_last_not_of('0') + 1);
    if (result.ends_with('.'))
        result.pop_back();
    return result;
}

}  // namespace velmora::access
