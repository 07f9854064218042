#include "phonebook/Entry.h"

namespace velmora {

Entry entryOf(RecordView record) {
    Entry entry;
    for (std::size_t i = 0; i < kFieldCount; ++i)
        entry.fields[i] = record.text(static_cast<Field>(i));
    entry.justCompany = entry[Field::First].empty() && entry[Field::Last].empty();
    return entry;
}

PhonebookRecord recordOf(const Entry& entry) {
    PhonebookRecord record;
    for (std::size_t i = 0; i < kFieldCount; ++i)
        record.assign(static_cast<Field>(i), entry.fields[i]);
    if (entry.justCompany)
        for (const Field field : {Field::Title, Field::First, Field::Last})
            record.assign(field, "");
    return record;
}

}  // namespace velmora
