#include "platform/qt/DrawnIcons.h"

#include <algorithm>
#include <cstddef>

namespace velmora {
namespace {

std::size_t pointsOf(std::uint32_t side) {
    return std::size_t{side} * side;
}

const drawn::Symbol* firstOf(std::string_view id) {
    return std::lower_bound(
        drawn::kSymbols.data(), drawn::kSymbols.data() + drawn::kSymbols.size(), id,
        [](const drawn::Symbol& symbol, std::string_view wanted) { return symbol.id < wanted; });
}

bool isOf(const drawn::Symbol* symbol, std::string_view id) {
    return symbol != drawn::kSymbols.data() + drawn::kSymbols.size() && symbol->id == id;
}

}  // namespace

std::span<const std::uint8_t> drawnSymbol(std::string_view id, int side) {
    for (const drawn::Symbol* symbol = firstOf(id); isOf(symbol, id); ++symbol)
        if (symbol->side == static_cast<std::uint32_t>(side))
            return drawn::kCoverage.subspan(symbol->offset, pointsOf(symbol->side));
    return {};
}

bool isDrawnSymbol(std::string_view id) {
    return isOf(firstOf(id), id);
}

std::span<const std::uint32_t> drawnApplicationIcon(int side) {
    for (const drawn::Picture& picture : drawn::kApplicationIcons)
        if (picture.side == static_cast<std::uint32_t>(side))
            return drawn::kPoints.subspan(picture.offset, pointsOf(picture.side));
    return {};
}

}  // namespace velmora
