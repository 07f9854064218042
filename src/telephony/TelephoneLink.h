#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace velmora {

// The number of a telephone link ("tel:+1-516-555-1212;ext=7") as the keypad takes it: digits, "*",
// "#" and ",", a leading "+", 40 characters at most. Its parameters are left out. Empty for any
// other link, and for one without a number.
[[nodiscard]] std::string numberOfLink(std::string_view link);

// That of the first link that has one; empty where none has.
[[nodiscard]] std::string numberOfLinks(const std::vector<std::string>& links);

}  // namespace velmora
