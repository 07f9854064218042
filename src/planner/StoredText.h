#pragma once

#include <chrono>
#include <optional>
#include <string>
#include <string_view>

#include "platform/Clock.h"

// How days and moments lie in the table of appointments.
namespace velmora {

// "yyyy-mm-dd".
[[nodiscard]] std::string storedDay(std::chrono::year_month_day day);

// Reads storedDay(), and nothing else.
[[nodiscard]] std::optional<std::chrono::year_month_day> readStoredDay(std::string_view text);

// "yyyy-mm-dd hh:mm:ss", at midnight too.
[[nodiscard]] std::string storedMoment(Moment moment);

// Reads storedMoment(), with any fraction of a second cut off; "M/d/yyyy h:nn:ss AM/PM"; and a
// date alone, which is its midnight. Two-digit years count around `pivotYear`.
[[nodiscard]] std::optional<Moment> readMoment(std::string_view text, std::chrono::year pivotYear);

}  // namespace velmora
