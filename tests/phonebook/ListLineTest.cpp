#include "phonebook/ListLine.h"

#include <gtest/gtest.h>

#include "support/PhonebookFixture.h"

namespace velmora {
namespace {

using test::companyRecord;
using test::formRecord;
using test::personRecord;

std::optional<std::string> line(const PhonebookRecord& record) {
    return listLine(record, CodePage::western());
}

TEST(ListLine, ShowsNamesAsTheyAreStored) {
    EXPECT_EQ(line(personRecord("smith", "ANN")), "smith, ANN");
    EXPECT_EQ(line(personRecord(" Smith ", " Ann ")), "Smith, Ann");
    EXPECT_EQ(line(companyRecord("Acme & Co")), "Acme & Co");
    EXPECT_EQ(line(formRecord("Smith", "Ann", "Acme")), "Smith, Ann");
}

TEST(ListLine, APersonWithoutAFirstNameKeepsCommaAndBlank) {
    EXPECT_EQ(line(personRecord("Smith", "")), "Smith, ");
}

TEST(ListLine, TombstonesAndBlanksHaveNone) {
    EXPECT_EQ(line(personRecord("deleted", "Ann")), std::nullopt);
    EXPECT_EQ(line(PhonebookRecord()), std::nullopt);
    EXPECT_EQ(line(formRecord("", "Ann")), std::nullopt);
}

TEST(ListLine, SplitsAtTheFirstComma) {
    const ListLineParts person = splitListLine("Doe,  Jane, Jr ");
    EXPECT_TRUE(person.isPerson);
    EXPECT_EQ(person.last, "Doe");
    EXPECT_EQ(person.first, "Jane, Jr");
    const ListLineParts noFirst = splitListLine("Smith, ");
    EXPECT_TRUE(noFirst.isPerson);
    EXPECT_EQ(noFirst.last, "Smith");
    EXPECT_EQ(noFirst.first, "");
    const ListLineParts company = splitListLine("Acme");
    EXPECT_FALSE(company.isPerson);
    EXPECT_EQ(company.company, "Acme");
}

}  // namespace
}  // namespace velmora
