#include "exchange/BookFiller.h"

#include <utility>

#include "platform/StorageFailure.h"

namespace velmora {
namespace {

// Events run after so many records of a book that is read.
constexpr RecordNumber kRecordsPerTurn = 512;

// A book that others go on changing while it is read is read under its lock then.
constexpr int kLooksWithoutLock = 3;

}  // namespace

BookFiller::BookFiller(const PhonebookStore& store, std::string bookFile,
                       std::function<bool()> letEventsRun)
    : store_(store),
      bookFile_(std::move(bookFile)),
      letEventsRun_(std::move(letEventsRun)),
      index_(store.codePage()) {}

bool BookFiller::write() {
    written_ = 0;
    if (waiting_.empty())
        return true;
    int looks = 0;
    try {
        while (true) {
            if (!known_ && looks < kLooksWithoutLock && !look())
                return false;
            const Try outcome = tryToWrite(looks >= kLooksWithoutLock);
            heldUp_ = outcome == Try::Locked;
            if (outcome == Try::Done)
                break;
            if (outcome == Try::LookAgain)
                ++looks;
            if (!letEventsRun_())
                return false;
        }
    } catch (const Failure& failure) {
        known_.reset();
        countUnwritten(waiting_.size(), failure.what());
    }
    waiting_.clear();
    return written_ > 0;
}

// Reads the book as it is now, without its lock. False when the import is given up.
bool BookFiller::look() {
    const OpenBook book = store_.Open(bookFile_);
    const BookState state = book.state();
    index_.begin(book.recordCount());
    BookScan records = book.scan();
    while (records.next()) {
        index_.add(records.number(), records.record());
        if (records.number() % kRecordsPerTurn == 0 && !letEventsRun_())
            return false;
    }
    known_ = state;
    return true;
}

void BookFiller::readInto(SlotIndex& index, OpenBook& book) const {
    index.begin(book.recordCount());
    BookScan records = book.scan();
    while (records.next())
        index.add(records.number(), records.record());
}

BookFiller::Try BookFiller::tryToWrite(bool lookUnderLock) {
    OpenBook book = store_.Open(bookFile_);
    std::optional<OpenBook::Lock> lock;
    try {
        lock.emplace(book);
    } catch (const StorageFailure& failure) {
        if (failure.obstacle() == Obstacle::InUse)
            return Try::Locked;
        throw;
    }
    if (!known_ || book.state() != *known_ || book.recordCount() != index_.count()) {
        bookWasReplaced_ |=
            known_ && counts_.added + counts_.replaced > 0 && book.state().book != known_->book;
        known_.reset();
        if (!lookUnderLock)
            return Try::LookAgain;
        readInto(index_, book);
    }
    auto changes = place(book);
    if (!changes) {
        // What another copy wrote within the same tick of the file system's clock.
        readInto(index_, book);
        changes = place(book);
        if (!changes)
            throw Failure("The phonebook changes while it is locked.");
    }
    putDown(book, *changes);
    known_ = book.state();
    return Try::Done;
}

// Finds the slot of each entry that waits. Nothing when one of them is not what the index says.
std::optional<BookFiller::Changes> BookFiller::place(OpenBook& book) {
    Changes changes;
    for (const PhonebookRecord& entry : waiting_) {
        const SlotIndex::Slot slot = index_.slotFor(entry);
        if (!isAsIndexed(book, changes, slot, entry))
            return std::nullopt;
        Change& change = changes[slot.number];
        change.record = entry;
        ++(slot.why == SlotIndex::Why::SameName ? change.replaced : change.added);
        index_.wrote(slot, entry);
    }
    return changes;
}

bool BookFiller::isAsIndexed(const OpenBook& book, const Changes& changes,
                             const SlotIndex::Slot& slot, RecordView entry) const {
    if (slot.why == SlotIndex::Why::BehindTheLast)
        return true;  // their number was compared
    PhonebookRecord record;
    if (const auto changed = changes.find(slot.number); changed != changes.end())
        record = changed->second.record;
    else if (!book.ReadAt(slot.number, record))
        return false;
    const bool isFree = index_.isFree(record);
    return slot.why == SlotIndex::Why::Free ? isFree
                                            : !isFree && index_.haveSameName(record, entry);
}

void BookFiller::putDown(OpenBook& book, const Changes& changes) {
    std::vector<PlacedRecord> placed;
    placed.reserve(changes.size());
    for (const auto& [number, change] : changes)
        placed.push_back({number, change.record});
    try {
        book.WriteAll(placed);
    } catch (const Failure&) {
        return putDownSingly(book, changes);
    }
    for (const auto& [number, change] : changes)
        count(number, change);
}

// As many of them as can be written. Behind one that could not be put at the end there is no gap.
void BookFiller::putDownSingly(OpenBook& book, const Changes& changes) {
    bool endReached = false;
    std::string whyNotAtTheEnd;
    for (const auto& [number, change] : changes) {
        const bool atTheEnd = number > book.recordCount();
        try {
            if (atTheEnd && endReached)
                throw Failure(whyNotAtTheEnd);
            book.WriteAt(number, change.record);
            count(number, change);
        } catch (const Failure& failure) {
            if (atTheEnd) {
                endReached = true;
                whyNotAtTheEnd = failure.what();
            }
            countUnwritten(change.added + change.replaced, failure.what());
        }
    }
    // The index has them all.
    index_.begin(0);
    readInto(index_, book);
}

void BookFiller::count(RecordNumber number, const Change& change) {
    counts_.added += change.added;
    counts_.replaced += change.replaced;
    written_ += change.added + change.replaced;
    lastNumber_ = number;
}

void BookFiller::countUnwritten(std::uint64_t entries, const std::string& why) {
    if (counts_.unwritten == 0)
        counts_.whyUnwritten = why;
    counts_.unwritten += entries;
}

}  // namespace velmora
