#pragma once

#include <array>
#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "phonebook/PhonebookRecord.h"
#include "platform/Files.h"

namespace velmora {

// A record that is overwritten can be cut in two, when the program is killed or the power fails in
// the middle of the write: the slot would hold the beginning of one entry and the end of another.
// So for the time of such a write a small file beside the book, the trace, tells where it goes,
// what was there and what is to be there. Whoever holds the book's lock next finishes what a trace
// proves to have been begun.
//
// Several records that are written together have one trace. Where some of them lie behind the end,
// it tells how long the book was too: a last one that came in part only is made a free slot.
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

    // One record and the offset of its slot.
    struct Write {
        std::uint64_t offset;
        std::span<const char, kRecordSize> record;
    };

    // The same for several records at once, whose offsets rise.
    void writeAll(RandomFile& book, std::span<const Write> writes);

    // Finishes the writes that the trace tells of, if a slot holds a mixture of the old and the
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

    // All that a trace tells.
    struct Told {
        std::vector<Begun> begun;
        std::optional<std::uint64_t> grownFrom;  // the length of the book before
    };

    [[nodiscard]] static std::string bytesOf(const Begun& begun);
    [[nodiscard]] static std::optional<Begun> takeBegun(std::string_view& bytes);
    [[nodiscard]] bool leave(const std::string& bytes);
    [[nodiscard]] bool leaveForGrowth(const std::string& bytes);
    [[nodiscard]] Told read() const;
    static void freeCutRecord(RandomFile& book, std::uint64_t grownFrom);
    void remove();

    Files& files_;
    std::string path_;
};

}  // namespace velmora
