#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace velmora::access {

// A date and time as Access keeps it: days since 30 December 1899, the time of day in the part
// behind the point, which counts forward also before that day. "yyyy-mm-dd hh:mm:ss", with
// fractions of a second cut off; nothing outside the years 100 to 9999.
[[nodiscard]] std::optional<std::string> momentText(double dayNumber);

// A number as the reading library writes it, perhaps with an exponent or with zeros behind the
// point, as plain decimal text: "12.7500" gives "12.75", "1.5e+03" gives "1500". Other texts come
// back as they are.
[[nodiscard]] std::string plainNumber(std::string_view text);

}  // namespace velmora::access
