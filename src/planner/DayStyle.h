#pragma once

#include <chrono>
#include <string>

namespace velmora {

// The style that whatever Velmora stores gives its day.
inline constexpr const char* kStyleOfAppointments = "Event";

// A day of the calendars and the name of the style that an appointment gives it.
struct DayStyle {
    std::chrono::year_month_day day;
    std::string style;

    bool operator==(const DayStyle&) const = default;
};

}  // namespace velmora
