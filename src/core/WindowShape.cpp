#include "core/WindowShape.h"

#include <array>
#include <charconv>
#include <optional>
#include <string>

namespace velmora {
namespace {

constexpr int kLongest = 32767;  // of any side of a window

// Four numbers with one blank between them, each from 0 to kLongest.
std::optional<std::array<int, 4>> readNumbers(const std::string& text) {
    std::array<int, 4> numbers{};
    const char* at = text.data();
    const char* const end = at + text.size();
    for (std::size_t i = 0; i < numbers.size(); ++i) {
        if (i > 0 && (at == end || *at++ != ' '))
            return std::nullopt;
        const auto [next, error] = std::from_chars(at, end, numbers[i]);
        if (error != std::errc() || numbers[i] < 0 || numbers[i] > kLongest)
            return std::nullopt;
        at = next;
    }
    if (at != end)
        return std::nullopt;
    return numbers;
}

}  // namespace

WindowShape storedWindowShape(const SettingsStore& settings) {
    const auto numbers = readNumbers(settings.read(keys::WindowShape));
    if (!numbers)
        return {};
    const auto& [width, height, maximized, docPad] = *numbers;
    return {width, height, maximized != 0, docPad};
}

void keepWindowShape(SettingsStore& settings, const WindowShape& shape) {
    const std::string text = std::to_string(shape.width) + ' ' + std::to_string(shape.height) +
                             ' ' + (shape.maximized ? "1" : "0") + ' ' +
                             std::to_string(shape.docPadWidth);
    if (settings.read(keys::WindowShape) != text)
        settings.save(keys::WindowShape, text);
}

}  // namespace velmora
