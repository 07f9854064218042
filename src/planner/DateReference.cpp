#include "planner/DateReference.h"

#include <algorithm>

#include "platform/Text.h"

namespace velmora {

BookedName BookedName::ofListLine(std::string_view line) {
    const std::size_t comma = line.find(',');
    if (comma == std::string_view::npos)
        return {{}, {}, std::string(line)};
    constexpr std::size_t kCommaAndBlank = 2;
    const auto first = line.substr(std::min(comma + kCommaAndBlank, line.size()));
    return {std::string(trimBlanks(line.substr(0, comma))), std::string(trimBlanks(first)), {}};
}

bool BookedName::fits(RecordView record, const CodePage& codePage) const {
    if (!last.empty())
        return codePage.equalIgnoringCase(record.text(Field::Last), last) &&
               codePage.equalIgnoringCase(record.text(Field::First), first);
    const std::string_view wanted = trimBlanks(company);
    return !wanted.empty() && record.isEmpty(Field::Last) &&
           codePage.equalIgnoringCase(record.text(Field::Company), wanted);
}

PhonebookRecord writeDateReference(EntryWriter& entries, const std::string& bookFile,
                                   const BookedName& name, std::string_view reference) {
    return entries.changeFirst(
        bookFile, [&](RecordView record) { return name.fits(record, entries.codePage()); },
        [&](PhonebookRecord& record) { record.assign(Field::DateReference, reference); });
}

std::string nameForAppointment(const PhonebookRecord& record) {
    std::string name(record.text(Field::Company));
    if (const auto last = record.text(Field::Last); !last.empty())
        name = std::string(record.text(Field::First)) + " " + std::string(last);
    if (const std::size_t place = name.find('&'); place != std::string::npos)
        name[place] = '+';
    return name;
}

}  // namespace velmora
