#include "reports/EnvelopePage.h"

#include <array>

namespace velmora {
namespace {

// In the order of keys::kEnvelopePositions.
constexpr std::array<EnvelopePosition, keys::kEnvelopePositions.size()> kPositions{
    EnvelopePosition::Left, EnvelopePosition::Center, EnvelopePosition::Right};

constexpr float kTopFeedX = 1.45F;  // inches
constexpr float kAddressX = 5.0F;
constexpr float kBarcodeSize = 16;  // points

struct Heights {
    float returnAddress;
    float address;
};

Heights heightsOf(EnvelopePosition position) {
    switch (position) {
        case EnvelopePosition::Left:
            return {0.1F, 2.1F};
        case EnvelopePosition::Right:
            return {4.3F, 6.6F};
        case EnvelopePosition::Center:
            break;
    }
    return {2.1F, 4.1F};
}

void printLine(PrintSurface& printer, const EnvelopeLine& line) {
    printer.SetFontName(line.fontName);
    printer.SetFontItalic(false);
    printer.SetFontSize(static_cast<float>(line.fontSize));
    printer.SetForeColor(line.colour);
    printer.Print(line.text);
}

}  // namespace

EnvelopeFeed readEnvelopeFeed(const SettingsStore& settings) {
    const auto position = settings.read(keys::EnvelopePrinting);
    return {.position = position ? std::optional(kPositions.at(*position)) : std::nullopt,
            .top = settings.read(keys::EnvelopeAtTop)};
}

void printEnvelopePage(PrintSurface& printer, const EnvelopeContent& content,
                       const EnvelopeFeed& feed) {
    printer.SetScaleMode(kInches);
    if (feed.position)
        printer.SetCurrentY(heightsOf(*feed.position).returnAddress);
    for (std::size_t i = 0; i < kReturnLines; ++i) {
        if (feed.top)
            printer.SetCurrentX(kTopFeedX);
        printLine(printer, content.lines[i]);
    }
    if (feed.position)
        printer.SetCurrentY(heightsOf(*feed.position).address);
    printer.SetCurrentX(kAddressX);
    printer.SetFontBold(false);
    printer.SetFontItalic(false);
    printer.SetFontSize(kBarcodeSize);
    if (!content.EnvelopeBarcode.empty())
        printer.Print(content.EnvelopeBarcode);
    for (std::size_t i = kReturnLines; i < kEnvelopeLines; ++i) {
        printer.SetCurrentX(kAddressX);
        printLine(printer, content.lines[i]);
    }
}

}  // namespace velmora
