#include "phonebook/Associates.h"

#include <gmock/gmock.h>

#include <string>
#include <utility>
#include <vector>

#include "phonebook/CardText.h"
#include "support/FakeMessages.h"
#include "support/FakePhonebookPane.h"
#include "support/PhonebookFixture.h"

namespace velmora {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;
using ::testing::StartsWith;

class FakeAssociatesView final : public AssociatesView {
  public:
    void setLines(std::vector<std::string> newLines) override { lines = std::move(newLines); }
    void showDetails(const std::string& text) override { details = text; }
    void present() override { ++presented; }

    std::vector<std::string> lines{"old"};
    std::string details = "old";
    int presented = 0;
};

class RecordingStatusLine final : public StatusLine {
  public:
    void show(const std::string& text) override {
        texts.push_back(text);
        if (onShow)
            onShow();
    }
    void showFile(const std::string& text, const std::string&) override { show(text); }

    std::vector<std::string> texts;
    std::function<void()> onShow;
};

class AssociatesTest : public ::testing::Test, protected test::PhonebookFixture {
  protected:
    void addYellow(const PhonebookRecord& record) { yellow() += test::bytesOf(record); }
    void addWhite(const PhonebookRecord& record) { white() += test::bytesOf(record); }

    void findOthersOf(const std::string& line) {
        pane.selected = line;
        associates.findOthers();
    }

    void expectNoneFound() {
        EXPECT_THAT(status.texts,
                    ElementsAre("Please Wait While Searching...", "No other associates found."));
        EXPECT_THAT(view.lines, IsEmpty());
        EXPECT_EQ(0, view.presented);
        EXPECT_THAT(messages.takeShown(), IsEmpty());
    }

