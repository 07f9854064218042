#pragma once

#include <chrono>
#include <string>

namespace velmora {

// A day of the calendars and the name of the style that an appointment gives it.
struct DayStyle {
    std::chrono::year_month_day day;
    std::string style;

    bool operator==(const DayStyle&) const = default;
};

}  // namespace velmora
