#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>
#include <span>
#include <string>

#include "phonebook/PhonebookRecord.h"

namespace velmora {

// Records count from 1.
using RecordNumber = std::int64_t;

// Tells one book from another, and one state of a book from a later one.
struct BookState {
    std::string book;     // equal for two names of one and the same book
    std::string version;  // another one where anybody may have written since

    bool operator==(const BookState&) const = default;
};

// A record and its place in the book.
struct PlacedRecord {
    RecordNumber number;
    PhonebookRecord record;
};

// The records of one book, open for one operation, wherever they are kept. All operations throw
// Failure when they can not be read or written.
class BookRecords {
  public:
    virtual ~BookRecords() = default;

    // A last one that is there only in part counts.
    [[nodiscard]] virtual RecordNumber count() const = 0;

    // Reads the records from number `first` on, as many as there are and as fit into `target`,
    // whose size is a multiple of kRecordSize. Returns the number of bytes; a last record that is
    // there only in part is short.
    [[nodiscard]] virtual std::size_t read(RecordNumber first, std::span<char> target) const = 0;

    // Writes one record; behind the end it makes the book longer. Under the lock a record that is
    // overwritten is never left half old and half new.
    virtual void write(RecordNumber number, const PhonebookRecord& record) = 0;

    // Writes several records under the lock and hands them to the disk together. Each number comes
    // once, and they rise. Where the program is killed in the middle, each record is old or new or
    // not there at all. Throws Failure; the book is then as it was, as far as its medium allows.
    virtual void writeAll(std::span<const PlacedRecord> records) {
        for (const PlacedRecord& placed : records)
            write(placed.number, placed.record);
    }

    // Keeps all others from writing until unlock(). False where this can not be done. Waits
    // a moment only, then throws StorageFailure (Obstacle::InUse): somebody else holds it.
    [[nodiscard]] virtual bool lock() = 0;
    virtual void unlock() = 0;

    [[nodiscard]] virtual BookState state() const = 0;
};

// Where the books are kept. Books go by their file names, kYellowPagesFile and kWhitePagesFile.
class Books {
  public:
    virtual ~Books() = default;

    [[nodiscard]] virtual bool exists(const std::string& bookFile) const = 0;

    // Makes an empty one where there is none. Throws Failure.
    [[nodiscard]] virtual std::unique_ptr<BookRecords> open(const std::string& bookFile) = 0;
};

}  // namespace velmora