    test::FakePhonebookPane pane;
    RecordingStatusLine status;
    test::FakeMessages messages;
    FakeAssociatesView view;
    Associates associates{store, pane, status, messages, view};
};

TEST_F(AssociatesTest, ListsEveryEntryOfTheCompanyInBothBooksInFileOrder) {
    addYellow(test::formRecord("Zorn", "Al", "Acme"));
    addYellow(test::formRecord("Doe", "Jane", "Acme"));
    addYellow(test::formRecord("Green", "Jo", "Other"));
    addYellow(test::companyRecord("Acme"));
    addWhite(test::formRecord("Roe", "Rick", "  Acme"));
    findOthersOf("Doe, Jane");
    EXPECT_THAT(view.lines, ElementsAre("Y: Zorn, Al", "Y: Doe, Jane", "Y: Acme", "W: Roe, Rick"));
    EXPECT_EQ(1, view.presented);
    EXPECT_EQ("", view.details);
    EXPECT_THAT(status.texts,
                ElementsAre("Please Wait While Searching...", "Search Was Successful."));
    EXPECT_THAT(messages.takeShown(), IsEmpty());
    EXPECT_EQ(0, files.openFiles());
}

TEST_F(AssociatesTest, ListsTheSelectedEntryEvenWhenItIsTheOnlyOne) {
    addYellow(test::companyRecord("Acme"));
    findOthersOf("acme");
    EXPECT_THAT(view.lines, ElementsAre("Y: Acme"));
}

TEST_F(AssociatesTest, ComparesCompaniesExactly) {
    addYellow(test::formRecord("Doe", "Jane", "Acme"));
    addYellow(test::formRecord("Roe", "Jane", "ACME"));
    addYellow(test::formRecord("Poe", "Jane", "Acme Ltd"));
    findOthersOf("DOE, jane");
    EXPECT_THAT(view.lines, ElementsAre("Y: Doe, Jane"));
}

TEST_F(AssociatesTest, AnEntryWithoutACompanyOpensNothing) {
    addYellow(test::personRecord("Doe", "Jane"));
    addYellow(test::personRecord("Roe", "Jane"));
    findOthersOf("Doe, Jane");
    expectNoneFound();
}

TEST_F(AssociatesTest, ACompanyOfNulsIsNone) {
    PhonebookRecord record;
    record.assign(Field::Last, "Doe");
    record.assign(Field::First, "Jane");
    addYellow(record);
    findOthersOf("Doe, Jane");
    expectNoneFound();
}

TEST_F(AssociatesTest, AnEntryThatIsNotInYellowPagesOpensNothing) {
    addWhite(test::formRecord("Doe", "Jane", "Acme"));
    addYellow(test::formRecord("Roe", "Jane", "Acme"));
    state.BookKind = kWhitePages;
    state.BookFile = kWhitePagesFile;
    findOthersOf("Doe, Jane");
    expectNoneFound();
    EXPECT_EQ(kWhitePagesFile, state.BookFile);
}

TEST_F(AssociatesTest, WithoutASelectionNothingOpens) {
    addYellow(test::companyRecord("Acme"));
    findOthersOf("");
    expectNoneFound();
}

TEST_F(AssociatesTest, ACompanyLineNeverMeansAPersonWhoWorksThere) {
    addYellow(test::formRecord("Doe", "Jane", "Acme"));
    findOthersOf("Acme");
    expectNoneFound();
}

TEST_F(AssociatesTest, SkipsATombstoneWithACompany) {
    addYellow(test::formRecord("Doe", "Jane", "Acme"));
    addYellow(test::formRecord("Deleted", "", "Acme"));
    findOthersOf("Doe, Jane");
    EXPECT_THAT(view.lines, ElementsAre("Y: Doe, Jane"));
}

TEST_F(AssociatesTest, TellsWhenNobodyIsLeft) {
    addYellow(test::formRecord("Deleted", "Jane", "Acme"));
    findOthersOf("Deleted, Jane");
    EXPECT_THAT(messages.takeShown(),
                ElementsAre("tell|No Associates|No other associates were found."));
    EXPECT_THAT(status.texts,
                ElementsAre("Please Wait While Searching...", "No Other Associates Found."));
    EXPECT_EQ(0, view.presented);
}

TEST_F(AssociatesTest, ShowsTheErrorBoxWhenABookCanNotBeRead) {
    files.unreachable = true;
    findOthersOf("Doe, Jane");
    EXPECT_THAT(messages.takeShown(), ElementsAre(StartsWith("error|Velmora|The file ")));
    associates.showEntry("Y: Doe, Jane");
    EXPECT_THAT(messages.takeShown(), ElementsAre(StartsWith("error|Velmora|The file ")));
    EXPECT_EQ(0, view.presented);
}

TEST_F(AssociatesTest, ShowsTheEntryOfALineFromTheBookThatItNames) {
    addYellow(test::formRecord("Doe", "Jane", "Yellow"));
    addWhite(test::formRecord("DOE", "Jane", "White"));
    associates.showEntry("Y: Doe, Jane");
    EXPECT_THAT(view.details, StartsWith(" Jane Doe\r\n Yellow\r\n"));
    associates.showEntry("W: Doe, Jane");
    EXPECT_THAT(view.details, StartsWith(" Jane DOE\r\n White\r\n"));
}

TEST_F(AssociatesTest, EmptiesTheDetailsForALineWhoseEntryIsGone) {
    view.details = "old";
    associates.showEntry("Y: Doe, Jane");
    EXPECT_EQ("", view.details);
    view.details = "old";
    associates.showEntry("");
    EXPECT_EQ("", view.details);
}

PhonebookRecord full() {
    PhonebookRecord record;
    const char* values[kFieldCount] = {
        "First",   "Last",   "Title", "A & B & C", "Position", "A1", "A2",   "A3",    "A4",
        "Country", "Postal", "1",     "2",         "3",        "4",  "5",    "e@x",   "web",
        "Dear",    "Class",  "Memo",  "Date",      "C1",       "C2", "File", "Spouse"};
    for (std::size_t i = 0; i < kFieldCount; ++i)
        record.assign(static_cast<Field>(i), values[i]);
    return record;
}

TEST_F(AssociatesTest, WritesTheCardOfAPersonWithoutTheSpouse) {
    addYellow(full());
    associates.showEntry("Y: Last, First");
    EXPECT_EQ(view.details,
              "Title First Last\r\n"
              "Position A & B & C\r\n"
              "A1 , A2\r\n"
              "A3 , A4 , Postal\r\n"
              "Country\r\n"
              "H: 1    W: 2    F: 3\r\n"
              "P: 4    O: 5    Em: e@x\r\n"
              "C1   C2\r\n"
              "Class\r\n"
              "Memo");
}

TEST_F(AssociatesTest, WritesTheCardOfACompanyWithOneLineForItsName) {
    PhonebookRecord record = full();
    record.assign(Field::Last, "");
    record.assign(Field::Address3, "");
    record.assign(Field::Address4, "");
    addWhite(record);
    associates.showEntry("W: A & B & C");
    EXPECT_EQ(view.details,
              "A & B & C\r\n"
              "A1 , A2\r\n"
              " ,  , Postal\r\n"
              "Country\r\n"
              "H: 1    W: 2    F: 3\r\n"
              "P: 4    O: 5    Em: e@x\r\n"
              "C1   C2\r\n"
              "Class\r\n"
              "Memo");
}

TEST_F(AssociatesTest, LeavesOutTheLinesOfTheCardThatAreEmpty) {
    addYellow(test::personRecord("Smith", ""));
    associates.showEntry("Y: Smith, ");
    EXPECT_EQ(view.details,
              "  Smith\r\n"
              " \r\n"
              "\r\n"
              "   \r\n"
              "\r\n");
}

}  // namespace
}  // namespace velmora
