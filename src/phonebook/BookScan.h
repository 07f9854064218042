#pragma once

#include <memory>

#include "phonebook/BookRecords.h"
#include "phonebook/RecordView.h"

namespace velmora {

// Goes once over the records of a book from the first to the last, reading large blocks. A short
// last record is one too; what it lacks reads as NUL.
class BookScan {
  public:
    // `book` must outlive the scan. Nothing is read yet.
    explicit BookScan(const BookRecords& book, RecordNumber from = 1);

    // Steps to the next record; false at the end. Throws Failure.
    [[nodiscard]] bool next() {
        if (at_ == end_ && !fill())
            return false;
        current_ = at_;
        at_ += kRecordSize;
        ++number_;
        return true;
    }

    // The record that next() stepped to, valid until the next step.
    [[nodiscard]] RecordView record() const { return RecordView(current_); }
    [[nodiscard]] RecordNumber number() const { return number_; }

    // True when the record is the file's last one and cut short.
    [[nodiscard]] bool isCutShort() const { return lastIsShort_ && at_ == end_; }

  private:
    [[nodiscard]] bool fill();

    const BookRecords& book_;
    std::unique_ptr<char[]> block_;
    std::size_t blockSize_ = 0;
    const char* at_ = nullptr;
    const char* end_ = nullptr;
    const char* current_ = nullptr;
    RecordNumber number_;
    bool lastIsShort_ = false;
};

}  // namespace velmora
