#pragma once

#include <chrono>
#include <cstddef>
#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "phonebook/BookRecords.h"
#include "platform/NativePath.h"
#include "platform/Replacement.h"

namespace velmora {

// Copies a book into another file, byte by byte, in pieces, between which events may run:
//
//     BookCopy copy(books, replacements, {kYellowPagesFile, book, target});
//     while (copy.step())
//         if (!job.goOn())
//             return;  // nothing is left of the copy
//
// The copy is the book as it was at one moment: it is read under its lock, and from its beginning
// again where somebody wrote in the middle. It is written beside the target, handed to the disk,
// read back and compared, and takes the target's place then; whatever fails, the target's earlier
// file stays. A last record that is there only in part is copied so.
class BookCopy {
  public:
    struct Paths {
        std::string bookFile;  // kYellowPagesFile or kWhitePagesFile
        NativePath book;       // the same as a file, whose permissions a new copy gets
        NativePath copy;       // in a folder that is there
    };

    struct Limits {
        std::chrono::milliseconds patience{5000};   // with a lock that somebody else holds
        std::chrono::milliseconds longestRead{40};  // while the lock is held here
    };

    // Both must outlive the copy. Nothing is done yet.
    BookCopy(Books& books, Replacements& replacements, Paths paths)
        : BookCopy(books, replacements, std::move(paths), Limits()) {}
    BookCopy(Books& books, Replacements& replacements, Paths paths, const Limits& limits)
        : books_(books), replacements_(replacements), paths_(std::move(paths)), limits_(limits) {}

    // Does a piece; takes some 50 ms, and 200 ms where the lock is held by somebody else. True
    // while there is more to do. Throws Failure: there is no such book, the copy would be the book
    // itself, the lock is held for too long, the book is changed all the time, or the
    // copy can not be written or is not what was written. The copy is then given up.
    [[nodiscard]] bool step();

    // How many records the book has, as far as it is known yet, and how much is done, as records.
    [[nodiscard]] int records() const { return static_cast<int>(size_ / kRecordSize); }
    [[nodiscard]] int recordsDone() const;

  private:
    using Clock = std::chrono::steady_clock;

    struct Piece {
        std::size_t size;
        std::size_t hash;
    };

    void begin();
    void read();
    void readUnderLock(BookRecords& book);
    void startOver();
    void bearLock(const std::string& why);
    void write();
    void compare();

    Books& books_;
    Replacements& replacements_;
    Paths paths_;
    Limits limits_;
    std::unique_ptr<Replacement> file_;

    std::optional<BookState> state_;  // of the book, since it was begun to be read
    std::uint64_t size_ = 0;          // of the book
    std::uint64_t read_ = 0;          // bytes
    bool readAll_ = false;
    int beginnings_ = 0;
    std::optional<Clock::time_point> lockedSince_;

    std::string waiting_;      // bytes that were read and are not all written
    std::size_t written_ = 0;  // of them
    std::size_t pieceSize_ = 1 << 20;
    std::vector<Piece> pieces_;

    std::size_t compared_ = 0;  // pieces
    std::uint64_t comparedBytes_ = 0;
};

}  // namespace velmora
