#pragma once

#include <cstdint>
#include <functional>
#include <map>
#include <optional>
#include <string>
#include <vector>

#include "exchange/SlotIndex.h"
#include "phonebook/PhonebookStore.h"

namespace velmora {

// What became of the entries of an import.
struct FillCounts {
    std::uint64_t added = 0;
    std::uint64_t replaced = 0;   // entries of the same name
    std::uint64_t unwritten = 0;  // could not be written
    std::string whyUnwritten;     // the first time, in UTF-8
};

// Puts the entries of an import into a book, some at a time: those share one lock and are handed to
// the disk together. What others do to the book in between is seen, and nothing that they wrote is
// lost.
class BookFiller {
  public:
    // `store` must outlive the filler. `letEventsRun` is called while the book is read or waited
    // for; false from it gives up what is waiting.
    BookFiller(const PhonebookStore& store, std::string bookFile,
               std::function<bool()> letEventsRun);

    // Takes an entry, which waits for write().
    void add(const PhonebookRecord& entry) { waiting_.push_back(entry); }
    [[nodiscard]] std::size_t waiting() const { return waiting_.size(); }

    // Writes what waits, in its order. An entry that can not be written is counted and passed over.
    // False when nothing of it could be written, or it was given up.
    bool write();

    [[nodiscard]] const FillCounts& counts() const { return counts_; }

    // Of the entry that was written last; 0 before.
    [[nodiscard]] RecordNumber lastNumber() const { return lastNumber_; }

    // True when the book's file was taken away or replaced by another in between: what had been
    // written before that may not be in it.
    [[nodiscard]] bool bookWasReplaced() const { return bookWasReplaced_; }

    // True while another copy of the program keeps the book locked.
    [[nodiscard]] bool isHeldUp() const { return heldUp_; }

  private:
    enum class Try { Done, LookAgain, Locked };
    struct Change {
        PhonebookRecord record;
        std::uint64_t added = 0;
        std::uint64_t replaced = 0;
    };
    using Changes = std::map<RecordNumber, Change>;

    [[nodiscard]] bool look();
    [[nodiscard]] Try tryToWrite(bool lookUnderLock);
    void readInto(SlotIndex& index, OpenBook& book) const;
    [[nodiscard]] std::optional<Changes> place(OpenBook& book);
    [[nodiscard]] bool isAsIndexed(const OpenBook& book, const Changes& changes,
                                   const SlotIndex::Slot& slot, RecordView entry) const;
    void putDown(OpenBook& book, const Changes& changes);
    void putDownSingly(OpenBook& book, const Changes& changes);
    void count(RecordNumber number, const Change& change);
    void countUnwritten(std::uint64_t entries, const std::string& why);

    const PhonebookStore& store_;
    std::string bookFile_;
    std::function<bool()> letEventsRun_;
    SlotIndex index_;
    std::optional<BookState> known_;  // the state of the book that the index has
    std::vector<PhonebookRecord> waiting_;
    FillCounts counts_;
    RecordNumber lastNumber_ = 0;
    std::uint64_t written_ = 0;  // entries in the last write()
    bool heldUp_ = false;
    bool bookWasReplaced_ = false;
};

}  // namespace velmora
