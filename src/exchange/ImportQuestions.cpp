#include "exchange/ImportQuestions.h"

namespace velmora {
namespace {

struct Question {
    int step;
    std::string_view text;
};

constexpr std::array<Question, kImportFieldCount> kQuestions{{
    {1, "Which field from the list below represents the title field, for example, Mr.?"},
    {2, "Which field from the list below represents the first name field, for example, Bill?"},
    {3, "Which field from the list below represents the last name field, for example, Smith?"},
    {4,
     "Which field from the list below represents the occupation status/title field, for example, "
     "CEO?"},
    {5,
     "Which field from the list below represents the company name field, for example, Bill Smith, "
     "Inc.?"},
    {6,
     "Which field from the list below represents the street address field, for example, One "
     "Beklumfig Way?"},
    {8, "Which field from the list below represents the city field, for example, Chicago?"},
    {8, "Which field from the list below represents the state field, for example, Illinois?"},
    {8, "Which field from the list below represents the zip code field, for example, 90210?"},
    {8,
     "Which field from the list below represents the city, state, and zipcode field, for example, "
     "Chicago, Illinois 90210?"},
    {9,
     "Which field from the list below represents the country field, for example, United States of "
     "America?"},
    {10,
     "Which field from the list below represents any additional address information, for example, "
     "Building Name?"},
    {11,
     "Which field from the list below represents the home/primary phone number field, for "
     "example, (432)123-4567?"},
    {12,
     "Which field from the list below represents the work phone number field, for example, "
     "1-800-555-5555?"},
    {13,
     "Which field from the list below represents the pager phone number field, for example, "
     "555-5555?"},
    {14,
     "Which field from the list below represents the fax number field, for example, "
     "(432)444-5454?"},
    {15,
     "Which field from the list below represents the other/alternate phone number field, for "
     "example, (718)222-5555?"},
    {16,
     "Which field from the list below represents the e-mail address field, for example, "
     "bsmith@company.com?"},
    {17,
     "Which field from the list below represents the note/memo field, for example, Spoke to him "
     "on the 21st.?"},
    {18,
     "Which field from the list below represents the salutation/greeting field, for example, Dear "
     "John,?"},
    {19, "Which field from the list below represents the class field, for example, Business?"},
    {20,
     "Which field from the list below represents the date reference field, for example, 8/8/95?"},
    {21,
     "Which field from the list below represents a custom field (#1), for example, Birthdates?"},
    {22,
     "Which field from the list below represents a custom field (#2), for example, Pricing "
     "Info?"},
    {23, "Which field from the list below represents the contact's Spouse's Name?"},
    {24, "Which field from the list below represents a the contact's web site/page?"},
}};

const Question& rowOf(ImportField field) {
    return kQuestions[static_cast<std::size_t>(field)];
}

}  // namespace

bool isNoColumn(std::string_view text) {
    constexpr std::string_view kUpper = "NONE";
    if (text.size() != kUpper.size())
        return false;
    for (std::size_t i = 0; i < text.size(); ++i)
        if ((text[i] & ~0x20) != kUpper[i])
            return false;
    return true;
}

std::string_view questionFor(ImportField field) {
    return rowOf(field).text;
}

std::optional<ImportField> fieldBehind(ImportField field, bool cityStateZipSeparate) {
    switch (field) {
        case ImportField::Street:
            return cityStateZipSeparate ? ImportField::City : ImportField::CityStateZip;
        case ImportField::Zip:
        case ImportField::CityStateZip:
            return ImportField::Country;
        case ImportField::WebPage:
            return std::nullopt;
        default:
            return static_cast<ImportField>(static_cast<int>(field) + 1);
    }
}

int importStepOf(ImportField field) {
    return rowOf(field).step;
}

}  // namespace velmora
