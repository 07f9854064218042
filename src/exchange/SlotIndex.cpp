#include "exchange/SlotIndex.h"

#include <algorithm>

#include "phonebook/RecordState.h"

namespace velmora {

void SlotIndex::begin(RecordNumber records) {
    names_.clear();
    names_.reserve(records);
    free_.clear();
    count_ = 0;
}

void SlotIndex::add(RecordNumber number, RecordView record) {
    count_ = std::max(count_, number);
    if (isFree(record))
        free_.insert(free_.end(), number);
    else if (hasName(record))
        names_.add(number, record);
}

bool SlotIndex::isFree(RecordView record) const {
    return isNeverWritten(record) || isTombstone(record, codePage_);
}

// An entry with a first name but no last name is like no other.
bool SlotIndex::hasName(RecordView record) {
    return !record.isEmpty(Field::Last) ||
           (record.isEmpty(Field::First) && !record.isEmpty(Field::Company));
}

bool SlotIndex::haveSameName(RecordView record, RecordView entry) const {
    const auto same = [&](Field field) {
        return codePage_.equalIgnoringCase(record.text(field), entry.text(field));
    };
    if (!hasName(entry) || !same(Field::Last) || !same(Field::First))
        return false;
    return !entry.isEmpty(Field::Last) || same(Field::Company);
}

SlotIndex::Slot SlotIndex::slotFor(RecordView entry) const {
    Slot slot{count_ + 1, Why::BehindTheLast};
    if (!free_.empty())
        slot = {*free_.begin(), Why::Free};
    if (!hasName(entry))
        return slot;
    const auto& same = names_.of(entry);
    if (!same.empty() && same.front() < slot.number)
        slot = {same.front(), Why::SameName};
    return slot;
}

void SlotIndex::wrote(const Slot& slot, RecordView entry) {
    if (slot.why == Why::SameName)
        return;
    free_.erase(slot.number);
    add(slot.number, entry);
}

}  // namespace velmora
