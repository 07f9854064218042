#include "phonebook/DatabaseSearch.h"

#include <gmock/gmock.h>

#include <optional>
#include <string>

#include "core/PendingWish.h"
#include "support/FakeEventLoop.h"
#include "support/FakeMessages.h"
#include "support/FakePhonebookPane.h"
#include "support/FakeSearchView.h"
#include "support/FakeStatusLine.h"
#include "support/PhonebookFixture.h"

namespace velmora {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;
using ::testing::SizeIs;
using ::testing::StartsWith;

constexpr const char* kNoEntriesBox = "tell|No Entries Found|No entries were found.";

class DatabaseSearchTest : public ::testing::Test, protected test::PhonebookFixture {
  protected:
    void addYellow(const PhonebookRecord& record) { yellow() += test::bytesOf(record); }
    void addWhite(const PhonebookRecord& record) { white() += test::bytesOf(record); }

    static SearchCriteria everywhere(const std::string& text, bool bothBooks = true) {
        return {text, FieldSet::all(), bothBooks};
    }

    // Runs once, in the turn of the event loop after the record of this number.
    void inTurn(int turn, std::function<void()> work) {
        loop.onYield = [this, turn, work = std::move(work)] {
            if (loop.yields == turn)
                work();
        };
    }

    test::FakePhonebookPane pane;
    LetterView letters{state, store, pane};
    PendingWish wish{state,
                     [this](int kind) { letters.SelectBook(static_cast<std::int16_t>(kind)); },
                     [this](int index) { letters.LetterClick(index); }};
    test::FakeMessages messages;
    test::FakeStatusLine status;
    test::FakeEventLoop loop;
    test::FakeSearchView view;
    int flips = 0;
    DatabaseSearch search{{state, settings, store, letters, messages, status, loop,
                           [this] {
                               ++flips;
                               wish.flipped();
                           }},
                          view};
};

TEST_F(DatabaseSearchTest, FindsATextInAnyCaseInAnyTickedField) {
    addYellow(test::personRecord("SMITH", "Jo"));
    addYellow(test::personRecord("Smithers", "Ann"));
    addYellow(test::personRecord("Brown", "Al", "knows Smith"));
    addYellow(test::personRecord("Green", "Al"));
    search.search(everywhere("smith"));
    EXPECT_THAT(view.hits,
                ElementsAre("Y: SMITH, Jo\tMatch: Last Name=SMITH" + std::string(15, ' '),
                            "Y: Smithers, Ann\tMatch: Last Name=Smithers" + std::string(12, ' '),
                            "Y: Brown, Al\tMatch: Note=knows Smith" + std::string(239, ' ')));
    EXPECT_THAT(messages.takeShown(), IsEmpty());
    EXPECT_EQ("", status.text);

    FieldSet memo;
    memo.add(Field::Memo);
    search.search({"smith", memo, true});
    EXPECT_THAT(view.hits, ElementsAre(StartsWith("Y: Brown, Al\tMatch: Note=knows Smith")));
}

TEST_F(DatabaseSearchTest, GivesALineForEachFieldOfARecord) {
    addYellow(test::formRecord("Smith", "Smitty", "Smith & Co"));
    search.search(everywhere("SMIT"));
    EXPECT_THAT(view.hits,
                ElementsAre("Y: Smith, Smitty\tMatch: First Name=Smitty" + std::string(9, ' '),
                            "Y: Smith, Smitty\tMatch: Last Name=Smith" + std::string(15, ' '),
                            "Y: Smith, Smitty\tMatch: Company=Smith & Co" + std::string(40, ' ')));
}

TEST_F(DatabaseSearchTest, SearchesOnlyYellowPagesWithoutBothBooksWhateverTheWindowShows) {
    addYellow(test::personRecord("Smith", "Yellow"));
    addWhite(test::personRecord("Smith", "White"));
    letters.SelectBook(kWhitePages);
    search.search(everywhere("smith", false));
    EXPECT_THAT(view.hits, ElementsAre(StartsWith("Y: Smith, Yellow\t")));
    EXPECT_EQ(kWhitePages, state.BookKind);
    EXPECT_EQ(kWhitePagesFile, state.BookFile);
}

TEST_F(DatabaseSearchTest, ListsYellowPagesFirstAndSortsNothing) {
    addYellow(test::personRecord("Zorn", "x"));
    addYellow(test::personRecord("Adams", "x"));
    addWhite(test::personRecord("Young", "x"));
    addWhite(test::personRecord("Baker", "x"));
    FieldSet first;
    first.add(Field::First);
    search.search({"X", first, true});
    EXPECT_THAT(view.hits, ElementsAre(StartsWith("Y: Zorn, x\t"), StartsWith("Y: Adams, x\t"),
                                       StartsWith("W: Young, x\t"), StartsWith("W: Baker, x\t")));
}

TEST_F(DatabaseSearchTest, NeverListsATombstoneEvenWhenDeletedIsTheText) {
    yellow() = test::tombstoneBytes();
    addYellow(test::personRecord("Deleted", "Jo", "deleted"));
    search.search(everywhere("DELETED"));
    EXPECT_THAT(view.hits, IsEmpty());
    EXPECT_THAT(messages.takeShown(), ElementsAre(kNoEntriesBox));
}

TEST_F(DatabaseSearchTest, TellsTwiceWhenNothingWasFound) {
    addYellow(test::personRecord("Smith", "Jo"));
    search.search(everywhere("jones"));
    EXPECT_EQ("No matching entries found.", status.text);
    EXPECT_THAT(messages.takeShown(), ElementsAre(kNoEntriesBox));
}

TEST_F(DatabaseSearchTest, ShowsTheLightAndTheListInOnePiece) {
    addYellow(test::personRecord("Smith", "Jo"));
    std::vector<std::string> during;
    inTurn(1, [&] { during = view.takeLog(); });
    search.search(everywhere("smith"));
    EXPECT_THAT(during, ElementsAre("red", "hide", "hits 0"));
    EXPECT_THAT(view.takeLog(), ElementsAre("hits 1", "show", "green"));
}

TEST_F(DatabaseSearchTest, IsGreenBeforeTheBoxComesUp) {
    std::optional<SearchLight> light;
    messages.whileOpen([&] { light = view.light; });
    search.search(everywhere("x"));
    EXPECT_EQ(SearchLight::Done, light);
    EXPECT_THAT(messages.takeShown(), SizeIs(1));
}

TEST_F(DatabaseSearchTest, DoesNothingForAnEmptyText) {
    addYellow(test::personRecord("Smith", "Jo"));
    search.search(everywhere(""));
    EXPECT_THAT(view.takeLog(), IsEmpty());
    EXPECT_THAT(messages.takeShown(), IsEmpty());
    EXPECT_EQ(0, loop.yields);
}

TEST_F(DatabaseSearchTest, NamesTheCustomFieldsAsTheSettingsDo) {
    PhonebookRecord record = test::personRecord("Doe", "Jo");
    record.assign(Field::Custom1, "seek");
    record.assign(Field::Custom2, "seek");
    addYellow(record);
    settings.Save("Custom1", "  Account ");
    search.search(everywhere("seek"));
    EXPECT_THAT(view.hits, ElementsAre("Y: Doe, Jo\tMatch: Account=seek" + std::string(21, ' '),
                                       "Y: Doe, Jo\tMatch: Custom 2=seek" + std::string(21, ' ')));
    EXPECT_EQ("Account", search.customCaptions().custom1);
    EXPECT_EQ("Custom 2", search.customCaptions().custom2);
}

TEST_F(DatabaseSearchTest, GivesTheEventLoopATurnAfterTheFirstRecordEveryEighthAndTheLast) {
    for (int i = 0; i < 20; ++i)
        addYellow(test::personRecord("Smith", "Jo"));
    white() = test::tombstoneBytes();
    search.search(everywhere("smith"));
    EXPECT_EQ(4 + 2, loop.yields);
}

TEST_F(DatabaseSearchTest, ReadsACutLastRecordAndAnEmptyBook) {
    yellow() = test::bytesOf(test::personRecord("Smith", "Jo")).substr(0, 18);
    search.search(everywhere("smi"));
    EXPECT_THAT(view.hits, ElementsAre("Y: Smi, Jo\tMatch: Last Name=Smi"));
    EXPECT_EQ(0, files.openFiles());
}

TEST_F(DatabaseSearchTest, EndsAtOnceWhenItsFormCloses) {
    for (int i = 0; i < 30; ++i)
        addYellow(test::personRecord("Smith", "Jo"));
    inTurn(2, [&] {
        view.takeLog();
        search.closed();
    });
    search.search(everywhere("jones"));
    EXPECT_EQ(2, loop.yields);
    EXPECT_THAT(view.takeLog(), IsEmpty());
    EXPECT_THAT(messages.takeShown(), IsEmpty());
    EXPECT_EQ("", status.text);
    EXPECT_EQ(0, files.openFiles());
}

TEST_F(DatabaseSearchTest, EndsAtOnceWhenTheProgramEnds) {
    for (int i = 0; i < 30; ++i)
        addYellow(test::personRecord("Smith", "Jo"));
    inTurn(3, [&] {
        loop.isClosing = true;
        view.takeLog();
        pane.takeCalls();
        search.closed();
    });
    search.search(everywhere("smith"));
    EXPECT_EQ(3, loop.yields);
    EXPECT_THAT(view.takeLog(), IsEmpty());
    EXPECT_THAT(pane.takeCalls(), IsEmpty());
}

TEST_F(DatabaseSearchTest, AnotherSearchAskedForMeanwhileTakesItsPlace) {
    addYellow(test::personRecord("Smith", "Jo"));
    addYellow(test::personRecord("Jones", "Jo"));
    addYellow(test::personRecord("Smith", "Al"));
    inTurn(1, [&] {
        search.search(everywhere("nobody"));
        search.search(everywhere("jones"));
        EXPECT_EQ(SearchLight::Searching, view.light);
    });
    search.search(everywhere("smith"));
    EXPECT_EQ(1 + 3, loop.yields);
    EXPECT_THAT(view.hits, ElementsAre(StartsWith("Y: Jones, Jo\t")));
    EXPECT_EQ(SearchLight::Done, view.light);
    EXPECT_TRUE(view.listShown);
    EXPECT_THAT(messages.takeShown(), IsEmpty());
}

TEST_F(DatabaseSearchTest, SearchesAnewAfterItsFormWasClosedAndOpenedInOneTurn) {
    addYellow(test::personRecord("Smith", "Jo"));
    addYellow(test::personRecord("Jones", "Jo"));
    inTurn(1, [&] {
        search.closed();
        search.opened();
        search.search(everywhere("jones"));
    });
    search.search(everywhere("smith"));
    EXPECT_THAT(view.hits, ElementsAre(StartsWith("Y: Jones, Jo\t")));
    EXPECT_TRUE(view.listShown);
}

TEST_F(DatabaseSearchTest, ForgetsWhatItFoundBeforeTheListWasCleared) {
    addYellow(test::personRecord("Smith", "Jo"));
    addYellow(test::personRecord("Smith", "Al"));
    inTurn(1, [&] { search.clearHits(); });
    search.search(everywhere("smith"));
    EXPECT_THAT(view.hits, ElementsAre(StartsWith("Y: Smith, Al\t")));
    search.clearHits();
    EXPECT_THAT(view.hits, IsEmpty());
}

TEST_F(DatabaseSearchTest, LeavesTheBookInUseAloneWhileItRuns) {
    addYellow(test::personRecord("Smith", "Jo"));
    letters.SelectBook(kWhitePages);
    inTurn(1, [&] { EXPECT_EQ(kWhitePagesFile, state.BookFile); });
    search.search(everywhere("smith"));
    EXPECT_EQ(kWhitePagesFile, state.BookFile);
}

TEST_F(DatabaseSearchTest, ShowsTheErrorBoxWhenABookCanNotBeRead) {
    files.unreachable = true;
    search.search(everywhere("smith"));
    EXPECT_THAT(messages.takeShown(), ElementsAre(StartsWith("error|Velmora|The file ")));
    EXPECT_TRUE(view.listShown);
    EXPECT_EQ(SearchLight::Done, view.light);

    files.unreachable = false;
    addYellow(test::personRecord("Smith", "Jo"));
    search.search(everywhere("smith"));
    EXPECT_THAT(view.hits, SizeIs(1));
}

TEST_F(DatabaseSearchTest, KeepsTheHitsOfTheFirstBookWhenTheSecondCanNotBeRead) {
    addYellow(test::personRecord("Smith", "Jo"));
    inTurn(1, [&] { files.unreachable = true; });
    search.search(everywhere("smith"));
    EXPECT_THAT(messages.takeShown(), ElementsAre(StartsWith("error|Velmora|The file ")));
    EXPECT_THAT(view.hits, ElementsAre(StartsWith("Y: Smith, Jo\t")));
}

TEST_F(DatabaseSearchTest, GoesToTheBookAndTheLetterOfAHit) {
    addWhite(test::personRecord("smith", "Jo"));
    pane.lines = {"old"};
    pane.details = "old";
    search.opened();
    search.goTo("W: smith, Jo\tMatch: Last Name=smith");
    EXPECT_EQ(1, flips);
    EXPECT_EQ(kWhitePages, state.BookKind);
    EXPECT_EQ("SName", state.BucketName);
    EXPECT_THAT(pane.lines, ElementsAre("smith, Jo"));
    EXPECT_EQ("", pane.details);
    EXPECT_EQ(0, state.PendingBook);
    EXPECT_EQ(0, state.PendingLetter);
}

TEST_F(DatabaseSearchTest, SelectsTheLineOfAHitAndLeavesTheDetailsEmpty) {
    addYellow(test::personRecord("Small", "Al"));
    addYellow(test::personRecord("Smith", "Jo"));
    search.goTo("Y: Smith, Jo\tMatch: Note=\tMatch: Note=");
    EXPECT_EQ("Smith, Jo", pane.selected);
    EXPECT_EQ("", pane.details);
}

TEST_F(DatabaseSearchTest, SelectsNothingWhereTheLetterOfTheHitIsNotOnShow) {
    addYellow(test::personRecord("Adams", "Jo"));
    addYellow(test::personRecord("Smith", "Jo"));
    letters.LetterClick(18);
    pane.selectLine("Smith, Jo");
    search.goTo("Y: Adams, Jo\tMatch: Title=x");
    EXPECT_EQ("", pane.selected);
}

TEST_F(DatabaseSearchTest, AHitUnderAChangesTheBookButNotTheLetter) {
    letters.LetterClick(18);
    search.goTo("W: Adams, Jo\tMatch: Title=x");
    EXPECT_EQ(kWhitePages, state.BookKind);
    EXPECT_EQ("SName", state.BucketName);
}

TEST_F(DatabaseSearchTest, GoesToTheSymbolTabForAllThatIsNoLetter) {
    for (const char* line : {"Y: 3M\tMatch: Company=3M", "Y: \xC9tienne, Jo", "Y: ", "Y:"}) {
        letters.LetterClick(1);
        search.goTo(line);
        EXPECT_EQ("#", state.BucketName) << line;
    }
}

TEST_F(DatabaseSearchTest, ALineWithoutABookLeavesTheBookAlone) {
    letters.SelectBook(kWhitePages);
    search.goTo("X: Smith");
    EXPECT_EQ(kWhitePages, state.BookKind);
    EXPECT_EQ("SName", state.BucketName);
}

TEST_F(DatabaseSearchTest, AnEmptyLineDoesNothing) {
    search.opened();
    search.goTo("");
    EXPECT_EQ(0, flips);
    EXPECT_THAT(pane.takeCalls(), IsEmpty());
    search.closed();
    EXPECT_THAT(pane.takeCalls(), ElementsAre("clearList", "addLines"));
}

TEST_F(DatabaseSearchTest, AFailedWayToAHitLeavesNoWishBehind) {
    files.unreachable = true;
    search.goTo("W: Smith, Jo");
    EXPECT_THAT(messages.takeShown(), ElementsAre(StartsWith("error|Velmora|")));
    EXPECT_EQ(0, state.PendingBook);
    EXPECT_EQ(0, state.PendingLetter);
}

TEST_F(DatabaseSearchTest, LoadsTheListAnewOnCloseAndKeepsTheSelection) {
    addYellow(test::personRecord("Adams", "Jo"));
    letters.LoadLetter();
    pane.selected = "Adams, Jo";
    pane.details = "the card";
    search.opened();
    addYellow(test::personRecord("Abel", "Jo"));
    search.closed();
    EXPECT_THAT(pane.lines, ElementsAre("Adams, Jo", "Abel, Jo"));
    EXPECT_EQ("Adams, Jo", pane.selected);
    EXPECT_EQ("the card", pane.details);
}

TEST_F(DatabaseSearchTest, EmptiesTheDetailsOnCloseWhenTheirEntryIsGone) {
    pane.lines = {"Adams, Jo"};
    pane.selected = "Adams, Jo";
    pane.details = "the card";
    search.closed();
    EXPECT_THAT(pane.lines, IsEmpty());
    EXPECT_EQ("", pane.details);
}

TEST_F(DatabaseSearchTest, LeavesOnCloseTheBookAndTheLetterThatTheUserChose) {
    addWhite(test::personRecord("Brown", "Jo"));
    search.opened();
    letters.SelectBook(kWhitePages);
    letters.LetterClick(1);
    search.closed();
    EXPECT_EQ(kWhitePages, state.BookKind);
    EXPECT_EQ("BName", state.BucketName);
    EXPECT_THAT(pane.lines, ElementsAre("Brown, Jo"));
    EXPECT_TRUE(pane.whiteLabel);
}

TEST_F(DatabaseSearchTest, LeavesTheListAloneOnCloseAfterAHitWasFollowed) {
    search.opened();
    search.goTo("W: Smith, Jo");
    pane.takeCalls();
    search.closed();
    EXPECT_THAT(pane.takeCalls(), IsEmpty());
    search.opened();
    search.closed();
    EXPECT_THAT(pane.takeCalls(), ElementsAre("clearList", "addLines"));
}

TEST_F(DatabaseSearchTest, ShowsTheErrorBoxWhenTheListCanNotBeLoadedOnClose) {
    files.unreachable = true;
    search.closed();
    EXPECT_THAT(messages.takeShown(), ElementsAre(StartsWith("error|Velmora|The file ")));
}

}  // namespace
}  // namespace velmora
