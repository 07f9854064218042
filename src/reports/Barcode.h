#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "platform/Messages.h"

namespace velmora {

// The text of a barcode line from what was typed as a ZIP code: five characters, or ten with a dash
// in the middle; whether they are digits is not looked at. Nothing for any other text.
[[nodiscard]] std::optional<std::string> barcodeOf(std::string_view zip);

// Asks for a ZIP code until it has one; nothing when the user gives up.
[[nodiscard]] std::optional<std::string> askForBarcode(Messages& messages);

}  // namespace velmora
