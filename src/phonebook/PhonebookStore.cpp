#include "phonebook/PhonebookStore.h"

#include <utility>

#include "phonebook/Buckets.h"
#include "phonebook/RecordState.h"

namespace velmora {

OpenBook::OpenBook(std::unique_ptr<BookRecords> records, const CodePage& codePage)
    : records_(std::move(records)), codePage_(codePage) {}

bool OpenBook::ReadNext(PhonebookRecord& record) {
    if (!reading_)
        reading_.emplace(*records_, lastRead_ + 1);
    if (!reading_->next()) {
        record = PhonebookRecord();
        atEnd_ = true;
        return false;
    }
    record = PhonebookRecord(reading_->record().bytes());
    lastRead_ = reading_->number();
    atEnd_ = reading_->isCutShort();
    return true;
}

bool OpenBook::ReadAt(RecordNumber number, PhonebookRecord& record) const {
    std::array<char, kRecordSize> bytes;
    const std::size_t count = records_->read(number, bytes);
    record = PhonebookRecord(std::span<const char>(bytes).first(count));
    return count > 0;
}

void OpenBook::WriteAt(RecordNumber number, const PhonebookRecord& record) {
    reading_.reset();  // its block may hold what is replaced here
    records_->write(number, record);
}

void OpenBook::WriteAll(std::span<const PlacedRecord> records) {
    reading_.reset();
    records_->writeAll(records);
}

std::optional<RecordNumber> OpenBook::FindByListLine(std::string_view line,
                                                     CompanyRule rule) const {
    const EntryKey key = EntryKey::ofListLine(line, codePage_);
    if (key.isNone())
        return std::nullopt;
    BookScan records = scan();
    while (records.next())
        if (key.matches(records.record(), rule))
            return records.number();
    return std::nullopt;
}

void OpenBook::Tombstone(RecordNumber number) {
    WriteAt(number, tombstoneRecord());
}

Slot OpenBook::FindSlot(const PhonebookRecord& record, SlotMode mode,
                        std::optional<RecordNumber> asDeleted) const {
    const EntryKey key = EntryKey::ofRecord(record, codePage_);
    BookScan records = scan();
    while (records.next()) {
        if (records.number() == asDeleted)
            return {records.number(), false};
        if (key.matches(records.record()))
            return {records.number(), mode == SlotMode::Add};
        if (isTombstone(records.record(), codePage_) || isNeverWritten(records.record()))
            return {records.number(), false};
    }
    return {records.number() + 1, false};
}

RecordNumber OpenBook::recordCount() const {
    return records_->count();
}

OpenBook PhonebookStore::Open(const std::string& bookFile) const {
    return OpenBook(books_.open(bookFile), codePage_);
}

int PhonebookStore::BucketOf(const PhonebookRecord& record) const {
    return bucketOf(record, codePage_);
}

}  // namespace velmora
