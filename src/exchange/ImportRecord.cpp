#include "exchange/ImportRecord.h"

#include <string>

#include "platform/Text.h"

namespace velmora {
namespace {

struct Assignment {
    ImportField from;
    Field to;
};

// All but the line with the city.
constexpr std::array kAssignments{
    Assignment{ImportField::Title, Field::Title},
    Assignment{ImportField::First, Field::First},
    Assignment{ImportField::Last, Field::Last},
    Assignment{ImportField::Position, Field::Position},
    Assignment{ImportField::Company, Field::Company},
    Assignment{ImportField::Street, Field::Address1},
    Assignment{ImportField::AdditionalAddress, Field::Address3},
    Assignment{ImportField::Country, Field::Country},
    Assignment{ImportField::Home, Field::Phone},
    Assignment{ImportField::Work, Field::WorkPhone},
    Assignment{ImportField::Pager, Field::Pager},
    Assignment{ImportField::Fax, Field::Fax},
    Assignment{ImportField::Other, Field::OtherPhone},
    Assignment{ImportField::EMail, Field::EMail},
    Assignment{ImportField::Memo, Field::Memo},
    Assignment{ImportField::Salutation, Field::Salutation},
    Assignment{ImportField::Class, Field::Class},
    Assignment{ImportField::DateReference, Field::DateReference},
    Assignment{ImportField::Custom1, Field::Custom1},
    Assignment{ImportField::Custom2, Field::Custom2},
    Assignment{ImportField::Spouse, Field::Spouse},
    Assignment{ImportField::WebPage, Field::WebPage},
};

// An entry of which nothing is known.
PhonebookRecord blankRecord() {
    PhonebookRecord record;
    for (std::size_t i = 0; i < kFieldCount; ++i)
        record.assign(static_cast<Field>(i), "");
    return record;
}

}  // namespace

ImportRecord::ImportRecord(const ImportMapping& mapping, const ImportSource& source)
    : cityStateZipSeparate_(mapping.cityStateZipSeparate) {
    for (std::size_t field = 0; field < kImportFieldCount; ++field) {
        const std::string& choice = mapping.choices[field];
        if (choice.empty() || isNoColumn(choice))
            continue;
        for (std::size_t column = 0; column < source.columns().size(); ++column)
            if (!columns_[field] && source.choiceOf(column) == choice)
                columns_[field] = column;
    }
}

PhonebookRecord ImportRecord::of(const ImportRow& row) {
    static const PhonebookRecord kBlank = blankRecord();
    PhonebookRecord record = kBlank;
    for (const Assignment& assignment : kAssignments)
        if (const auto found = value(assignment.from, row))
            assign(record, assignment.to, *found);
    assign(record, Field::Address2, cityLine(row));
    return record;
}

std::optional<std::string_view> ImportRecord::value(ImportField field, const ImportRow& row) const {
    const auto column = columns_[static_cast<std::size_t>(field)];
    return column && *column < row.size() ? row[*column] : std::nullopt;
}

// A text that is empty stands for itself: only what the source lacks gets no comma.
std::string ImportRecord::cityLine(const ImportRow& row) const {
    if (!cityStateZipSeparate_)
        return std::string(value(ImportField::CityStateZip, row).value_or(""));
    std::string line(value(ImportField::City, row).value_or(""));
    if (const auto state = value(ImportField::State, row))
        line = std::string(trimBlanks(line)) + ", " + std::string(*state);
    if (const auto zip = value(ImportField::Zip, row))
        line = std::string(trimBlanks(line)) + " " + std::string(*zip);
    return std::string(trimBlanks(line));
}

void ImportRecord::assign(PhonebookRecord& record, Field field, std::string_view value) {
    if (value.size() > placeOf(field).width)
        ++cut_;
    record.assign(field, value);
}

}  // namespace velmora
