#include "phonebook/EntryKey.h"

#include <gtest/gtest.h>

#include <string>

#include "support/PhonebookFixture.h"

namespace velmora {
namespace {

using namespace std::string_literals;
using test::bytesOf;
using test::companyRecord;
using test::formRecord;
using test::personRecord;

EntryKey ofLine(std::string_view line) {
    return EntryKey::ofListLine(line, CodePage::western());
}

EntryKey ofRecord(const PhonebookRecord& record) {
    return EntryKey::ofRecord(record, CodePage::western());
}

TEST(EntryKey, CaseDoesNotCount) {
    EXPECT_TRUE(ofLine("Doe, Jane").matches(personRecord("doe", "JANE")));
    EXPECT_TRUE(ofLine("\xC9mile, Zo\xEB").matches(personRecord("\xE9MILE", "ZO\xCB")));
    EXPECT_FALSE(ofLine("Doe, Jane").matches(personRecord("Doe", "Janet")));
    EXPECT_FALSE(ofLine("Doe, Jane").matches(personRecord("Doer", "Jane")));
    EXPECT_FALSE(ofLine("Doe, Jane").matches(personRecord("Do", "Jane")));
}

TEST(EntryKey, PaddingOfBlanksAndNulsDoesNotCount) {
    std::string bytes = bytesOf(personRecord("Doe", "Jane"));
    bytes.replace(0, 15, "  Jane\0\0 \0\0\0   "s);
    bytes.replace(15, 20, "Doe"s + std::string(17, '\0'));
    EXPECT_TRUE(ofLine("Doe, Jane").matches(PhonebookRecord(bytes)));
}

TEST(EntryKey, ACompanyNeverHitsAPersonWhoWorksThere) {
    EXPECT_TRUE(ofLine("acme").matches(companyRecord("Acme")));
    EXPECT_FALSE(ofLine("Acme").matches(formRecord("Smith", "Ann", "Acme")));
    EXPECT_TRUE(ofLine("Acme").matches(formRecord("", "Ann", "Acme")));
    EXPECT_FALSE(ofLine("Acme").matches(formRecord("", "Ann", "Acme"), CompanyRule::NoNames));
    EXPECT_TRUE(ofLine("Acme").matches(companyRecord("Acme"), CompanyRule::NoNames));
}

TEST(EntryKey, NoNameMatchesNothing) {
    EXPECT_TRUE(ofLine("").isNone());
    EXPECT_TRUE(ofLine("  ").isNone());
    EXPECT_TRUE(ofLine(" , ").isNone());
    EXPECT_FALSE(ofLine("").matches(PhonebookRecord()));
    EXPECT_FALSE(ofLine(",").matches(formRecord("", "")));
    EXPECT_FALSE(ofRecord(formRecord("", "")).matches(formRecord("", "")));
    EXPECT_FALSE(ofRecord(formRecord("", "Ann")).matches(formRecord("", "Ann")));
}

TEST(EntryKey, ARecordMatchesItsOwnKeyWithTheValueCutAtTheField) {
    const PhonebookRecord cut = personRecord("123456789012345678901", "Ann");
    EXPECT_TRUE(ofRecord(cut).matches(personRecord("12345678901234567890", "ann")));
    EXPECT_TRUE(ofLine("12345678901234567890, Ann").matches(cut));
    EXPECT_FALSE(ofLine("123456789012345678901, Ann").matches(cut));
}

TEST(EntryKey, NamesWithACommaFromElsewhereMatchNothing) {
    EXPECT_FALSE(ofLine("Acme, Inc.").matches(companyRecord("Acme, Inc.")));
    EXPECT_FALSE(ofLine("Smith, Jr, Ann").matches(personRecord("Smith, Jr", "Ann")));
}

TEST(EntryKey, KeysAreEqualWhenTheNamesAre) {
    EXPECT_EQ(ofLine("smith, ann"), ofRecord(personRecord("Smith", "Ann")));
    EXPECT_FALSE(ofLine("Smith, Ann") == ofLine("Smith"));
    EXPECT_FALSE(ofLine("Smith, Ann") == ofLine("Smith, Bob"));
}

}  // namespace
}  // namespace velmora
