#pragma once

#include <memory>
#include <optional>
#include <string>
#include <string_view>

#include "core/DataLocations.h"
#include "phonebook/BookRecords.h"
#include "phonebook/BookScan.h"
#include "phonebook/EntryKey.h"
#include "phonebook/PhonebookRecord.h"
#include "platform/CodePage.h"

namespace velmora {

enum class SlotMode {
    Add,        // an entry of the same name is to be overwritten only if the user says so
    Overwrite,  // it is overwritten, as in a change
};

// Where a record is to be written.
struct Slot {
    RecordNumber number = 1;
    bool mustAsk = false;  // in mode Add: an entry of the same name lies there
};

// A book open for one operation. Close it, by letting it go, before the event ends, and before the
// user is asked anything. All operations throw Failure when the file can not be read or written.
class OpenBook {
  public:
    OpenBook(std::unique_ptr<BookRecords> records, const CodePage& codePage);

    // The next record. Past the end the record is empty, and false is returned.
    bool ReadNext(PhonebookRecord& record);

    // True when the last ReadNext() came to the end of the file before its record was full.
    [[nodiscard]] bool AtEnd() const { return atEnd_; }

    // Record `number`, from 1; false, and an empty record, where the file has none.
    bool ReadAt(RecordNumber number, PhonebookRecord& record) const;

    // Writes one record. The book grows when it lies behind the end. Under a Lock an entry that is
    // overwritten is old or new afterwards, even if the program is killed in the middle.
    void WriteAt(RecordNumber number, const PhonebookRecord& record);

    // Writes several under a Lock, with one flush; each number comes once, and they rise. Throws
    // Failure; the book is then as it was.
    void WriteAll(std::span<const PlacedRecord> records);

    // The first entry that a list line names; an empty line names none.
    [[nodiscard]] std::optional<RecordNumber> FindByListLine(
        std::string_view line, CompanyRule rule = CompanyRule::NoLastName) const;

    // Deletes: the slot stays, nothing of the entry does.
    void Tombstone(RecordNumber number);

    // The slot for a record: going forward from the first, one that holds an entry of the same
    // name, is a tombstone or was never written; else the one behind the last. The first tombstone
    // wins, even if an entry of the same name lies further on. `asDeleted` is a number that counts
    // as a tombstone.
    [[nodiscard]] Slot FindSlot(const PhonebookRecord& record, SlotMode mode,
                                std::optional<RecordNumber> asDeleted = std::nullopt) const;

    // Their number; a short last one counts.
    [[nodiscard]] RecordNumber recordCount() const;

    // A scan of its own, in which records are looked at where they lie. This object must outlive
    // it, and nothing may be written meanwhile.
    [[nodiscard]] BookScan scan() const { return BookScan(*records_); }

    // Tells one book from another, and whether anybody may have written since.
    [[nodiscard]] BookState state() const { return records_->state(); }

    // Keeps other copies of the program from writing between a scan and the write that follows.
    // Held until the guard goes; without effect where the file system has no locks.
    class Lock {
      public:
        explicit Lock(OpenBook& book) : book_(book), held_(book.records_->lock()) {}
        Lock(const Lock&) = delete;
        Lock& operator=(const Lock&) = delete;
        ~Lock() {
            if (held_)
                book_.records_->unlock();
        }

      private:
        OpenBook& book_;
        bool held_;
    };

  private:
    std::unique_ptr<BookRecords> records_;
    const CodePage& codePage_;
    std::optional<BookScan> reading_;  // of ReadNext()
    RecordNumber lastRead_ = 0;
    bool atEnd_ = false;
};

// The two books, read from the first to the last at each operation.
// Nothing is kept between operations.
class PhonebookStore {
  public:
    // Both must outlive the store.
    PhonebookStore(Books& books, const CodePage& codePage) : books_(books), codePage_(codePage) {}

    // True when there is a book of this file name, kYellowPagesFile or kWhitePagesFile.
    [[nodiscard]] bool exists(const std::string& bookFile) const { return books_.exists(bookFile); }

    // Opens a book by its file name, and creates it empty when it is missing. Whoever runs a long
    // scan passes the name it began with, as the user may switch books meanwhile. Throws Failure.
    [[nodiscard]] OpenBook Open(const std::string& bookFile) const;

    // The tab of an entry, 0 to 26.
    [[nodiscard]] int BucketOf(const PhonebookRecord& record) const;

    [[nodiscard]] const CodePage& codePage() const { return codePage_; }

  private:
    Books& books_;
    const CodePage& codePage_;
};

}  // namespace velmora
