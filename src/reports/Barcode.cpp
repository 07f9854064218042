#include "reports/Barcode.h"

#include <numeric>

namespace velmora {
namespace {

constexpr std::size_t kShort = 5;
constexpr std::size_t kLong = 10;  // with the dash
constexpr char kFrameBar = 's';

bool dashIsMissing(std::string_view zip) {
    return zip.size() == kLong && zip[kShort] != '-';
}

char checkDigit(std::string_view digits) {
    const int sum = std::accumulate(digits.begin(), digits.end(), 0, [](int all, char c) {
        return all + (c >= '0' && c <= '9' ? c - '0' : 0);
    });
    return std::to_string(10 - sum % 10).back();
}

}  // namespace

std::optional<std::string> barcodeOf(std::string_view zip) {
    if ((zip.size() != kShort && zip.size() != kLong) || dashIsMissing(zip))
        return std::nullopt;
    std::string digits(zip.substr(0, kShort));
    if (zip.size() == kLong)
        digits += zip.substr(kShort + 1);
    return kFrameBar + digits + checkDigit(digits) + kFrameBar;
}

std::optional<std::string> askForBarcode(Messages& messages) {
    while (true) {
        const std::optional<std::string> zip = messages.askText(
            "Barcode Formatter", "Please enter a 5 or 9 digit ZIP code:\rEx: 11741-0189", "");
        if (!zip || zip->empty())
            return std::nullopt;
        if (auto barcode = barcodeOf(*zip))
            return barcode;
        if (dashIsMissing(*zip))
            messages.warn("I N V A L I D", "Invalid ZIP Code! Make sure that you include the dash");
    }
}

}  // namespace velmora
