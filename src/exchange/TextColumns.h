#pragma once

#include <cstddef>
#include <string_view>
#include <vector>

namespace velmora {

// A line of a delimited text has no more columns than these.
inline constexpr std::size_t kMostColumns = 150;

// Cuts a line at each separator into `columns`, with the blanks around each piece off; quotes are
// characters like any other. An empty line is one empty column. False for a line of more than
// kMostColumns, of which the first stand in `columns`. They look into `line`.
[[nodiscard]] bool splitColumns(std::string_view line, char separator,
                                std::vector<std::string_view>& columns);

}  // namespace velmora
