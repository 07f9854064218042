#include "phonebook/SelectedEntry.h"

#include <gtest/gtest.h>

#include "support/FakePhonebookPane.h"
#include "support/PhonebookFixture.h"

namespace velmora {
namespace {

using test::bytesOf;

class SelectedEntryTest : public ::testing::Test, protected test::PhonebookFixture {
  protected:
    std::string_view memoOf(const std::string& line) {
        pane.selected = line;
        record = entry.read();
        return record.text(Field::Memo);
    }

    test::FakePhonebookPane pane;
    SelectedEntry entry{state, store, pane};
    PhonebookRecord record;
};

TEST_F(SelectedEntryTest, IsTheFirstOfTheOpenBookThatTheLineNames) {
    yellow() = bytesOf(test::personRecord("Smith", "Ann", "yellow")) +
               bytesOf(test::personRecord("SMITH", "ANN", "second"));
    white() = bytesOf(test::personRecord("Smith", "Ann", "white"));
    EXPECT_EQ(memoOf("Smith, Ann"), "yellow");
    state.BookFile = kWhitePagesFile;
    EXPECT_EQ(memoOf("smith, ann"), "white");
}

TEST_F(SelectedEntryTest, ACompanyIsNoPersonWhoWorksThere) {
    yellow() = bytesOf(test::formRecord("Smith", "Ann", "Acme", "person")) +
               bytesOf(test::companyRecord("Acme", "company"));
    EXPECT_EQ(memoOf("Acme"), "company");
}

TEST_F(SelectedEntryTest, NoLineAndALineThatNobodyBearsGiveEmptyFields) {
    yellow() = bytesOf(test::formRecord("", "Ann", "", "nameless")) + test::tombstoneBytes();
    for (const char* line : {"", "   ", "Smith, Ann", "DELETED, "}) {
        EXPECT_EQ(memoOf(line), "");
        EXPECT_EQ(record.text(Field::Last), "");
    }
}

}  // namespace
}  // namespace velmora
