#include "phonebook/HitLine.h"

#include <algorithm>
#include <array>
#include <utility>

#include "phonebook/ListLine.h"
#include "platform/Text.h"

namespace velmora {
namespace {

constexpr std::size_t kBeforeEntry = 3;  // the book's letter and ": "
constexpr std::string_view kMatch = "\tMatch: ";

constexpr std::array<std::string_view, 10> kNamelessLines{
    "W:", "Y:", "W: ", "Y: ", "W:  ", "Y:  ", "W:\t", "Y:\t", "W: \t", "Y: \t"};

bool isNameless(std::string_view line) {
    constexpr std::size_t kLongest = 4;
    const bool longer = line.size() > kLongest && line.front() != ' ' && line[kLongest] != ' ';
    if (longer)
        return false;  // as nearly all lines are, of which the blanks at the end need no look
    const std::size_t shown = trimBlanks(line).size();
    return shown == 3 || shown == 2 ||
           std::find(kNamelessLines.begin(), kNamelessLines.end(), line) != kNamelessLines.end();
}

// The bytes of a field but for the NULs behind them, which no line may hold.
std::string_view withoutNuls(std::string_view raw) {
    return raw.substr(0, raw.find_last_not_of('\0') + 1);
}

}  // namespace

std::string entryLineOf(std::string_view lineWithBook) {
    if (lineWithBook.size() < kBeforeEntry)
        return {};
    const std::string_view rest = lineWithBook.substr(kBeforeEntry);
    return std::string(rest.substr(0, rest.find(kMatch)));
}

std::string lineWithBook(char bookLetter, std::string_view entryLine) {
    std::string line;
    line.reserve(kBeforeEntry + entryLine.size());
    line += bookLetter;
    line += ": ";
    line += entryLine;
    return line;
}

HitWriter::HitWriter(CustomCaptions captions, const CodePage& codePage)
    : captions_(std::move(captions)), codePage_(codePage) {}

void HitWriter::addLines(char bookLetter, RecordView record, FieldSet found,
                         std::vector<std::string>& lines) const {
    const auto entry = listLine(record, codePage_);
    if (!entry)
        return;
    const bool company = record.isEmpty(Field::Last);
    std::string beginning = lineWithBook(bookLetter, *entry);
    beginning += kMatch;
    for (const SearchField& field : kSearchFields) {
        if (!found.has(field.field))
            continue;
        const std::string_view match = matchText(field, company);
        const std::string_view value = withoutNuls(record.raw(field.field));
        std::string& line = lines.emplace_back();
        line.reserve(beginning.size() + match.size() + 1 + value.size());
        line += beginning;
        line += match;
        line += '=';
        line += value;
    }
}

std::string_view HitWriter::matchText(const SearchField& field, bool company) const {
    switch (field.field) {
        case Field::Custom1:
            return captions_.custom1;
        case Field::Custom2:
            return captions_.custom2;
        default:
            return company ? field.companyMatch : field.match;
    }
}

void Filterit(std::vector<std::string>& lines) {
    std::erase_if(lines, [](const std::string& line) { return isNameless(line); });
}

}  // namespace velmora
