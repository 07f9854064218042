#include "phonebook/HitLine.h"

#include <gmock/gmock.h>

#include <algorithm>
#include <string>
#include <vector>

#include "support/PhonebookFixture.h"

namespace velmora {
namespace {

using ::testing::ElementsAre;
using ::testing::ElementsAreArray;
using ::testing::IsEmpty;

constexpr const char* kFieldText = "v";

PhonebookRecord recordWithAllFields(bool company) {
    PhonebookRecord record;
    for (std::size_t i = 0; i < kFieldCount; ++i)
        record.assign(static_cast<Field>(i), kFieldText);
    if (company)
        record.assign(Field::Last, "");
    return record;
}

std::vector<std::string> linesOf(const PhonebookRecord& record, FieldSet found,
                                 char book = kYellowLetter) {
    std::vector<std::string> lines;
    HitWriter({"Account", "Remarks"}, CodePage::western()).addLines(book, record, found, lines);
    return lines;
}

std::string value(std::size_t width) {
    return kFieldText + std::string(width - 1, ' ');
}

TEST(HitWriter, NamesTheFieldsOfAPersonInTheirFixedOrder) {
    const std::string name = "Y: v, v\tMatch: ";
    EXPECT_THAT(
        linesOf(recordWithAllFields(false), FieldSet::all()),
        ElementsAre(name + "Title=" + value(10), name + "First Name=" + value(15),
                    name + "Last Name=" + value(20), name + "Job Title=" + value(60),
                    name + "Company=" + value(50), name + "Address 1=" + value(75),
                    name + "Address 2=" + value(75), name + "Address 3=" + value(75),
                    name + "Address 4=" + value(75), name + "Address 5=" + value(30),
                    name + "Country=" + value(50), name + "Salutation=" + value(30),
                    name + "Home Phone=" + value(20), name + "Work Phone=" + value(20),
                    name + "Fax=" + value(20), name + "Pager=" + value(25),
                    name + "Other Phone=" + value(20), name + "E-Mail=" + value(100),
                    name + "WebPage=" + value(200), name + "Note=" + value(250),
                    name + "Class=" + value(25), name + "Date Reference=" + value(20),
                    name + "Account=" + value(25), name + "Remarks=" + value(25),
                    name + "Spouse Name=" + value(25), name + "File Attachment=" + value(255)));
}

TEST(HitWriter, SpellsOneFieldOfACompanyOtherwise) {
    std::vector<std::string> person = linesOf(recordWithAllFields(false), FieldSet::all());
    for (std::string& line : person)
        line.replace(0, 7, "Y: v");
    person[2] = "Y: v\tMatch: Last Name=" + std::string(20, ' ');
    person[8] = "Y: v\tMatch: Address4=" + value(75);
    EXPECT_THAT(linesOf(recordWithAllFields(true), FieldSet::all()), ElementsAreArray(person));
}

TEST(HitWriter, KeepsTheBlanksBehindAValueAndDropsItsNuls) {
    FieldSet found;
    found.add(Field::Last);
    found.add(Field::Memo);
    const PhonebookRecord record(
        test::bytesOf(test::personRecord("Doe", "Jo", "note")).substr(0, 1000));
    EXPECT_THAT(linesOf(record, found, kWhiteLetter),
                ElementsAre("W: Doe, Jo\tMatch: Last Name=Doe" + std::string(17, ' '),
                            "W: Doe, Jo\tMatch: Note=note "));
}

TEST(HitWriter, WritesNothingForADeletedOrNamelessRecord) {
    EXPECT_THAT(linesOf(test::personRecord("deleted", "Jo"), FieldSet::all()), IsEmpty());
    EXPECT_THAT(linesOf(test::personRecord("", "Jo", "memo"), FieldSet::all()), IsEmpty());
}

TEST(Filterit, RemovesTheLinesOfRecordsWithoutAName) {
    std::vector<std::string> lines{
        "W:",   "Y:",    "W: ",   "Y: ",    "W:  ", "Y:  ",        "W:\t",
        "Y:\t", "W: \t", "Y: \t", "  ab  ", "abc",  "Y: Smith, Jo"};
    Filterit(lines);
    EXPECT_THAT(lines, ElementsAre("Y: Smith, Jo"));
}

TEST(Filterit, KeepsAllOtherLinesInTheirOrder) {
    const std::vector<std::string> kept{
        "a", "", "W: X", "Y:   \t", "W: A, \tMatch: Title=", "Y: B"};
    std::vector<std::string> lines = kept;
    Filterit(lines);
    EXPECT_THAT(lines, ElementsAreArray(kept));
}

}  // namespace
}  // namespace velmora
