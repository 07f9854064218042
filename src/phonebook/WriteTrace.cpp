#include "phonebook/WriteTrace.h"

#include <algorithm>

#include "platform/Failure.h"

namespace velmora {
namespace {

using RecordBytes = std::array<char, kRecordSize>;
using RecordSpan = std::span<const char, kRecordSize>;

// The least that a disk writes as a whole.
constexpr std::uint64_t kSectorSize = 512;

constexpr std::string_view kMark = "Velmora write 1\n";
constexpr std::size_t kNumberSize = 8;
constexpr std::size_t kTraceSize = kMark.size() + kNumberSize + 2 * kRecordSize + kNumberSize;
constexpr std::string_view kGrowthMark = "Velmora grows 1\n";
constexpr std::size_t kGrowthSize = kGrowthMark.size() + kNumberSize + kNumberSize;
constexpr std::uint64_t kLongestTrace = 64U << 20;

std::string numberBytes(std::uint64_t number) {
    std::string bytes;
    for (std::size_t i = 0; i < kNumberSize; ++i, number >>= 8)
        bytes += static_cast<char>(number & 0xFF);
    return bytes;
}

std::uint64_t numberOf(std::string_view bytes) {
    std::uint64_t number = 0;
    for (std::size_t i = kNumberSize; i-- > 0;)
        number = number << 8 | static_cast<unsigned char>(bytes[i]);
    return number;
}

// FNV-1a: a trace that was itself cut short must not be believed.
std::uint64_t checkSum(std::string_view bytes) {
    std::uint64_t sum = 14695981039346656037U;
    for (const char byte : bytes)
        sum = (sum ^ static_cast<unsigned char>(byte)) * 1099511628211U;
    return sum;
}

std::string growthBytes(std::uint64_t length) {
    std::string bytes(kGrowthMark);
    bytes += numberBytes(length);
    bytes += numberBytes(checkSum(bytes));
    return bytes;
}

RecordBytes bytesAt(const RandomFile& book, std::uint64_t offset) {
    RecordBytes bytes{};
    (void)book.readAt(offset, bytes);
    return bytes;
}

// True when bytes change in more than one sector.
bool changesTwoSectors(std::uint64_t offset, RecordSpan old, RecordSpan record) {
    std::size_t first = 0;
    std::size_t last = kRecordSize;
    while (first < last && old[first] == record[first])
        ++first;
    while (last > first && old[last - 1] == record[last - 1])
        --last;
    return first < last && (offset + first) / kSectorSize != (offset + last - 1) / kSectorSize;
}

// True when the slot holds some bytes of the old and some of the new record, and no others. Where
// the one ends and the other begins depends on the disk, and on how far a write came that failed.
bool isMixture(RecordSpan now, RecordSpan old, RecordSpan record) {
    if (std::ranges::equal(now, old) || std::ranges::equal(now, record))
        return false;
    for (std::size_t at = 0; at < kRecordSize; ++at)
        if (now[at] != old[at] && now[at] != record[at])
            return false;
    return true;
}

}  // namespace

WriteTrace::WriteTrace(Files& files, const std::string& bookPath)
    : files_(files), path_(bookPath + ".unfinished") {}

bool WriteTrace::isThere() const {
    return files_.exists(path_);
}

void WriteTrace::overwrite(RandomFile& book, std::uint64_t offset, RecordSpan record) {
    Begun begun{offset, {}, {}};
    if (offset < book.size())
        begun.old = bytesAt(book, offset);
    if (offset >= book.size() || !changesTwoSectors(offset, begun.old, record)) {
        book.writeAt(offset, record);
        return;
    }
    std::ranges::copy(record, begun.record.begin());
    const bool left = leave(bytesOf(begun));
    try {
        book.writeAt(offset, record);
    } catch (const Failure&) {
        if (left && bytesAt(book, offset) == begun.old)
            remove();
        throw;
    }
    if (left)
        remove();
}

void WriteTrace::writeAll(RandomFile& book, std::span<const Write> writes) {
    const std::uint64_t end = book.size();
    std::string overwritten;
    std::string grown;
    std::vector<FilePiece> pieces;
    for (const Write& write : writes) {
        pieces.push_back({write.offset, write.record});
        if (write.offset >= end) {
            grown = growthBytes(end);
            continue;
        }
        Begun begun{write.offset, bytesAt(book, write.offset), {}};
        std::ranges::copy(write.record, begun.record.begin());
        if (changesTwoSectors(write.offset, begun.old, write.record))
            overwritten += bytesOf(begun);
    }
    // What only makes the book longer needs no trace that survives a power cut.
    const bool left =
        overwritten.empty() ? !grown.empty() && leaveForGrowth(grown) : leave(overwritten + grown);
    // Where this fails and can not put back what was there, the trace is what helps.
    book.writePieces(pieces);
    if (left)
        remove();
}

void WriteTrace::finish(RandomFile& book) {
    const Told told = read();
    for (const Begun& begun : told.begun) {
        if (begun.offset >= book.size())
            continue;
        const RecordBytes now = bytesAt(book, begun.offset);
        if (isMixture(now, begun.old, begun.record))
            book.writeAt(begun.offset, begun.record);
    }
    if (told.grownFrom)
        freeCutRecord(book, *told.grownFrom);
    remove();
}

// A record that a book of this length had already, if only in part, is not meant.
void WriteTrace::freeCutRecord(RandomFile& book, std::uint64_t grownFrom) {
    const std::uint64_t size = book.size();
    const std::uint64_t last = size / kRecordSize * kRecordSize;
    if (last == size || last < grownFrom)
        return;
    const RecordBytes free{};
    book.writeAt(last, free);
}

std::string WriteTrace::bytesOf(const Begun& begun) {
    std::string bytes(kMark);
    bytes += numberBytes(begun.offset);
    bytes.append(begun.old.data(), kRecordSize).append(begun.record.data(), kRecordSize);
    bytes += numberBytes(checkSum(bytes));
    return bytes;
}

bool WriteTrace::leave(const std::string& bytes) {
    try {
        files_.writeWhole(path_, bytes);
        return true;
    } catch (const Failure&) {
        return false;
    }
}

bool WriteTrace::leaveForGrowth(const std::string& bytes) {
    try {
        files_.append(path_, bytes);
        return true;
    } catch (const Failure&) {
        return false;
    }
}

// The begin of `bytes`, which goes from them.
std::optional<WriteTrace::Begun> WriteTrace::takeBegun(std::string_view& bytes) {
    if (bytes.size() < kTraceSize || !bytes.starts_with(kMark))
        return std::nullopt;
    const std::string_view all = bytes.substr(0, kTraceSize);
    const std::size_t summed = kTraceSize - kNumberSize;
    if (numberOf(all.substr(summed)) != checkSum(all.substr(0, summed)))
        return std::nullopt;
    Begun begun{numberOf(all.substr(kMark.size())), {}, {}};
    const std::string_view records = all.substr(kMark.size() + kNumberSize);
    std::copy_n(records.begin(), kRecordSize, begun.old.begin());
    std::copy_n(records.begin() + kRecordSize, kRecordSize, begun.record.begin());
    if (begun.offset % kRecordSize != 0)
        return std::nullopt;
    bytes.remove_prefix(kTraceSize);
    return begun;
}

// Nothing where there is none, or one that was never completed: its write was not begun.
WriteTrace::Told WriteTrace::read() const {
    const std::optional<std::string> bytes = files_.readWhole(path_, kLongestTrace);
    Told told;
    std::string_view rest = bytes ? std::string_view(*bytes) : std::string_view();
    while (auto begun = takeBegun(rest))
        told.begun.push_back(*begun);
    if (rest.size() == kGrowthSize &&
        rest == growthBytes(numberOf(rest.substr(kGrowthMark.size()))))
        told.grownFrom = numberOf(rest.substr(kGrowthMark.size()));
    else if (!rest.empty())
        return {};
    return told;
}

void WriteTrace::remove() {
    ignoringErrors([&] { files_.remove(path_); });
}

}  // namespace velmora
