#pragma once

#include "phonebook/RecordView.h"
#include "platform/CodePage.h"

namespace velmora {

// What a slot of a book holds. Only Last and Company decide.
enum class RecordState {
    Person,       // has a last name
    CompanyOnly,  // has no last name but a company
    Tombstone,    // deleted: the last name is "DELETED" in any case
    Blank,        // neither; never shown
};

[[nodiscard]] RecordState stateOf(RecordView record, const CodePage& codePage);

[[nodiscard]] bool isTombstone(RecordView record, const CodePage& codePage);

// True for a slot that was never written: Last and First are all NUL, whatever else is there.
// Blanks do not count, or every company would be taken for free.
[[nodiscard]] bool isNeverWritten(RecordView record);

// What a deleted entry leaves behind: Last is "DELETED", all else NUL.
[[nodiscard]] PhonebookRecord tombstoneRecord();

}  // namespace velmora
