#pragma once

#include <string>

#include "core/SettingsStore.h"
#include "phonebook/RecordView.h"

namespace velmora {

// What the text of an entry holds beside name and address.
struct EntryTextStyle {
    bool withNumbers = true;  // numbers, mail, memo and all that is behind the address
    std::string custom1;      // captions of the two fields of the user's own
    std::string custom2;
};

// From the settings "LetterTel", "Custom1" and "Custom2".
[[nodiscard]] EntryTextStyle readEntryTextStyle(const SettingsStore& settings);

// An entry as lines of text, each ended by CR LF; empty fields have none.
[[nodiscard]] std::string entryText(RecordView entry, const EntryTextStyle& style);

}  // namespace velmora
