#pragma once

#include <string>

#include "core/SettingsStore.h"
#include "phonebook/RecordView.h"

namespace velmora {

// How the user wants letters to begin.
struct LetterStyle {
    bool tab = false;               // a tab stands before the salutation
    std::string defaultSalutation;  // for entries that have none
};

// From the settings "LetterTab" and "DefaultSal".
[[nodiscard]] LetterStyle readLetterStyle(const SettingsStore& settings);

// Title, first and last name with blanks between them, trimmed as a whole.
[[nodiscard]] std::string nameLine(RecordView entry);

// Name, address and salutation of an entry above a letter, lines ended by CR LF. A postal code that
// is a number, or holds a hyphen, stands on the last line of the address, any other on its own.
[[nodiscard]] std::string letterHead(RecordView entry, const LetterStyle& style);

// True for a text that is wholly a number: sign, digits with commas and one point, exponent.
[[nodiscard]] bool isNumber(std::string_view text);

}  // namespace velmora
