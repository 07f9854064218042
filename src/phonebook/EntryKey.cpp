#include "phonebook/EntryKey.h"

#include "phonebook/ListLine.h"

namespace velmora {

EntryKey::EntryKey(bool isPerson, std::string_view name, std::string_view first,
                   const CodePage& codePage)
    : codePage_(&codePage),
      isPerson_(isPerson),
      name_(codePage.upper(fieldText(name))),
      first_(codePage.upper(fieldText(first))) {}

EntryKey EntryKey::ofListLine(std::string_view line, const CodePage& codePage) {
    const ListLineParts parts = splitListLine(line);
    if (parts.isPerson)
        return {true, parts.last, parts.first, codePage};
    return {false, parts.company, {}, codePage};
}

EntryKey EntryKey::ofRecord(RecordView record, const CodePage& codePage) {
    if (!record.isEmpty(Field::Last))
        return {true, record.raw(Field::Last), record.raw(Field::First), codePage};
    return {false, record.raw(Field::Company), {}, codePage};
}

bool EntryKey::matches(RecordView record, CompanyRule rule) const {
    if (isPerson_)
        return fieldIs(record.raw(Field::Last), name_) &&
               fieldIs(record.raw(Field::First), first_) && !isNone();
    return fieldIs(record.raw(Field::Company), name_) && record.isEmpty(Field::Last) &&
           (rule == CompanyRule::NoLastName || record.isEmpty(Field::First)) && !isNone();
}

// The same as comparing the upper-cased fieldText(), without making it: nearly all records of a
// scan are told apart by the first byte.
bool EntryKey::fieldIs(std::string_view rawField, std::string_view upperName) const {
    std::size_t at = 0;
    while (at < rawField.size() && rawField[at] == ' ')
        ++at;
    if (upperName.size() > rawField.size() - at)
        return false;
    for (const char byte : upperName)
        if (codePage_->upper(rawField[at++]) != byte)
            return false;
    for (; at < rawField.size(); ++at)
        if (rawField[at] != ' ' && rawField[at] != '\0')
            return false;
    return true;
}

}  // namespace velmora
