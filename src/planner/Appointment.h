#pragma once

#include <chrono>
#include <optional>
#include <string>

#include "planner/DayStyle.h"
#include "platform/Clock.h"

namespace velmora {

// An appointment, whatever it is stored in. Texts are code-page text; times are kept as they were
// given, readable or not.
struct Appointment {
    Moment tag{};  // when it was made, which is its identity
    std::optional<std::chrono::year_month_day> day{};
    std::string begin{};
    std::string end{};
    std::string text{};
    std::string style = kStyleOfAppointments;

    friend bool operator==(const Appointment&, const Appointment&) = default;
};

}  // namespace velmora
