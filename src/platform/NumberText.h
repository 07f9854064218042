#pragma once

#include <string>

namespace velmora {

// A number as plain text: at most 15 significant digits, no zeros at the end, no blank in front,
// "." in every locale, "0.5" with its 0. From 1E+15 on, and where a small number would need more
// than 15 decimals, with an exponent of at least two digits: "9.9999998E+15", "8.5E-20". Both
// zeros give "0". `number` is finite.
[[nodiscard]] std::string numberText(double number);

}  // namespace velmora
