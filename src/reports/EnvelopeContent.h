#pragma once

#include <array>
#include <cstddef>
#include <string>

namespace velmora {

inline constexpr std::size_t kReturnLines = 4;
inline constexpr std::size_t kAddressLines = 7;
inline constexpr std::size_t kEnvelopeLines = kReturnLines + kAddressLines;

// One line of an envelope with the font of its own.
struct EnvelopeLine {
    std::string text{};
    std::string fontName = "Arial";
    double fontSize = 10;  // points
    int colour = 0;        // red + 256 * green + 65536 * blue

    bool operator==(const EnvelopeLine&) const = default;
};

// What stands on an envelope: the four lines of the return address, then the seven of the address,
// and the line of the barcode, which may be empty.
struct EnvelopeContent {
    std::array<EnvelopeLine, kEnvelopeLines> lines{};
    std::string EnvelopeBarcode{};

    bool operator==(const EnvelopeContent&) const = default;
};

}  // namespace velmora
