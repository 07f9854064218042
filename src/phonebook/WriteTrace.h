#pragma once

#include <array>
#include <cstdint>
#include <optional>
#include <span>
#include <string>

#include "phonebook/PhonebookRecord.h"
#include "platform/Files.h"

namespace velmora {

// A record that is overwritten can be cut in two, when the program is killed or the power fails in
// the middle of the write: the slot would hold the beginning of one entry and the end of another.
// So for the time of such a write a small file beside the book, the trace, tells where it goes,
// what was there and what is to be there. Whoever holds the book's lock next finishes what a trace
// proves to have been begun.
class WriteTrace {
  public:
    // `files` must outlive this object.
    WriteTrace(Files& files, const std::string& bookPath);

    [[nodiscard]] bool isThere() const;

    // Writes the record at `offset` of the book, which is under its lock. Where no trace can be
    // left, on a full disk or in a folder that may not be written, the record is written without.
    // Throws Failure; the book is then as it was.
    void overwrite(RandomFile& book, std::uint64_t offset,
                   std::span<const char, kRecordSize> record);

    // Finishes the write that the trace tells of, if the slot holds a mixture of the old and the
    // new record, and takes the trace away. A slot that holds anything else is left alone. The book
    // is under its lock. Throws Failure when trace or book can not be read or written; the trace is
    // then still there.
    void finish(RandomFile& book);

  private:
    using RecordBytes = std::array<char, kRecordSize>;
    struct Begun {
        std::uint64_t offset;
        RecordBytes old;
        RecordBytes record;
    };

    [[nodiscard]] bool leave(const Begun& begun);
    [[nodiscard]] std::optional<Begun> read() const;
    void remove();

    Files& files_;
    std::string path_;
};

}  // namespace velmora
