#pragma once

#include <cstdint>
#include <span>
#include <string_view>

// Icons that were drawn when Velmora was built, in the sizes that its windows show on screens of
// the usual scales: a start need not load what draws pictures.
namespace velmora {

// What part of each point the symbol covers, from 0 to 255, row by row in a square of `side` device
// pixels; empty where it was not drawn in that size. It lives as long as the program.
[[nodiscard]] std::span<const std::uint8_t> drawnSymbol(std::string_view id, int side);

// True for a symbol that was drawn in any size.
[[nodiscard]] bool isDrawnSymbol(std::string_view id);

// The application's icon as 0xAARRGGBB with the colours multiplied by the opacity, row by row;
// empty where it was not drawn in that size.
[[nodiscard]] std::span<const std::uint32_t> drawnApplicationIcon(int side);

// What is made when Velmora is built.
namespace drawn {

struct Symbol {
    char id[16];  // ends with a NUL
    std::uint32_t side;
    std::uint32_t offset;  // into the coverage
};

extern const std::span<const Symbol> kSymbols;  // by id and side
extern const std::span<const std::uint8_t> kCoverage;

struct Picture {
    std::uint32_t side;
    std::uint32_t offset;  // into the points
};

extern const std::span<const Picture> kApplicationIcons;
extern const std::span<const std::uint32_t> kPoints;

}  // namespace drawn

}  // namespace velmora
