#include "phonebook/BookScan.h"

#include <algorithm>

namespace velmora {
namespace {

// About 1 MiB.
constexpr std::size_t kRecordsInBlock = 657;
constexpr std::size_t kBlockSize = kRecordsInBlock * kRecordSize;

}  // namespace

BookScan::BookScan(const RandomFile& book, RecordNumber from) : book_(book), number_(from - 1) {}

bool BookScan::fill() {
    if (!block_)
        block_ = std::make_unique_for_overwrite<char[]>(kBlockSize);
    const auto offset = static_cast<std::uint64_t>(number_) * kRecordSize;
    const std::size_t count = book_.readAt(offset, {block_.get(), kBlockSize});
    const std::size_t records = (count + kRecordSize - 1) / kRecordSize;
    std::fill(block_.get() + count, block_.get() + records * kRecordSize, '\0');
    lastIsShort_ = count % kRecordSize != 0;
    at_ = block_.get();
    end_ = at_ + records * kRecordSize;
    return records > 0;
}

}  // namespace velmora
