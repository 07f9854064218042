#pragma once

#include <array>
#include <string>

#include "phonebook/PhonebookRecord.h"
#include "phonebook/RecordView.h"

namespace velmora {

// An entry as a value of its own, apart from how a book keeps it: what forms, reports, letters and
// exchange speak of. Code-page text, untrimmed, lines of the memo as they are.
struct Entry {
    std::array<std::string, kFieldCount> fields;
    bool justCompany = false;  // no first and no last name

    [[nodiscard]] const std::string& operator[](Field field) const {
        return fields[static_cast<std::size_t>(field)];
    }
    [[nodiscard]] std::string& operator[](Field field) {
        return fields[static_cast<std::size_t>(field)];
    }

    bool operator==(const Entry&) const = default;
};

// The entry that a record holds, each field as readers see it.
[[nodiscard]] Entry entryOf(RecordView record);

// Every field is assigned: padded with blanks, cut at its width. An entry that is just a company
// has no title, first and last name.
[[nodiscard]] PhonebookRecord recordOf(const Entry& entry);

}  // namespace velmora
