#pragma once

#include <optional>
#include <string>

#include "phonebook/Entry.h"

namespace velmora {

// Where the values of a form belong.
struct EntryOrigin {
    std::string bookFile;             // kYellowPagesFile or kWhitePagesFile
    std::optional<std::string> line;  // list line of the entry to be changed; nothing for a new one
};

// What the entry form asks of the phonebook. One object serves one showing of the form.
class EntryEditor {
  public:
    virtual ~EntryEditor() = default;

    [[nodiscard]] virtual EntryOrigin origin() const = 0;

    [[nodiscard]] virtual std::string caption() const = 0;       // "Add Entry" or "Edit Entry"
    [[nodiscard]] virtual std::string applyCaption() const = 0;  // "&Add Entry" or "&Keep Changes"

    // Captions of the two custom fields.
    [[nodiscard]] virtual std::string custom1Caption() const = 0;
    [[nodiscard]] virtual std::string custom2Caption() const = 0;

    // The values to begin with: empty, or those of the entry to be changed. Throws Failure.
    [[nodiscard]] virtual Entry load() = 0;

    enum class Outcome {
        Written,  // the form closes
        Refused,  // the user has been told why, or said No; the form stays open as it is
        RefusedNamesCleared,  // as Refused, and Title, First and Last are to be emptied in the form
    };

    // Checks, scans and writes. Throws Failure when the book can not be read or written; nothing
    // typed is lost then, as the form stays open.
    virtual Outcome apply(const Entry& values) = 0;

    // The form has closed, whether it wrote or not.
    virtual void closed() = 0;
};

}  // namespace velmora
