#include "benches/BookGenerator.h"

#include <cstdio>
#include <fstream>
#include <span>
#include <stdexcept>

#include "phonebook/PhonebookRecord.h"

namespace velmora::bench {
namespace {

// A letter for the entry: the fullest one as often as wanted, else one of the others in turn.
char letterOf(std::size_t index, const BookShape& shape) {
    if (index * shape.underFullestLetter % shape.entries < shape.underFullestLetter)
        return kFullestLetter;
    const char letter = static_cast<char>('A' + index % 25);
    return letter >= kFullestLetter ? static_cast<char>(letter + 1) : letter;
}

std::string numbered(const char* format, std::size_t number) {
    char text[32];
    std::snprintf(text, sizeof text, format, static_cast<unsigned>(number % 100'000'000));
    return text;
}

PhonebookRecord entry(std::size_t index, const BookShape& shape) {
    PhonebookRecord record;
    for (std::size_t field = 0; field < kFieldCount; ++field)
        record.assign(static_cast<Field>(field), "");
    const std::string name =
        letterOf(index, shape) + numbered("ame%08u", index * 7919 % 100'000'007);
    if (index + 1 == shape.entries) {
        record.assign(Field::Last, kLastName);
        record.assign(Field::First, kLastFirstName);
    } else if (index % 10 == 9) {
        record.assign(Field::Company, name + " Works");
    } else {
        record.assign(Field::Last, name);
        record.assign(Field::First, numbered("First%u", index % 997));
        record.assign(Field::Company, "Northgate Instruments");
    }
    record.assign(Field::Address1, numbered("%u Kiln Street", index % 480 + 1));
    record.assign(Field::Phone, numbered("(312) 555-01%02u", index % 100));
    record.assign(Field::Memo, "Met at the Lakeside trade fair.");
    return record;
}

}  // namespace

void writeBook(const std::string& path, const BookShape& shape) {
    std::ofstream file(path, std::ios::binary | std::ios::trunc);
    for (std::size_t index = 0; index < shape.entries; ++index) {
        const PhonebookRecord record = entry(index, shape);
        file.write(record.bytes().data(), static_cast<std::streamsize>(record.bytes().size()));
    }
    file.close();
    if (!file)
        throw std::runtime_error("can not write " + path);
}

}  // namespace velmora::bench
