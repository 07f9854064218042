#pragma once

#include <optional>

#include "core/SettingsStore.h"
#include "platform/PrintSurface.h"
#include "reports/EnvelopeContent.h"

namespace velmora {

// At which edge of the feed the envelope lies.
enum class EnvelopePosition { Left, Center, Right };

struct EnvelopeFeed {
    // Nothing where the setting says none of the three: the address then follows right below the
    // return address.
    std::optional<EnvelopePosition> position = EnvelopePosition::Center;
    bool top = false;  // the return address is printed further to the right

    bool operator==(const EnvelopeFeed&) const = default;
};

// "EnvelopePrinting" and "EnvTop".
[[nodiscard]] EnvelopeFeed readEnvelopeFeed(const SettingsStore& settings);

// Prints the eleven lines, the empty ones, too, and the barcode above the address, on a fresh page
// in landscape. The barcode has the face and the colour of the last line of the return address.
void printEnvelopePage(PrintSurface& printer, const EnvelopeContent& content,
                       const EnvelopeFeed& feed);

}  // namespace velmora
