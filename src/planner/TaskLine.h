#pragma once

#include <string_view>
#include <utility>

// The lines in which lists of tasks show their parts: "9 - Pay the rent".
namespace velmora {

inline constexpr std::string_view kBetweenParts = " - ";

// What stands before and behind the first " - "; all before it where there is none.
[[nodiscard]] inline std::pair<std::string_view, std::string_view> splitTaskLine(
    std::string_view line) {
    const std::size_t at = line.find(kBetweenParts);
    if (at == std::string_view::npos)
        return {line, {}};
    return {line.substr(0, at), line.substr(at + kBetweenParts.size())};
}

}  // namespace velmora
