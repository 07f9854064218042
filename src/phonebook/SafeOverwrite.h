#pragma once

#include <cstdint>
#include <span>

#include "phonebook/PhonebookRecord.h"
#include "platform/Files.h"

namespace velmora {

// Writes a record at `offset` of a book that is under its lock. The system may cut a write in two
// where it crosses a page, when the program is killed or the power fails; the slot would then hold
// the beginning of one entry and the end of another. So where both sides of such a place change, a
// copy of the new record stands behind the last one for the time of the write: at any moment the
// book holds the whole old or the whole new record. Throws Failure; the book is then as it was.
void overwriteSafely(RandomFile& book, std::uint64_t offset,
                     std::span<const char, kRecordSize> record);

}  // namespace velmora
