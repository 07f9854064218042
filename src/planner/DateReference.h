#pragma once

#include <string>
#include <string_view>

#include "phonebook/EntryWriter.h"
#include "phonebook/PhonebookRecord.h"

namespace velmora {

// Who a list line names, as the scheduling commands read it: split at the first comma, the first
// name beginning with the second character behind it.
struct BookedName {
    std::string last;     // empty for a company
    std::string first;    //
    std::string company;  // empty for a person

    static BookedName ofListLine(std::string_view line);

    // An empty name fits no record.
    [[nodiscard]] bool fits(RecordView record, const CodePage& codePage) const;
};

// Writes `reference` into the field DateReference of the first record that fits and leaves every
// other byte of the book as it is. Where none fits, an empty record with that reference goes behind
// the last. Returns the record as it was written. Throws Failure.
PhonebookRecord writeDateReference(EntryWriter& entries, const std::string& bookFile,
                                   const BookedName& name, std::string_view reference);

// The name in the text of an appointment: the company where there is no last name, else first and
// last name. The first "&" is a "+", since the day view takes an ampersand for an access key.
[[nodiscard]] std::string nameForAppointment(const PhonebookRecord& record);

}  // namespace velmora
