#include "planner/AppointmentStore.h"

#include <gmock/gmock.h>
#include <unistd.h>

#include <filesystem>

#include "platform/Failure.h"
#include "support/PlannerFixture.h"
#include "support/SamePaths.h"

namespace velmora {
namespace {

using std::chrono::year;
using test::RawRow;
using test::rowOn;
using testing::ElementsAre;
using testing::IsEmpty;

class AppointmentStoreTest : public testing::Test, protected test::PlannerFixture {
  protected:
    std::vector<std::string> texts() {
        std::vector<std::string> result;
        for (; !store.Eof(); store.MoveNext())
            result.push_back(store.Get(Column::Desc));
        return result;
    }

    std::vector<std::string> textsOn(const std::string& date,
                                     std::optional<year> pivot = std::nullopt) {
        store.SelectByDate(date, pivot);
        store.Refresh();
        return texts();
    }

    std::vector<std::string> allTexts() {
        store.SelectAll();
        store.Refresh();
        return texts();
    }

    void addNew(const std::string& date, const std::string& text) {
        store.AddNew();
        store.Put(Column::TagVariant, "2026-03-12 10:42:00");
        store.Put(Column::Date, date);
        store.Put(Column::Desc, text);
        store.Update();
    }
};

TEST_F(AppointmentStoreTest, ShowsItsRecordSources) {
    store.SelectAll();
    EXPECT_EQ(store.recordSource(), "Appoint");
    store.SelectByDate("03/12/26");
    EXPECT_EQ(store.recordSource(), "select * from appoint where date = #03/12/26#");
    store.SelectByTag("2026-03-12 10:42:00");
    EXPECT_EQ(store.recordSource(),
              "select * from appoint where [TagVariant] = #2026-03-12 10:42:00#");
}

TEST_F(AppointmentStoreTest, GivesNoRowsBeforeASourceHasRun) {
    add(rowOn("2026-03-12", 1, "a"));
    EXPECT_TRUE(store.Eof());
    store.SelectAll();
    EXPECT_TRUE(store.Eof());
    store.Refresh();
    EXPECT_FALSE(store.Eof());
}

TEST_F(AppointmentStoreTest, GivesRowsInTheOrderOfTheirCreation) {
    add(rowOn("2026-03-12", 9, "first"));
    add(rowOn("2026-03-11", 5, "other day"));
    add(rowOn("2026-03-12", 1, "second"));
    EXPECT_THAT(allTexts(), ElementsAre("first", "other day", "second"));
    EXPECT_THAT(textsOn("3/12/2026"), ElementsAre("first", "second"));
}

TEST_F(AppointmentStoreTest, GivesManyRowsEachOnce) {
    sqlite::Database database(NativePath(path), sqlite::Access::ReadWrite);
    database.execute(
        "WITH RECURSIVE n(i) AS (SELECT 1 UNION ALL SELECT i + 1 FROM n WHERE i < 1000) "
        "INSERT INTO appoint SELECT NULL, '2026-03-12', '', '', i, '' FROM n");
    std::vector<std::string> expected;
    for (int i = 1; i <= 1000; ++i)
        expected.push_back(std::to_string(i));
    EXPECT_EQ(allTexts(), expected);
    EXPECT_EQ(textsOn("03/12/2026"), expected);
}

TEST_F(AppointmentStoreTest, MatchesADayInEveryForm) {
    add(rowOn("2026-03-09", 1, "a"));
    for (const char* date : {"3/9/26", "03/09/2026", "2026/3/9", "2026-03-09", "March 9, 2026"})
        EXPECT_THAT(textsOn(date), ElementsAre("a")) << date;
}

TEST_F(AppointmentStoreTest, ChoosesTheCenturyAroundTheClocksYear) {
    add(rowOn("1976-01-01", 1, "76"));
    add(rowOn("2030-01-01", 2, "30"));
    add(rowOn("2075-12-31", 3, "75"));
    add(rowOn("1998-01-01", 4, "98"));
    EXPECT_THAT(textsOn("01/01/76"), ElementsAre("76"));
    EXPECT_THAT(textsOn("01/01/30"), ElementsAre("30"));
    EXPECT_THAT(textsOn("12/31/75"), ElementsAre("75"));
    EXPECT_THAT(textsOn("01/01/98"), ElementsAre("98"));
}

TEST_F(AppointmentStoreTest, ChoosesTheCenturyAroundAGivenYear) {
    add(rowOn("1826-03-12", 1, "then"));
    add(rowOn("2026-03-12", 2, "now"));
    EXPECT_THAT(textsOn("03/12/26", year(1826)), ElementsAre("then"));
    EXPECT_THAT(textsOn("03/12/26", year(2026)), ElementsAre("now"));
}

TEST_F(AppointmentStoreTest, GivesNoRowsForADateThatCanNotBeRead) {
    add(rowOn("NULL", 1, "dateless"));
    add(rowOn("2026-03-02", 2, "a"));
    for (const char* date : {"", "#", "02/30/2026", "soon"}) {
        EXPECT_THAT(textsOn("03/02/2026"), ElementsAre("a"));
        EXPECT_THAT(textsOn(date), IsEmpty()) << date;
    }
}

TEST_F(AppointmentStoreTest, LeavesNothingToWriteToAfterAFailedRefresh) {
    add(rowOn("2026-03-12", 1, "a"));
    const auto before = rows();
    store.SelectByTag("");
    EXPECT_EQ(store.recordSource(), "select * from appoint where [TagVariant] = ##");
    store.Refresh();
    EXPECT_TRUE(store.Eof());
    EXPECT_THROW(store.MoveFirst(), Failure);
    EXPECT_THROW(store.MoveNext(), Failure);
    EXPECT_THROW(store.Delete(), Failure);
    EXPECT_THROW(store.Edit(), Failure);
    EXPECT_THROW(store.Put(Column::Desc, "x"), Failure);
    EXPECT_THROW(store.Update(), Failure);
    EXPECT_EQ(rows(), before);
}

TEST_F(AppointmentStoreTest, MatchesTagsToTheSecond) {
    add({"2026-03-12 00:00:00", "2026-03-12", "", "", "midnight", ""});
    add({"2026-03-12 14:05:00", "2026-03-12", "", "", "afternoon", ""});
    store.SelectByTag("3/12/2026");
    store.Refresh();
    EXPECT_THAT(texts(), ElementsAre("midnight"));
    store.SelectByTag("3/12/2026 2:05:00 PM");
    store.Refresh();
    EXPECT_THAT(texts(), ElementsAre("afternoon"));
    store.SelectByTag("2026-03-12 14:05:00.75");
    store.Refresh();
    EXPECT_THAT(texts(), ElementsAre("afternoon"));
}

TEST_F(AppointmentStoreTest, WritesANewRowInItsForms) {
    addNew("3/9/26", "x");
    store.SelectAll();
    store.Refresh();
    EXPECT_EQ(store.Get(Column::Date), "03/09/2026");
    EXPECT_EQ(store.Get(Column::TagVariant), "2026-03-12 10:42:00");
    EXPECT_EQ(store.Get(Column::BeginTime), "");
    EXPECT_THAT(rows(), ElementsAre(RawRow{"2026-03-12 10:42:00", "2026-03-09", "NULL", "NULL", "x",
                                           "NULL"}));
}

TEST_F(AppointmentStoreTest, WritesNoDateForOneThatCanNotBeRead) {
    addNew("", "a");
    addNew("02/30/2026", "b");
    EXPECT_EQ(rows()[0][1], "NULL");
    EXPECT_EQ(rows()[1][1], "NULL");
    store.SelectAll();
    store.Refresh();
    EXPECT_EQ(store.Get(Column::Date), "");
}

TEST_F(AppointmentStoreTest, RefusesATagThatCanNotBeRead) {
    store.AddNew();
    EXPECT_THROW(store.Put(Column::TagVariant, "soon"), Failure);
}

TEST_F(AppointmentStoreTest, KeepsAllBytesOfTheCodePage) {
    std::string all = "  ";
    for (int byte = 0; byte < 256; ++byte)
        all += static_cast<char>(byte);
    all += "\r\n  ";
    addNew("3/9/26", all);
    EXPECT_THAT(allTexts(), ElementsAre(all));
    EXPECT_EQ(rows()[0][4], CodePage::western().toUtf8(all));
}

TEST_F(AppointmentStoreTest, KeepsLongTextsWhole) {
    const std::string text(1'000'000, '\xFC');
    addNew("3/9/26", text);
    EXPECT_EQ(allTexts(), std::vector<std::string>{text});
}

TEST_F(AppointmentStoreTest, DropsAPendingRowWithoutATraceAtAnyMove) {
    add(rowOn("2026-03-12", 1, "a"));
    add(rowOn("2026-03-12", 2, "b"));
    const auto before = rows();
    store.SelectAll();
    store.Refresh();
    const std::function<void()> moves[] = {
        [&] { store.SelectAll(); },
        [&] { store.SelectByDate("03/12/2026"); },
        [&] { store.SelectByTag("2026-01-01 08:00:01"); },
        [&] { store.Refresh(); },
        [&] { store.MoveFirst(); },
        [&] { store.MoveNext(); },
        [&] { store.FindFirst("[TagVariant] = #2026-01-01 08:00:01#"); },
    };
    for (const auto& move : moves) {
        store.SelectAll();
        store.Refresh();
        store.AddNew();
        store.Put(Column::Desc, "lost");
        move();
        EXPECT_THROW(store.Update(), Failure);
        store.SelectAll();
        store.Refresh();
        store.Edit();
        store.Put(Column::Desc, "lost");
        move();
        EXPECT_THROW(store.Update(), Failure);
    }
    EXPECT_EQ(rows(), before);
}

TEST_F(AppointmentStoreTest, FindsTheFirstRowOfATagInTheSelection) {
    add(rowOn("2026-03-11", 7, "other day"));
    add(rowOn("2026-03-12", 1, "a"));
    add(rowOn("2026-03-12", 7, "b"));
    add(rowOn("2026-03-12", 7, "c"));
    store.SelectByDate("03/12/2026");
    store.Refresh();
    EXPECT_TRUE(store.FindFirst("[TagVariant] = #2026-01-01 08:00:07#"));
    EXPECT_EQ(store.Get(Column::Desc), "b");
    store.MoveNext();
    EXPECT_EQ(store.Get(Column::Desc), "c");
    store.MoveNext();
    EXPECT_TRUE(store.Eof());
    store.MoveFirst();
    EXPECT_EQ(store.Get(Column::Desc), "a");
}

TEST_F(AppointmentStoreTest, StaysWhereItIsWhenNothingIsFound) {
    add(rowOn("2026-03-12", 1, "a"));
    add(rowOn("2026-03-12", 2, "b"));
    store.SelectByDate("03/12/2026");
    store.Refresh();
    EXPECT_FALSE(store.FindFirst("[TagVariant] = #2026-01-01 08:00:55#"));
    EXPECT_EQ(store.Get(Column::Desc), "a");
}

TEST_F(AppointmentStoreTest, RefusesAConditionThatItDoesNotKnow) {
    add(rowOn("2026-03-12", 1, "a"));
    store.SelectAll();
    store.Refresh();
    for (const char* criterion :
         {"", "[TagVariant] = #", "[TagVariant] = ##", "Desc = 'a'", "[TagVariant] = #soon#"})
        EXPECT_THROW(store.FindFirst(criterion), Failure) << criterion;
}

TEST_F(AppointmentStoreTest, WritesOnlyTheColumnsThatWerePut) {
    add(rowOn("2026-03-12", 1, "a"));
    store.SelectAll();
    store.Refresh();
    store.Edit();
    store.Put(Column::Desc, "changed");
    {
        sqlite::Database other(NativePath(path), sqlite::Access::ReadWrite);
        other.execute("UPDATE appoint SET BeginTime = '07:00 AM'");
    }
    store.Update();
    EXPECT_EQ(rows()[0][4], "changed");
    EXPECT_EQ(rows()[0][2], "07:00 AM");
}

TEST_F(AppointmentStoreTest, LeavesACharacterOfAnotherCodePageWhereTheTextStays) {
    add({"2026-01-01 08:00:01", "2026-03-12", "", "", "\xD0\x96", ""});  // a Cyrillic letter
    store.SelectAll();
    store.Refresh();
    EXPECT_EQ(store.Get(Column::Desc), "?");
    store.Edit();
    store.Put(Column::Desc, "?");
    store.Put(Column::BeginTime, "9:00");
    store.Update();
    EXPECT_EQ(rows()[0][4], "\xD0\x96");
    EXPECT_EQ(rows()[0][2], "9:00");
}

TEST_F(AppointmentStoreTest, FailsWhenTheRowIsGone) {
    add(rowOn("2026-03-12", 1, "a"));
    store.SelectAll();
    store.Refresh();
    store.Edit();
    store.Put(Column::Desc, "changed");
    sqlite::Database(NativePath(path), sqlite::Access::ReadWrite).execute("DELETE FROM appoint");
    EXPECT_THROW(store.Update(), Failure);
    EXPECT_THROW(store.Delete(), Failure);
    EXPECT_THAT(rows(), IsEmpty());
}

TEST_F(AppointmentStoreTest, DeletesOneRowAndStandsOnTheNext) {
    add(rowOn("2026-03-12", 1, "a"));
    add(rowOn("2026-03-12", 2, "b"));
    store.SelectAll();
    store.Refresh();
    store.Delete();
    EXPECT_EQ(store.Get(Column::Desc), "b");
    store.Delete();
    EXPECT_TRUE(store.Eof());
    EXPECT_THROW(store.Delete(), Failure);
}

TEST_F(AppointmentStoreTest, ReadsNullAsEmptyText) {
    add({"NULL", "NULL", "NULL", "NULL", "NULL", "NULL"});
    store.SelectAll();
    store.Refresh();
    for (const auto column : {Column::TagVariant, Column::Date, Column::BeginTime, Column::EndTime,
                              Column::Desc, Column::StyleSet})
        EXPECT_EQ(store.Get(column), "");
}

TEST_F(AppointmentStoreTest, HoldsNoLockInTheMiddleOfItsRows) {
    for (int i = 0; i < 5; ++i)
        add(rowOn("2026-03-12", i, "a"));
    store.SelectAll();
    store.Refresh();
    store.MoveNext();
    sqlite::Database other(NativePath(path), sqlite::Access::ReadWrite,
                           std::chrono::milliseconds(1));
    EXPECT_NO_THROW(other.execute("BEGIN EXCLUSIVE; DELETE FROM appoint; COMMIT"));
}

TEST_F(AppointmentStoreTest, HasNoRowsWithoutItsFileAndMakesNone) {
    store.OpenDatabase(folder.file("none.mdb"));
    EXPECT_THAT(allTexts(), IsEmpty());
    store.AddNew();
    store.Put(Column::Desc, "x");
    EXPECT_THROW(store.Update(), Failure);
    EXPECT_FALSE(folder.has("none.mdb"));
}

TEST_F(AppointmentStoreTest, FindsAFileThatComesLater) {
    store.OpenDatabase(folder.file("late.mdb"));
    EXPECT_THAT(allTexts(), IsEmpty());
    layDownDatabase(NativePath(folder.file("late.mdb")));
    test::addRawRow(folder.file("late.mdb"), rowOn("2026-03-12", 1, "late"));
    EXPECT_THAT(allTexts(), ElementsAre("late"));
}

TEST_F(AppointmentStoreTest, NeverTouchesAFileThatIsNotItsOwn) {
    std::string noise;
    for (int i = 0; i < 20000; ++i)
        noise += static_cast<char>(i * 7919 >> 3);
    using namespace std::string_literals;
    for (const std::string& bytes : {""s, noise, "SQLite format 3\0"s + noise,
                                     "\0\1\0\0Standard Jet DB\0"s + noise, "SQLite format 3\0"s}) {
        folder.write("foreign.mdb", bytes);
        store.OpenDatabase(folder.file("foreign.mdb"));
        EXPECT_THAT(allTexts(), IsEmpty());
        EXPECT_THAT(store.DayStyles(), IsEmpty());
        store.AddNew();
        store.Put(Column::Desc, "x");
        EXPECT_THROW(store.Update(), Failure);
        EXPECT_EQ(folder.read("foreign.mdb"), bytes);
        EXPECT_FALSE(folder.has("foreign.mdb-journal"));
    }
}

TEST_F(AppointmentStoreTest, NeverTouchesADatabaseWithoutTheTable) {
    {
        sqlite::Database database(NativePath(folder.file("strange.mdb")),
                                  sqlite::Access::ReadWriteOrCreate);
        database.execute("PRAGMA journal_mode = WAL; CREATE TABLE other (a)");
    }
    const std::string before = folder.read("strange.mdb");
    store.OpenDatabase(folder.file("strange.mdb"));
    EXPECT_THAT(allTexts(), IsEmpty());
    store.AddNew();
    EXPECT_THROW(store.Update(), Failure);
    EXPECT_EQ(folder.read("strange.mdb"), before);
}

TEST_F(AppointmentStoreTest, HasNoRowsWhileAnotherHoldsTheFile) {
    add(rowOn("2026-03-12", 1, "a"));
    {
        sqlite::Database other(NativePath(path), sqlite::Access::ReadWrite);
        other.execute("BEGIN EXCLUSIVE");
        EXPECT_THAT(allTexts(), IsEmpty());
        store.AddNew();
        EXPECT_THROW(store.Update(), Failure);
    }
    EXPECT_THAT(allTexts(), ElementsAre("a"));
}

TEST_F(AppointmentStoreTest, ReadsAFileThatMayNotBeWritten) {
    if (::geteuid() == 0 && ::seteuid(65534) != 0)
        GTEST_SKIP() << "can not act as another user";
    struct BackToMyself {
        ~BackToMyself() { EXPECT_EQ(::seteuid(::getuid()), 0); }
    } const back;
    ASSERT_EQ(::seteuid(::getuid()), 0);
    add(rowOn("2026-03-12", 1, "a"));
    std::filesystem::permissions(path, std::filesystem::perms(0444));
    std::filesystem::permissions(folder.path(), std::filesystem::perms(0555));
    if (::getuid() == 0) {
        ASSERT_EQ(::seteuid(65534), 0);
    }
    EXPECT_THAT(allTexts(), ElementsAre("a"));
    store.SelectAll();
    store.Refresh();
    store.Edit();
    store.Put(Column::Desc, "b");
    EXPECT_THROW(store.Update(), Failure);
    EXPECT_THAT(allTexts(), ElementsAre("a"));
    EXPECT_EQ(::seteuid(::getuid()), 0);
    std::filesystem::permissions(folder.path(), std::filesystem::perms(0755));
}

TEST_F(AppointmentStoreTest, GoesToTheNewFileWhenItsOwnIsReplaced) {
    add(rowOn("2026-03-12", 1, "old"));
    EXPECT_THAT(allTexts(), ElementsAre("old"));
    layDownDatabase(NativePath(folder.file("new.mdb")));
    test::addRawRow(folder.file("new.mdb"), rowOn("2026-03-12", 1, "new"));
    std::filesystem::rename(path, folder.file("before.mdb"));
    std::filesystem::rename(folder.file("new.mdb"), path);
    addNew("3/12/26", "added");
    EXPECT_THAT(allTexts(), ElementsAre("new", "added"));
    EXPECT_EQ(test::rawRows(folder.file("before.mdb")).size(), 1U);
}

TEST_F(AppointmentStoreTest, ChangesNoRowOfAFileThatCameMeanwhile) {
    add(rowOn("2026-03-12", 1, "old"));
    store.SelectAll();
    store.Refresh();
    store.Edit();
    store.Put(Column::Desc, "changed");
    layDownDatabase(NativePath(folder.file("new.mdb")));
    test::addRawRow(folder.file("new.mdb"), rowOn("2026-03-12", 1, "another's"));
    std::filesystem::rename(folder.file("new.mdb"), path);
    EXPECT_THROW(store.Update(), Failure);
    EXPECT_THROW(store.Delete(), Failure);
    EXPECT_EQ(rows()[0][4], "another's");
}

TEST_F(AppointmentStoreTest, LeavesNoTransactionOpenAfterAWrite) {
    addNew("3/12/26", "a");
    sqlite::Database other(NativePath(path), sqlite::Access::ReadWrite,
                           std::chrono::milliseconds(1));
    EXPECT_NO_THROW(other.execute("INSERT INTO appoint DEFAULT VALUES"));
    EXPECT_FALSE(folder.has("qel.mdb-journal"));
    EXPECT_FALSE(folder.has("qel.mdb-wal"));
}

TEST_F(AppointmentStoreTest, GivesTheStylesOfEachDayInTheOrderOfTheirLastRow) {
    using namespace std::chrono;
    add(rowOn("2026-03-12", 1, "", "Event"));
    add(rowOn("2026-03-13", 2, "", "Vacation"));
    add(rowOn("2026-03-12", 3, "", "Meeting"));
    add(rowOn("2026-03-12", 4, "", "Event"));
    add(rowOn("NULL", 5, "", "Other"));
    add(rowOn("nonsense", 6, "", "Other"));
    EXPECT_THAT(store.DayStyles(), ElementsAre(DayStyle{year(2026) / 3 / 12, "Meeting"},
                                               DayStyle{year(2026) / 3 / 12, "Event"},
                                               DayStyle{year(2026) / 3 / 13, "Vacation"}));
    EXPECT_EQ(store.recordSource(), "Appoint");
    EXPECT_TRUE(store.Eof());
    store.MoveFirst();
    EXPECT_EQ(store.Get(Column::StyleSet), "Event");
}

TEST_F(AppointmentStoreTest, GivesTheStylesOfTheDaysBetweenTwo) {
    using namespace std::chrono;
    add(rowOn("2026-03-14", 1, "", "Event"));
    add(rowOn("2026-03-12", 2, "", "Vacation"));
    add(rowOn("2026-03-11", 3, "", "Event"));
    add(rowOn("2026-03-12", 4, "", "Meeting"));
    add(rowOn("2026-03-13", 5, "", "Event"));
    add(rowOn("2026-03-12", 6, "", "Vacation"));
    add(rowOn("2026-03-1", 7, "", "Event"));
    add(rowOn("0999-03-12", 8, "", "Event"));
    add(rowOn("NULL", 9, "", "Event"));
    EXPECT_THAT(store.DayStylesBetween(year(2026) / 3 / 12, year(2026) / 3 / 13),
                ElementsAre(DayStyle{year(2026) / 3 / 12, "Meeting"},
                            DayStyle{year(2026) / 3 / 12, "Vacation"},
                            DayStyle{year(2026) / 3 / 13, "Event"}));
    EXPECT_THAT(store.DayStylesBetween(year(2026) / 3 / 15, year(2026) / 5 / 1), IsEmpty());
    EXPECT_EQ(store.NewDayStyles().size(), 6U) << "the others are still to be told";
}

TEST_F(AppointmentStoreTest, GivesTheStylesOfTheDaysBetweenTwoFromAFileWithoutTheIndex) {
    using namespace std::chrono;
    add(rowOn("2026-03-12", 1, "", "Vacation"));
    add(rowOn("2026-03-20", 2, "", "Event"));
    add(rowOn("2026-03-12", 3, "", "Meeting"));
    sqlite::Database(NativePath(path), sqlite::Access::ReadWrite).execute("DROP INDEX appoint_day");
    EXPECT_THAT(store.DayStylesBetween(year(2026) / 3 / 12, year(2026) / 3 / 13),
                testing::IsSupersetOf({DayStyle{year(2026) / 3 / 12, "Vacation"},
                                       DayStyle{year(2026) / 3 / 12, "Meeting"}}));
}

TEST_F(AppointmentStoreTest, ServesTwoCursorsThatDoNotMoveEachOther) {
    add(rowOn("2026-03-12", 1, "a"));
    add(rowOn("2026-03-12", 2, "b"));
    AppointmentStore second(CodePage::western(), clock, test::appointmentSource());
    second.OpenDatabase(path);
    store.SelectAll();
    store.Refresh();
    EXPECT_EQ(store.Get(Column::Desc), "a");
    second.SelectByDate("03/11/2026");
    second.Refresh();
    EXPECT_TRUE(second.Eof());
    store.MoveNext();
    EXPECT_EQ(store.Get(Column::Desc), "b");
}

}  // namespace
}  // namespace velmora
