#include "phonebook/EntryWriter.h"

#include <algorithm>

#include "phonebook/RecordState.h"
#include "platform/Failure.h"

namespace velmora {
namespace {

constexpr const char* kOverwriteQuestion = "This entry exists. Would you like to overwrite it?";

bool areEqual(const PhonebookRecord& a, const PhonebookRecord& b) {
    return std::ranges::equal(a.bytes(), b.bytes());
}

// True when an entry other than number `own` has the name `key`.
bool isTaken(const OpenBook& book, const EntryKey& key, std::optional<RecordNumber> own) {
    BookScan records = book.scan();
    while (records.next())
        if (records.number() != own && key.matches(records.record()))
            return true;
    return false;
}

// What the user saw is brought up to date; true when that was not yet so. An entry that is gone
// needs no second look.
bool isNews(const OpenBook& book, std::optional<RecordNumber> number,
            std::optional<PhonebookRecord>& seen) {
    PhonebookRecord now;
    if (!number || !book.ReadAt(*number, now) || (seen && areEqual(*seen, now)))
        return false;
    seen = now;
    return true;
}

}  // namespace

EntryWriter::Write EntryWriter::write(OpenBook& book, RecordNumber number,
                                      const PhonebookRecord& record) {
    Write write{number, {}, record};
    if (!book.ReadAt(number, write.before))
        write.before = tombstoneRecord();
    book.WriteAt(number, record);
    return write;
}

// Leaves a slot alone that another copy of the program has taken meanwhile.
void EntryWriter::takeBack(OpenBook& book, const Write& write) {
    PhonebookRecord now;
    if (book.ReadAt(write.number, now) && areEqual(now, write.record))
        book.WriteAt(write.number, write.before);
}

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
                                              const PhonebookRecord& record,
                                              std::optional<PhonebookRecord>* seen) {
    const EntryKey newName = EntryKey::ofRecord(record, codePage());
    OpenBook book = store_.Open(bookFile);
    const OpenBook::Lock lock(book);
    const auto oldNumber = book.FindByListLine(line);
    const bool renamed = !(newName == EntryKey::ofListLine(line, codePage()));
    if (renamed && isTaken(book, newName, oldNumber))
        return ChangeResult::NameTaken;
    if (seen && isNews(book, oldNumber, *seen))
        return ChangeResult::ChangedMeanwhile;
    const Slot slot = book.FindSlot(record, SlotMode::Overwrite, oldNumber);
    const Write written = write(book, slot.number, record);
    if (!oldNumber || *oldNumber == slot.number)
        return ChangeResult::Written;
    try {
        book.Tombstone(*oldNumber);
    } catch (const Failure&) {
        ignoringErrors([&] { takeBack(book, written); });
        throw;
    }
    return ChangeResult::Written;
}

PhonebookRecord EntryWriter::changeFirst(
    const std::string& bookFile, const std::function<bool(RecordView record)>& fits,
    const std::function<void(PhonebookRecord& record)>& change) {
    OpenBook book = store_.Open(bookFile);
    const OpenBook::Lock lock(book);
    PhonebookRecord record;
    std::optional<RecordNumber> number;
    for (BookScan scan = book.scan(); !number && scan.next();)
        if (fits(scan.record())) {
            record = PhonebookRecord(scan.record().bytes());
            number = scan.number();
        }
    change(record);
    book.WriteAt(number.value_or(book.recordCount() + 1), record);
    return record;
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
        if (store_.Open(toBook).state().book == book.state().book)
            throw Failure(
                "White Pages and Yellow Pages are one and the same file here. The entry stays "
                "where it is.");
        number = book.FindByListLine(line, CompanyRule::NoNames);
        if (!number || !book.ReadAt(*number, record))
            return;
    }
    SlotMode mode = SlotMode::Add;
    while (!moveUnlessMustAsk(fromBook, toBook, {*number, record}, mode)) {
        if (!messages_.ask(kApplicationTitle, kOverwriteQuestion, Answer::No))
            return;
        mode = SlotMode::Overwrite;
    }
}

bool EntryWriter::moveUnlessMustAsk(const std::string& fromBook, const std::string& toBook,
                                    const Seen& entry, SlotMode mode) {
    OpenBook from = store_.Open(fromBook);
    OpenBook to = store_.Open(toBook);
    // In one order in all copies of the program, so that no two wait for each other; and until the
    // end, so that what was begun can be taken back.
    const bool fromIsFirst = fromBook < toBook;
    const OpenBook::Lock first(fromIsFirst ? from : to);
    const OpenBook::Lock second(fromIsFirst ? to : from);
    PhonebookRecord now;
    if (!from.ReadAt(entry.number, now) || !areEqual(now, entry.record))
        throw Failure(
            "The entry was changed by another copy of the program while it was moved. It stays "
            "where it was.");
    const Slot slot = to.FindSlot(entry.record, mode);
    if (slot.mustAsk)
        return false;
    const Write written = write(to, slot.number, entry.record);
    try {
        from.Tombstone(entry.number);
    } catch (const Failure&) {
        ignoringErrors([&] { takeBack(to, written); });
        throw;
    }
    return true;
}

}  // namespace velmora
