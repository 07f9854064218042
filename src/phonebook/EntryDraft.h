#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "phonebook/EntryEditor.h"

namespace velmora {

// What stands in an entry form before it is written, and where it belongs.
struct EntryDraft {
    EntryOrigin origin;
    Entry values;
};

// The draft as bytes that any values survive in, and back. Nothing comes back from bytes that are
// no whole draft of one of the two books.
[[nodiscard]] std::string bytesOf(const EntryDraft& draft);
[[nodiscard]] std::optional<EntryDraft> draftOf(std::string_view bytes);

}  // namespace velmora
