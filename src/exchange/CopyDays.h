#pragma once

#include <chrono>
#include <optional>
#include <set>
#include <string>
#include <string_view>

namespace velmora {

using Day = std::chrono::local_days;

// The name of the copy that was made of a file on a day: "DATAY.QEL.2026-03-09".
[[nodiscard]] std::string nameOfCopy(std::string_view file, Day day);

// The day of a copy of `file`; nothing for any other name.
[[nodiscard]] std::optional<Day> dayOfCopy(std::string_view file, std::string_view name);

// Of the days on which a file was copied, those whose copies are kept: the last seven, and of the
// four weeks before in which there are any the last one of each. Weeks begin on Monday.
[[nodiscard]] std::set<Day> daysToKeep(const std::set<Day>& days);

}  // namespace velmora
