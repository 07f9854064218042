#pragma once

#include <string>
#include <string_view>

namespace velmora {

// A number as a telephone service sends it ("+15165551212", "0049 30 123456") in the form in which
// people of a country write it down: its own country code comes off, and a leading 1 in North
// America; elsewhere the digit that calls within the country begin with, where it has one, comes in
// front ("030123456"). Any other number comes back as it is.
//
// `country` is the code of a territory in two letters, in any case; with an unknown one no number
// changes.
[[nodiscard]] std::string nationalNumber(std::string_view received, std::string_view country);

}  // namespace velmora
