#include "phonebook/RecordState.h"

namespace velmora {
namespace {

constexpr const char* kDeleted = "DELETED";

}  // namespace

RecordState stateOf(RecordView record, const CodePage& codePage) {
    if (isTombstone(record, codePage))
        return RecordState::Tombstone;
    if (!record.isEmpty(Field::Last))
        return RecordState::Person;
    return record.isEmpty(Field::Company) ? RecordState::Blank : RecordState::CompanyOnly;
}

bool isTombstone(RecordView record, const CodePage& codePage) {
    if (codePage.upper(record.firstByte(Field::Last)) != kDeleted[0])
        return false;
    return codePage.equalIgnoringCase(record.text(Field::Last), kDeleted);
}

bool isNeverWritten(RecordView record) {
    return record.isAllNul(Field::Last) && record.isAllNul(Field::First);
}

PhonebookRecord tombstoneRecord() {
    PhonebookRecord record;
    record.assign(Field::Last, kDeleted);
    return record;
}

}  // namespace velmora
