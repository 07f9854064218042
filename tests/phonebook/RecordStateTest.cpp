#include "phonebook/RecordState.h"

#include <gtest/gtest.h>

#include <string>

#include "support/PhonebookFixture.h"

namespace velmora {
namespace {

using test::bytesOf;
using test::companyRecord;
using test::formRecord;
using test::personRecord;

RecordState state(const PhonebookRecord& record) {
    return stateOf(record, CodePage::western());
}

TEST(RecordState, LastAndCompanyDecide) {
    EXPECT_EQ(state(personRecord("Smith", "Ann")), RecordState::Person);
    EXPECT_EQ(state(formRecord("Smith", "", "Acme")), RecordState::Person);
    EXPECT_EQ(state(companyRecord("Acme")), RecordState::CompanyOnly);
    EXPECT_EQ(state(formRecord("", "Ann", "Acme")), RecordState::CompanyOnly);
    EXPECT_EQ(state(formRecord("", "Ann")), RecordState::Blank);
    EXPECT_EQ(state(formRecord("", "")), RecordState::Blank);
    EXPECT_EQ(state(PhonebookRecord()), RecordState::Blank);
}

TEST(RecordState, NulsAndBlanksInAnyMixAreEmpty) {
    std::string bytes = bytesOf(companyRecord("Acme"));
    bytes.replace(15, 4, std::string("\0 \0 ", 4));
    EXPECT_EQ(state(PhonebookRecord(bytes)), RecordState::CompanyOnly);
}

TEST(RecordState, DeletedInAnyCaseIsATombstone) {
    for (const char* last : {"DELETED", "deleted", "Deleted", "  dELETED"}) {
        SCOPED_TRACE(last);
        EXPECT_EQ(state(personRecord(last, "Ann")), RecordState::Tombstone);
        EXPECT_TRUE(isTombstone(personRecord(last, "Ann"), CodePage::western()));
    }
    EXPECT_EQ(state(personRecord("Deleted Jr", "Ann")), RecordState::Person);
    EXPECT_EQ(state(companyRecord("DELETED")), RecordState::CompanyOnly);
}

TEST(RecordState, ATombstoneKeepsNothingOfTheEntry) {
    EXPECT_EQ(bytesOf(tombstoneRecord()), test::tombstoneBytes());
}

TEST(RecordState, OnlyNulNamesAreASlotNeverWritten) {
    EXPECT_TRUE(isNeverWritten(PhonebookRecord()));
    EXPECT_FALSE(isNeverWritten(companyRecord("Acme")));
    EXPECT_FALSE(isNeverWritten(formRecord("", "")));
    PhonebookRecord dated;
    dated.assign(Field::DateReference, "01/02/26");
    EXPECT_TRUE(isNeverWritten(dated));
    PhonebookRecord first;
    first.assign(Field::First, "");
    EXPECT_FALSE(isNeverWritten(first));
}

}  // namespace
}  // namespace velmora
