#include "phonebook/EntryWriter.h"

#include <algorithm>
#include <optional>

#include "platform/Failure.h"

namespace velmora {
namespace {

constexpr const char* kOverwriteQuestion = "This entry exists. Would you like to overwrite it?";

// True when an entry other than number `own` has the name `key`.
bool isTaken(const OpenBook& book, const EntryKey& key, std::optional<RecordNumber> own) {
    BookScan records = book.scan();
    while (records.next())
        if (records.number() != own && key.matches(records.record()))
            return true;
    return false;
}

}  // namespace

bool EntryWriter::add(const std::string& bookFile, const PhonebookRecord& record) {
    for (bool agreed = false;; agreed = true) {
        {
            OpenBook book = store_.Open(bookFile);
            const OpenBook::Lock lock(book);
            const Slot slot = book.FindSlot(record, agreed ? SlotMode::Overwrite : SlotMode::Add);
            if (!slot.mustAsk) {
                book.WriteAt(slot.number, record);
                return true;
            }
        }
        if (!messages_.ask(kApplicationTitle, kOverwriteQuestion, Answer::No))
            return false;
    }
}

EntryWriter::ChangeResult EntryWriter::change(const std::string& bookFile, std::string_view line,
                                              const PhonebookRecord& record) {
    const CodePage& codePage = store_.codePage();
    const EntryKey newName = EntryKey::ofRecord(record, codePage);
    OpenBook book = store_.Open(bookFile);
    const OpenBook::Lock lock(book);
    const auto oldNumber = book.FindByListLine(line);
    const bool renamed = !(newName == EntryKey::ofListLine(line, codePage));
    if (renamed && isTaken(book, newName, oldNumber))
        return ChangeResult::NameTaken;
    const Slot slot = book.FindSlot(record, SlotMode::Overwrite, oldNumber);
    book.WriteAt(slot.number, record);
    if (oldNumber && *oldNumber != slot.number)
        book.Tombstone(*oldNumber);
    return ChangeResult::Written;
}

void EntryWriter::remove(const std::string& bookFile, std::string_view line) {
    OpenBook book = store_.Open(bookFile);
    const OpenBook::Lock lock(book);
    if (const auto number = book.FindByListLine(line, CompanyRule::NoNames))
        book.Tombstone(*number);
}

void EntryWriter::move(const std::string& fromBook, const std::string& toBook,
                       std::string_view line) {
    std::optional<RecordNumber> number;
    PhonebookRecord record;
    {
        const OpenBook book = store_.Open(fromBook);
        number = book.FindByListLine(line, CompanyRule::NoNames);
        if (!number || !book.ReadAt(*number, record))
            return;
    }
    if (add(toBook, record))
        removeIfUnchanged(fromBook, *number, record);
}

// The books are never locked both at once: two copies of the program that move in opposite
// directions would wait for each other.
void EntryWriter::removeIfUnchanged(const std::string& bookFile, RecordNumber number,
                                    const PhonebookRecord& record) {
    OpenBook book = store_.Open(bookFile);
    const OpenBook::Lock lock(book);
    PhonebookRecord now;
    const bool there = book.ReadAt(number, now);
    if (!there || !std::ranges::equal(now.bytes(), record.bytes()))
        throw Failure(
            "The entry was changed by another copy of the program while it was moved. It is in "
            "both books now.");
    book.Tombstone(number);
}

}  // namespace velmora
