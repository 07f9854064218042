#include "phonebook/BookScan.h"

#include <algorithm>

namespace velmora {
namespace {

// About 1 MiB; less for a small book.
constexpr std::uint64_t kRecordsInBlock = 657;

std::size_t blockSizeFor(const RandomFile& book) {
    const std::uint64_t records = book.size() / kRecordSize + 1;
    return static_cast<std::size_t>(std::min(records, kRecordsInBlock)) * kRecordSize;
}

}  // namespace

BookScan::BookScan(const RandomFile& book, RecordNumber from) : book_(book), number_(from - 1) {}

bool BookScan::fill() {
    if (!block_) {
        blockSize_ = blockSizeFor(book_);
        block_ = std::make_unique_for_overwrite<char[]>(blockSize_);
    }
    const auto offset = static_cast<std::uint64_t>(number_) * kRecordSize;
    const std::size_t count = book_.readAt(offset, {block_.get(), blockSize_});
    const std::size_t records = (count + kRecordSize - 1) / kRecordSize;
    std::fill(block_.get() + count, block_.get() + records * kRecordSize, '\0');
    lastIsShort_ = count % kRecordSize != 0;
    at_ = block_.get();
    end_ = at_ + records * kRecordSize;
    return records > 0;
}

}  // namespace velmora
