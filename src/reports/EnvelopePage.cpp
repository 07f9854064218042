#include "reports/EnvelopePage.h"

#include "platform/Text.h"

namespace velmora {
namespace {

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

EnvelopeFeed readEnvelopeFeed(const SettingsStore& settings, const CodePage& codePage) {
    EnvelopeFeed feed;
    const std::string position = codePage.upper(trimBlanks(settings.Read("EnvelopePrinting")));
    if (position == "LEFT")
        feed.position = EnvelopePosition::Left;
    else if (position == "RIGHT")
        feed.position = EnvelopePosition::Right;
    else if (!position.empty() && position != "CENTER")
        feed.position.reset();
    feed.top = settings.Read("EnvTop") == "ON";
    return feed;
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
