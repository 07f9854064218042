#include "phonebook/ListLine.h"

#include "phonebook/RecordState.h"

namespace velmora {

std::optional<std::string> listLine(RecordView record, const CodePage& codePage) {
    switch (stateOf(record, codePage)) {
        case RecordState::Person: {
            std::string line(record.text(Field::Last));
            line += ", ";
            line += record.text(Field::First);
            return line;
        }
        case RecordState::CompanyOnly:
            return std::string(record.text(Field::Company));
        case RecordState::Tombstone:
        case RecordState::Blank:
            break;
    }
    return std::nullopt;
}

ListLineParts splitListLine(std::string_view line) {
    const std::size_t comma = line.find(',');
    if (comma == std::string_view::npos)
        return {false, {}, {}, trimBlanks(line)};
    return {true, trimBlanks(line.substr(0, comma)), trimBlanks(line.substr(comma + 1)), {}};
}

}  // namespace velmora
