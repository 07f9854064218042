#pragma once

#include <chrono>
#include <optional>
#include <string>
#include <string_view>

namespace velmora {

// Dates as text, the same in every locale.

// "MM/dd/yyyy", always ten characters for years up to 9999: "03/12/2026", "01/01/0100".
[[nodiscard]] std::string writeDate(std::chrono::year_month_day date);

// Reads "M/d/yy", "M/d/yyyy", "yyyy/m/d" (a year of three or four digits first), "yyyy-mm-dd" and
// an English month name, whole or its first three letters in any case, before day and year: "March
// 12, 2026", "mar 12 26". Blanks around the text do not count. Nothing for any other text, for a
// day that its month lacks ("02/30/2026"), and outside the years 100 to 9999.
//
// A year of two digits is the one within 50 years before `pivot` and 49 behind it; so with a pivot
// of 2026, "75" is 2075 and "76" is 1976.
[[nodiscard]] std::optional<std::chrono::year_month_day> readDate(std::string_view text,
                                                                  std::chrono::year pivot);

}  // namespace velmora
