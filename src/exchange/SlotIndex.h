#pragma once

#include <optional>
#include <set>
#include <string>

#include "phonebook/BookRecords.h"
#include "phonebook/NameIndex.h"
#include "phonebook/RecordView.h"
#include "platform/CodePage.h"

namespace velmora {

// Where in a book an import puts an entry, without a look at the whole book for each. Going forward
// from the first record that is one that is free, or holds an entry of the same name; else it is
// the one behind the last.
//
// An entry of the same name has the same last name, which is not empty, and the same first name; or
// the same company, where neither has a last or a first name. Case does not count.
class SlotIndex {
  public:
    enum class Why { Free, SameName, BehindTheLast };
    struct Slot {
        RecordNumber number;
        Why why;
    };

    // `codePage` must outlive the index.
    explicit SlotIndex(const CodePage& codePage) : codePage_(codePage), names_(codePage) {}

    // Takes the records of a book that has so many, in their order.
    void begin(RecordNumber records);
    void add(RecordNumber number, RecordView record);

    // How many records the book has.
    [[nodiscard]] RecordNumber count() const { return count_; }

    [[nodiscard]] Slot slotFor(RecordView entry) const;

    // The entry was written into the slot that slotFor() gave for it.
    void wrote(const Slot& slot, RecordView entry);

    // Never written, or deleted.
    [[nodiscard]] bool isFree(RecordView record) const;

    // Whether a record that is not free holds an entry of the same name as `entry`.
    [[nodiscard]] bool haveSameName(RecordView record, RecordView entry) const;

  private:
    [[nodiscard]] static bool hasName(RecordView record);

    const CodePage& codePage_;
    NameIndex names_;  // of the records that are not free
    std::set<RecordNumber> free_;
    RecordNumber count_ = 0;
};

}  // namespace velmora
