#pragma once

#include <chrono>
#include <cstdint>
#include <functional>
#include <memory>
#include <string>
#include <utility>

#include "core/DataLocations.h"
#include "phonebook/BookRecords.h"
#include "phonebook/WriteTrace.h"
#include "platform/FileStamp.h"
#include "platform/Files.h"

namespace velmora {

// A book as a flat file of records.
class BookFile final : public BookRecords {
  public:
    // `stamp` is that of the file whenever it is called. `writes` counts what this program has
    // written to any book; it must outlive this object. A write that somebody did not come to the
    // end of is finished here, where the lock can be had.
    BookFile(std::unique_ptr<RandomFile> file, WriteTrace trace, std::function<FileStamp()> stamp,
             std::uint64_t& writes);

    [[nodiscard]] RecordNumber count() const override;
    [[nodiscard]] std::size_t read(RecordNumber first, std::span<char> target) const override;
    void write(RecordNumber number, const PhonebookRecord& record) override;
    void writeAll(std::span<const PlacedRecord> records) override;
    [[nodiscard]] bool lock() override { return lock(kPatience); }
    void unlock() override;
    [[nodiscard]] BookState state() const override;

  private:
    // The window stands still meanwhile.
    static constexpr std::chrono::milliseconds kPatience{200};

    [[nodiscard]] bool lock(std::chrono::milliseconds patience);

    std::unique_ptr<RandomFile> file_;
    WriteTrace trace_;
    std::function<FileStamp()> stamp_;
    std::uint64_t& writes_;
    bool isLocked_ = false;
};

// The books as files in the folders that the settings name.
class FileBooks final : public Books {
  public:
    // Both must outlive this object, and this object the books that it opens.
    FileBooks(Files& files, const DataLocations& locations, StampOfFile stampOf)
        : files_(files), locations_(locations), stampOf_(std::move(stampOf)) {}

    [[nodiscard]] bool exists(const std::string& bookFile) const override;
    [[nodiscard]] std::unique_ptr<BookRecords> open(const std::string& bookFile) override;

  private:
    Files& files_;
    const DataLocations& locations_;
    StampOfFile stampOf_;
    std::uint64_t writes_ = 0;
};

}  // namespace velmora
