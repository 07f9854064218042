#pragma once

#include <functional>
#include <optional>
#include <string>
#include <string_view>

#include "phonebook/PhonebookStore.h"
#include "platform/Messages.h"

namespace velmora {

// Changes to the books; nothing else writes them. Each scan and the write that follows run under
// one lock of the book, and the user is asked only while no book is open. Where more than one write
// is needed, the one that keeps the entry comes first, so that a power cut leaves it twice rather
// than nowhere; a write that fails is taken back. All throw Failure when a book can not be read or
// written, and StorageFailure (Obstacle::InUse), with nothing written, while another copy of the
// program is writing to it.
class EntryWriter {
  public:
    // Both must outlive the writer.
    EntryWriter(const PhonebookStore& store, Messages& messages)
        : store_(store), messages_(messages) {}

    // Writes a new entry. Asks before it overwrites one of the same name; false for a No.
    [[nodiscard]] bool add(const std::string& bookFile, const PhonebookRecord& record);

    enum class ChangeResult {
        Written,
        NameTaken,         // the new name is that of another entry; nothing was written
        ChangedMeanwhile,  // the entry is not what was seen of it; nothing was written
    };

    // Writes `record` in place of the entry that `line` names; never asks. Where that entry is
    // gone the record is written all the same. `seen`, when given, is the entry as the user saw it
    // last, nothing for one that was not there; where the book holds another, `seen` becomes that.
    [[nodiscard]] ChangeResult change(const std::string& bookFile, std::string_view line,
                                      const PhonebookRecord& record,
                                      std::optional<PhonebookRecord>* seen = nullptr);

    // Changes the first record that fits and leaves every other byte of the book as it is. Where
    // none fits, an empty record, so changed, goes behind the last. Returns what was written.
    PhonebookRecord changeFirst(const std::string& bookFile,
                                const std::function<bool(RecordView record)>& fits,
                                const std::function<void(PhonebookRecord& record)>& change);

    // Deletes the entry that `line` names, if it is there.
    void remove(const std::string& bookFile, std::string_view line);

    // Carries the entry that `line` names from one book to the other, byte for byte. Asks before
    // it overwrites one of the same name; a No leaves both books as they are. Throws where both
    // names stand for one book.
    void move(const std::string& fromBook, const std::string& toBook, std::string_view line);

    [[nodiscard]] const CodePage& codePage() const { return store_.codePage(); }

  private:
    // A write, as it can be taken back.
    struct Write {
        RecordNumber number;
        PhonebookRecord before;  // a deleted entry where the book ended
        PhonebookRecord record;
    };

    static Write write(OpenBook& book, RecordNumber number, const PhonebookRecord& record);
    static void takeBack(OpenBook& book, const Write& write);

    // An entry, as it was found.
    struct Seen {
        RecordNumber number;
        PhonebookRecord record;
    };

    // False where the user is to be asked first; nothing was written then.
    [[nodiscard]] bool moveUnlessMustAsk(const std::string& fromBook, const std::string& toBook,
                                         const Seen& entry, SlotMode mode);

    const PhonebookStore& store_;
    Messages& messages_;
};

}  // namespace velmora
