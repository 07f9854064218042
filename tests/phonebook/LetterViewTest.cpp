#include "phonebook/LetterView.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "platform/Failure.h"
#include "support/FakePhonebookPane.h"
#include "support/PhonebookFixture.h"

namespace velmora {
namespace {

using test::bytesOf;
using test::companyRecord;
using test::formRecord;
using test::personRecord;
using Lines = std::vector<std::string>;

class LetterViewTest : public testing::Test, protected test::PhonebookFixture {
  protected:
    test::FakePhonebookPane pane;
    LetterView view{state, store, pane};
};

TEST_F(LetterViewTest, ALetterShowsItsEntriesInFileOrderAsTheyAreStored) {
    yellow() = bytesOf(personRecord("smith", "ANN")) + bytesOf(companyRecord("Acme")) +
               bytesOf(companyRecord("Sun & Sons")) + test::tombstoneBytes() +
               bytesOf(formRecord("", "")) + bytesOf(personRecord(" Sand", ""));
    view.LetterClick(18);
    EXPECT_EQ(pane.lines, (Lines{"smith, ANN", "Sun & Sons", "Sand, "}));
    EXPECT_EQ(state.BucketName, "SName");
    EXPECT_EQ(state.BucketCountKey, "SNu");
    EXPECT_EQ(pane.letter, 18);
    EXPECT_EQ(files.openFiles(), 0);
}

TEST_F(LetterViewTest, NamesAndCompaniesShowUnderTheirTabs) {
    yellow() = bytesOf(personRecord("O'Neil", "Sue")) + bytesOf(companyRecord("24 Hour Plumbing")) +
               bytesOf(personRecord("\xC9mile", "Zo")) + bytesOf(companyRecord("3M"));
    view.LetterClick(14);
    EXPECT_EQ(pane.lines, Lines{"O'Neil, Sue"});
    view.LetterClick(26);
    EXPECT_EQ(pane.lines, (Lines{"24 Hour Plumbing", "\xC9mile, Zo", "3M"}));
    EXPECT_EQ(state.BucketName, "#");
    EXPECT_EQ(state.BucketCountKey, "SyNu");
}

TEST_F(LetterViewTest, TombstonesAndBlankRecordsShowUnderNoTab) {
    yellow() = test::tombstoneBytes() + bytesOf(PhonebookRecord()) + bytesOf(formRecord("", "")) +
               bytesOf(formRecord("", "First")) + bytesOf(personRecord("deleted", "Ann")) +
               bytesOf(formRecord("DELETED", "", "Acme"));
    for (int index = 0; index < 27; ++index) {
        view.LetterClick(index);
        EXPECT_EQ(pane.lines, Lines{}) << index;
    }
}

TEST_F(LetterViewTest, AnEmptyOrMissingBookGivesAnEmptyList) {
    view.LetterClick(0);
    EXPECT_EQ(pane.lines, Lines{});
    EXPECT_EQ(yellow(), "");
    pane.selected = "";
    view.ListClick();
    EXPECT_EQ(pane.details, "");
}

TEST_F(LetterViewTest, ALetterClickEmptiesDetailsThenTheListThenLoads) {
    view.LetterClick(3);
    EXPECT_EQ(pane.takeCalls(), (Lines{"showDetails ", "clearList", "addLines"}));
}

TEST_F(LetterViewTest, LoadingAddsAndClearsNothing) {
    yellow() = bytesOf(personRecord("Adams", "Ann"));
    view.LoadLetter();
    view.LoadLetter();
    EXPECT_EQ(pane.lines, (Lines{"Adams, Ann", "Adams, Ann"}));
}

TEST_F(LetterViewTest, AShortLastRecordShowsAsFarAsItGoes) {
    yellow() =
        bytesOf(personRecord("Adams", "Ann")) + bytesOf(personRecord("Abbot", "Al")).substr(0, 18);
    view.LoadLetter();
    EXPECT_EQ(pane.lines, (Lines{"Adams, Ann", "Abb, Al"}));
}

TEST_F(LetterViewTest, AClickShowsTheEntryWhateverItsCase) {
    yellow() = bytesOf(personRecord("doe", "JANE", "A & B & C"));
    pane.selected = "Doe, Jane";
    view.ListClick();
    EXPECT_EQ(pane.details, " JANE doe    Spouse: \r\n \r\n\r\n          \r\n\r\nA + B & C");
}

TEST_F(LetterViewTest, ACompanyLineDoesNotShowAPersonWhoWorksThere) {
    yellow() = bytesOf(formRecord("Smith", "Ann", "Acme")) + bytesOf(companyRecord("Acme"));
    pane.selected = "Acme";
    view.ListClick();
    EXPECT_EQ(pane.details, "Acme\r\n\r\n          \r\n\r\n");
}

TEST_F(LetterViewTest, AnEntryThatIsGoneLeavesNoDetails) {
    pane.details = "old";
    pane.selected = "Doe, Jane";
    view.ListClick();
    EXPECT_EQ(pane.details, "");
}

TEST_F(LetterViewTest, SwitchingTheBookKeepsTheLetterAndEmptiesTheDetails) {
    yellow() = bytesOf(companyRecord("Bakery"));
    white() = bytesOf(personRecord("Baker", "Bob")) + bytesOf(personRecord("Adams", "Ann"));
    view.LetterClick(1);
    pane.details = "old";
    view.SelectBook(kWhitePages);
    EXPECT_EQ(state.BookKind, 2);
    EXPECT_EQ(state.BookFile, "\\DATAW.QEL");
    EXPECT_EQ(state.BucketName, "BName");
    EXPECT_FALSE(pane.yellowLabel);
    EXPECT_TRUE(pane.whiteLabel);
    EXPECT_EQ(pane.details, "");
    EXPECT_EQ(pane.lines, Lines{"Baker, Bob"});
    EXPECT_EQ(pane.book, 2);
    view.SelectBook(kYellowPages);
    EXPECT_EQ(state.BookKind, 1);
    EXPECT_EQ(state.BookFile, "\\DATAY.QEL");
    EXPECT_TRUE(pane.yellowLabel);
    EXPECT_FALSE(pane.whiteLabel);
    EXPECT_EQ(pane.lines, Lines{"Bakery"});
    EXPECT_EQ(pane.book, 1);
}

TEST_F(LetterViewTest, ABookThatCanNotBeReadIsAFailureWithAnEmptyList) {
    yellow() = bytesOf(personRecord("Adams", "Ann"));
    view.LetterClick(0);
    files.unreachable = true;
    EXPECT_THROW(view.LetterClick(0), Failure);
    EXPECT_EQ(pane.lines, Lines{});
}

}  // namespace
}  // namespace velmora
