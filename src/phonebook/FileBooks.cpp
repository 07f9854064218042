#include "phonebook/FileBooks.h"

#include <utility>
#include <vector>

#include "platform/Failure.h"

namespace velmora {
namespace {

std::uint64_t offsetOf(RecordNumber number) {
    if (number < 1)
        throw Failure("The phonebook has no such record.");
    return static_cast<std::uint64_t>(number - 1) * kRecordSize;
}

}  // namespace

BookFile::BookFile(std::unique_ptr<RandomFile> file, WriteTrace trace,
                   std::function<FileStamp()> stamp, std::uint64_t& writes)
    : file_(std::move(file)), trace_(std::move(trace)), stamp_(std::move(stamp)), writes_(writes) {
    if (!trace_.isThere())
        return;
    // Where it can not be finished now, perhaps since it is just being written, the book is read as
    // it is.
    ignoringErrors([&] {
        if (lock(std::chrono::milliseconds(0)))
            unlock();
    });
}

RecordNumber BookFile::count() const {
    return static_cast<RecordNumber>((file_->size() + kRecordSize - 1) / kRecordSize);
}

std::size_t BookFile::read(RecordNumber first, std::span<char> target) const {
    return file_->readAt(offsetOf(first), target);
}

void BookFile::write(RecordNumber number, const PhonebookRecord& record) {
    ++writes_;
    if (isLocked_)
        trace_.overwrite(*file_, offsetOf(number), record.bytes());
    else
        file_->writeAt(offsetOf(number), record.bytes());
}

void BookFile::writeAll(std::span<const PlacedRecord> records) {
    ++writes_;
    std::vector<WriteTrace::Write> writes;
    writes.reserve(records.size());
    for (const PlacedRecord& placed : records)
        writes.push_back({offsetOf(placed.number), placed.record.bytes()});
    trace_.writeAll(*file_, writes);
}

bool BookFile::lock(std::chrono::milliseconds patience) {
    isLocked_ = file_->lock(patience);
    if (isLocked_ && trace_.isThere()) {
        ++writes_;
        ignoringErrors([&] { trace_.finish(*file_); });  // the trace stays for the next
    }
    return isLocked_;
}

void BookFile::unlock() {
    isLocked_ = false;
    file_->unlock();
}

BookState BookFile::state() const {
    const FileStamp stamp = stamp_();
    return {std::to_string(stamp.device) + ":" + std::to_string(stamp.node),
            std::to_string(writes_) + ":" + std::to_string(stamp.size) + ":" +
                std::to_string(stamp.changed)};
}

bool FileBooks::exists(const std::string& bookFile) const {
    return files_.exists(locations_.BookPath(bookFile));
}

std::unique_ptr<BookRecords> FileBooks::open(const std::string& bookFile) {
    const std::string path = locations_.BookPath(bookFile);
    return std::make_unique<BookFile>(
        files_.openOrCreate(path), WriteTrace(files_, path),
        [this, path] { return stampOf_(path); }, writes_);
}

}  // namespace velmora
