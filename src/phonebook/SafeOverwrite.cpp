#include "phonebook/SafeOverwrite.h"

#include <algorithm>
#include <array>

#include "platform/Failure.h"

namespace velmora {
namespace {

// The smallest page of the systems that Velmora runs on.
constexpr std::uint64_t kPageSize = 4096;

using RecordBytes = std::array<char, kRecordSize>;

RecordBytes bytesAt(const RandomFile& book, std::uint64_t offset) {
    RecordBytes bytes{};
    (void)book.readAt(offset, bytes);
    return bytes;
}

// True when bytes change in more than one page.
bool changesTwoPages(std::uint64_t offset, std::span<const char, kRecordSize> old,
                     std::span<const char, kRecordSize> record) {
    std::size_t first = 0;
    std::size_t last = kRecordSize;
    while (first < last && old[first] == record[first])
        ++first;
    while (last > first && old[last - 1] == record[last - 1])
        --last;
    return first < last && (offset + first) / kPageSize != (offset + last - 1) / kPageSize;
}

std::uint64_t endOfLastRecord(std::uint64_t size) {
    return (size + kRecordSize - 1) / kRecordSize * kRecordSize;
}

}  // namespace

void overwriteSafely(RandomFile& book, std::uint64_t offset,
                     std::span<const char, kRecordSize> record) {
    const std::uint64_t oldSize = book.size();
    if (offset >= oldSize) {
        book.writeAt(offset, record);
        return;
    }
    const RecordBytes old = bytesAt(book, offset);
    if (!changesTwoPages(offset, old, record)) {
        book.writeAt(offset, record);
        return;
    }
    // A full disk has no room for the copy; the entry can be changed all the same.
    ignoringErrors([&] { book.writeAt(endOfLastRecord(oldSize), record); });
    try {
        book.writeAt(offset, record);
    } catch (const Failure&) {
        if (bytesAt(book, offset) == old)
            ignoringErrors([&] { book.shorten(oldSize); });
        throw;
    }
    const std::uint64_t newSize = std::max(oldSize, offset + kRecordSize);
    if (book.size() > newSize)
        ignoringErrors([&] { book.shorten(newSize); });
}

}  // namespace velmora
