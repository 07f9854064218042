#pragma once

#include <cstdint>
#include <optional>

namespace velmora {

// A colour of a style set, exact on every theme.
struct Rgb {
    std::uint8_t red = 0;
    std::uint8_t green = 0;
    std::uint8_t blue = 0;

    friend bool operator==(const Rgb&, const Rgb&) = default;
};

// How a calendar marks a day. What is not set stays as on other days; so does a number whose
// foreground is black, the colour of an ordinary number.
struct StyleSet {
    std::optional<Rgb> foreColor;
    std::optional<Rgb> backColor;

    friend bool operator==(const StyleSet&, const StyleSet&) = default;
};

}  // namespace velmora
