#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "phonebook/RecordView.h"
#include "platform/CodePage.h"

namespace velmora {

// The line of an entry in the list is all that commands know of it: "Last, First" for a person,
// with the comma and the blank even when there is no first name, and the company for a company.

// Nothing for a record that is never shown.
[[nodiscard]] std::optional<std::string> listLine(RecordView record, const CodePage& codePage);

// The names in a list line; they refer to its text.
struct ListLineParts {
    bool isPerson;             // the line holds a comma
    std::string_view last;     // what stands before the first comma, trimmed
    std::string_view first;    // what stands behind it, trimmed
    std::string_view company;  // the whole line, trimmed, when it holds none
};

[[nodiscard]] ListLineParts splitListLine(std::string_view line);

}  // namespace velmora
