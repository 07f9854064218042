#pragma once

#include <string>
#include <string_view>

#include "phonebook/PhonebookStore.h"
#include "platform/Messages.h"

namespace velmora {

// Changes to the books. Each scan and the write that follows run under one lock of the book, and
// the user is asked only while no book is open. Where more than one write is needed, the one that
// keeps the entry comes first, so that a power cut leaves it twice rather than nowhere. All throw
// Failure when a book can not be read or written.
class EntryWriter {
  public:
    // Both must outlive the writer.
    EntryWriter(const PhonebookStore& store, Messages& messages)
        : store_(store), messages_(messages) {}

    // Writes a new entry. Asks before it overwrites one of the same name; false for a No.
    [[nodiscard]] bool add(const std::string& bookFile, const PhonebookRecord& record);

    enum class ChangeResult {
        Written,
        NameTaken,  // the new name is that of another entry; nothing was written
    };

    // Writes `record` in place of the entry that `line` names; never asks. Where that entry is
    // gone the record is written all the same.
    [[nodiscard]] ChangeResult change(const std::string& bookFile, std::string_view line,
                                      const PhonebookRecord& record);

    // Deletes the entry that `line` names, if it is there.
    void remove(const std::string& bookFile, std::string_view line);

    // Carries the entry that `line` names from one book to the other, byte for byte. Asks before
    // it overwrites one of the same name; a No leaves both books as they are.
    void move(const std::string& fromBook, const std::string& toBook, std::string_view line);

  private:
    void removeIfUnchanged(const std::string& bookFile, RecordNumber number,
                           const PhonebookRecord& record);

    const PhonebookStore& store_;
    Messages& messages_;
};

}  // namespace velmora
