#include "phonebook/BookScan.h"

#include <algorithm>

namespace velmora {
namespace {

// About 1 MiB; less for a small book.
constexpr RecordNumber kRecordsInBlock = 657;

std::size_t blockSizeFor(const BookRecords& book) {
    const RecordNumber records = book.count() + 1;
    return static_cast<std::size_t>(std::min(records, kRecordsInBlock)) * kRecordSize;
}

}  // namespace

BookScan::BookScan(const BookRecords& book, RecordNumber from) : book_(book), number_(from - 1) {}

bool BookScan::fill() {
    if (!block_) {
        blockSize_ = blockSizeFor(book_);
        block_ = std::make_unique_for_overwrite<char[]>(blockSize_);
    }
    const std::size_t count = book_.read(number_ + 1, {block_.get(), blockSize_});
    const std::size_t records = (count + kRecordSize - 1) / kRecordSize;
    std::fill(block_.get() + count, block_.get() + records * kRecordSize, '\0');
    lastIsShort_ = count % kRecordSize != 0;
    at_ = block_.get();
    end_ = at_ + records * kRecordSize;
    return records > 0;
}

}  // namespace velmora
