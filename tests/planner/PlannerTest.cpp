#include "planner/Planner.h"

#include <gmock/gmock.h>

#include <filesystem>

#include "planner/StoredText.h"
#include "platform/DateText.h"
#include "platform/Failure.h"
#include "support/PlannerFixture.h"

namespace velmora {
namespace {

using test::RawRow;
using test::rowOn;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::Pair;

constexpr Rgb kBlack{0, 0, 0};
constexpr Rgb kRed{255, 0, 0};
constexpr Rgb kYellow{255, 255, 0};
constexpr Rgb kGreen{0, 255, 0};
constexpr Rgb kCyan{0, 255, 255};

class PlannerTest : public testing::Test, protected test::PlannerFixture {
  protected:
    void show(const std::string& date) { SSMonth1.SetDate(date); }

    // The user makes a block and leaves it.
    void create(const std::string& begin, const std::string& end, const std::string& text) {
        SSDay1.tasks.push_back({begin, end, text, ""});
        const int index = static_cast<int>(SSDay1.tasks.size()) - 1;
        planner.OnTaskEditBegin(index, false);
        planner.OnTaskEditEnd(index, false, true);
    }

    void change(int index, const std::string& text) {
        planner.OnTaskEditBegin(index, !SSDay1.Task(index).TagVariant.empty());
        SSDay1.tasks[static_cast<std::size_t>(index)].text = text;
        planner.OnTaskEditEnd(index, false, true);
    }

    void remove(int index) {
        SSDay1.selected = index;
        planner.OnTaskRemove();
        SSDay1.tasks.erase(SSDay1.tasks.begin() + index);
        SSDay1.selected = -1;
    }
};

TEST_F(PlannerTest, MakesFiveStylesOnEachCalendar) {
    EXPECT_THAT(
        SSMonth1.looks,
        ElementsAre(Pair("Event", StyleSet{kRed, {}}), Pair("Meeting", StyleSet{{}, kYellow}),
                    Pair("None", StyleSet{kBlack, {}}), Pair("Other", StyleSet{{}, kCyan}),
                    Pair("Vacation", StyleSet{{}, kGreen})));
    EXPECT_THAT(
        SSYear1.looks,
        ElementsAre(Pair("Event", StyleSet{{}, kRed}), Pair("Meeting", StyleSet{{}, kYellow}),
                    Pair("None", StyleSet{kBlack, {}}), Pair("Other", StyleSet{{}, kCyan}),
                    Pair("Vacation", StyleSet{{}, kGreen})));
}

TEST_F(PlannerTest, BringsBackTheAppointmentRemovedLastAsItWas) {
    const RawRow kept = {
        "2026-01-01 08:00:01", "2026-03-12", "1:00 PM", "2 PM", "Lunch", "Vacation"};
    add(rowOn("2026-03-12", 7, "stays"));
    add(kept);
    show("03/12/2026");
    remove(1);
    ASSERT_EQ(rows().size(), 1U);
    planner.OnUndoRemoval();
    ASSERT_EQ(rows().size(), 2U);
    EXPECT_EQ(rows()[1], kept);
    EXPECT_THAT(SSDay1.texts(), ElementsAre("stays", "Lunch"));
    EXPECT_EQ(SSDay1.selected, 1);
    EXPECT_EQ(SSMonth1.styleOf("03/12/2026"), "Vacation");
    EXPECT_EQ(status.text, "The appointment was brought back.");
}

TEST_F(PlannerTest, BringsBackOneAfterTheOtherAndShowsTheirDays) {
    add(rowOn("2026-03-12", 1, "first"));
    add(rowOn("2026-03-13", 2, "second"));
    show("03/12/2026");
    remove(0);
    show("03/13/2026");
    remove(0);
    show("05/05/2026");
    planner.OnUndoRemoval();
    EXPECT_EQ(SSMonth1.date, "03/13/2026");
    EXPECT_THAT(SSDay1.texts(), ElementsAre("second"));
    planner.OnUndoRemoval();
    EXPECT_EQ(SSMonth1.date, "03/12/2026");
    planner.OnUndoRemoval();
    EXPECT_EQ(status.text, "There is no removed appointment to bring back.");
    EXPECT_EQ(rows().size(), 2U);
}

TEST_F(PlannerTest, SaysThatAnAppointmentCouldNotBeBroughtBackAndKeepsIt) {
    add(rowOn("2026-03-12", 1, "first"));
    show("03/12/2026");
    remove(0);
    store.OpenDatabase(folder.file("nowhere.mdb"));
    planner.OnUndoRemoval();
    EXPECT_EQ(status.text, "The appointment could not be brought back.");
    store.OpenDatabase(path);
    planner.OnUndoRemoval();
    EXPECT_EQ(rows().size(), 1U);
}

TEST_F(PlannerTest, SetsTheLastTimeFirst) {
    planner.SetTimeLimits();
    EXPECT_THAT(SSDay1.limits, ElementsAre("last 11:00 PM", "first 12:00 AM"));
}

TEST_F(PlannerTest, TakesTheTimesFromTheSettings) {
    settings.Save("PlannerEnd", "17");
    settings.Save("PlannerStart", "08");
    planner.SetTimeLimits();
    EXPECT_THAT(SSDay1.limits, ElementsAre("last 5:00 PM", "first 8:00 AM"));
}

TEST_F(PlannerTest, TakesZeroAndNonsenseAsUnset) {
    for (const char* value : {"0", "00", "", "soon"}) {
        settings.Save("PlannerEnd", value);
        settings.Save("PlannerStart", value);
        SSDay1.limits.clear();
        planner.SetTimeLimits();
        EXPECT_THAT(SSDay1.limits, ElementsAre("last 11:00 PM", "first 12:00 AM")) << value;
    }
}

TEST_F(PlannerTest, GivesAnHourThatIsNoneAsItIsAndGoesOn) {
    settings.Save("PlannerEnd", "24");
    settings.Save("PlannerStart", "12");
    SSDay1.refusesLastTime = true;
    planner.SetTimeLimits();
    EXPECT_THAT(SSDay1.limits, ElementsAre("last 24:00", "first 12:00 PM"));
}

TEST_F(PlannerTest, ColoursNothingFromAnEmptyTable) {
    planner.UpdateDays();
    EXPECT_THAT(SSMonth1.styles, IsEmpty());
    EXPECT_THAT(SSYear1.styles, IsEmpty());
    show("03/12/2026");
    EXPECT_THAT(SSDay1.tasks, IsEmpty());
}

TEST_F(PlannerTest, ColoursTheYearBeforeTheMonthEachPaintingOnce) {
    std::vector<std::string> order;
    SSMonth1.order = SSYear1.order = &order;
    add(rowOn("2026-03-12", 1, "", "Meeting"));
    add(rowOn("2026-03-13", 2, ""));
    planner.UpdateDays();
    EXPECT_THAT(order, ElementsAre("year 03/12/2026 Meeting", "year 03/13/2026 Event",
                                   "month 03/12/2026 Meeting", "month 03/13/2026 Event"));
    EXPECT_EQ(SSMonth1.paintings, 1);
    EXPECT_EQ(SSYear1.paintings, 1);
}

TEST_F(PlannerTest, LetsTheLastRowOfADayWinThatHasAKnownStyle) {
    add(rowOn("2026-03-12", 1, "", "Vacation"));
    add(rowOn("2026-03-12", 2, "", "Meeting"));
    add(rowOn("2026-03-12", 3, "", "Party"));
    add({"2026-01-01 08:00:04", "2026-03-12", "", "", "", "NULL"});
    planner.UpdateDays();
    EXPECT_EQ(SSMonth1.styleOf("03/12/2026"), "Meeting");
    EXPECT_EQ(SSYear1.styleOf("03/12/2026"), "Meeting");
}

TEST_F(PlannerTest, ColoursTheDaysAroundTheDateFirstAndTheOthersAfterwards) {
    add(rowOn("2026-03-12", 1, "", "Vacation"));
    add(rowOn("2026-02-22", 2, ""));
    add(rowOn("2026-04-11", 3, ""));
    add(rowOn("2025-12-24", 4, ""));
    add(rowOn("2026-07-04", 5, ""));
    add(rowOn("2026-03-12", 6, "", "Meeting"));
    const std::map<std::string, std::string> around = {
        {"02/22/2026", "Event"}, {"03/12/2026", "Meeting"}, {"04/11/2026", "Event"}};
    std::map<std::string, std::string> all = around;
    all["12/24/2025"] = all["07/04/2026"] = "Event";
    planner.BeginColours();
    EXPECT_EQ(SSMonth1.styles, around);
    EXPECT_EQ(SSYear1.styles, around);
    planner.TryAgain();
    EXPECT_EQ(SSMonth1.styles, around) << "a tick of the clock comes before the window is painted";
    planner.UpdateDays();
    EXPECT_EQ(SSMonth1.styles, all);
    EXPECT_EQ(SSYear1.styles, all);
}

TEST_F(PlannerTest, ColoursAllDaysBeforeAYearIsShown) {
    add(rowOn("2026-07-04", 1, ""));
    planner.BeginColours();
    EXPECT_EQ(SSYear1.styleOf("07/04/2026"), "");
    planner.OpenYear();
    EXPECT_EQ(SSYear1.styleOf("07/04/2026"), "Event");
    EXPECT_EQ(SSMonth1.styleOf("07/04/2026"), "Event");
}

TEST_F(PlannerTest, ColoursAllDaysWhenAnEditEndsBeforeTheOthersHadTheirTurn) {
    add(rowOn("2026-07-04", 1, ""));
    planner.BeginColours();
    planner.OnTaskEditEnd(-1, false, false);
    EXPECT_EQ(SSMonth1.styleOf("07/04/2026"), "Event");
}

TEST_F(PlannerTest, PassesOverDatesThatACalendarCanNotShow) {
    add(rowOn("0100-06-01", 1, ""));
    add(rowOn("NULL", 2, ""));
    add(rowOn("garbage", 3, ""));
    add(rowOn("2026-03-12", 4, ""));
    planner.UpdateDays();
    EXPECT_THAT(SSMonth1.styles,
                ElementsAre(Pair("03/12/2026", "Event"), Pair("06/01/0100", "Event")));
    EXPECT_THAT(SSYear1.styles, ElementsAre(Pair("03/12/2026", "Event")));
}

TEST_F(PlannerTest, GivesTheSameColoursAsAWalkOverAllRows) {
    const char* styles[] = {"Event", "Meeting", "Vacation", "Other", "None", "Party", "NULL"};
    std::map<std::string, std::string> expected;
    unsigned random = 12345;
    {
        sqlite::Database database(NativePath(path), sqlite::Access::ReadWrite);
        sqlite::Transaction transaction(database);
        auto insert = database.prepare(
            R"(INSERT INTO appoint ("Date", "StyleSet") VALUES (?1, nullif(?2, 'NULL')))");
        for (int i = 0; i < 3000; ++i) {
            random = random * 1664525 + 1013904223;
            const unsigned day = random >> 8 & 15;
            const std::string style = styles[(random >> 16) % 7];
            const std::string digits = std::to_string(day + 10);
            insert.bindText(1, "2026-03-" + digits).bindText(2, style).run();
            if (SSMonth1.looks.count(style))
                expected["03/" + digits + "/2026"] = style;
        }
        transaction.commit();
    }
    planner.UpdateDays();
    EXPECT_EQ(SSMonth1.styles, expected);
    EXPECT_EQ(SSYear1.styles, expected);
}

// Edits of this copy and of another one in any order, in a table with and without the index that
// leads from day to day: the calendars look as after a walk over all rows behind each edit.
TEST_F(PlannerTest, ColoursAfterEachEditAsAWalkDoes) {
    for (const bool indexed : {true, false}) {
        if (!indexed)
            sqlite::Database(NativePath(path), sqlite::Access::ReadWrite)
                .execute("DROP INDEX appoint_day");
        store.OpenDatabase(path);
        const char* styles[] = {"Event", "Meeting", "Vacation", "None", "Party", "NULL"};
        std::map<std::string, std::string> walked = SSMonth1.styles;
        const auto walk = [&] {
            for (const RawRow& row : rows())
                if (const auto day = readStoredDay(row[1]); day && SSMonth1.looks.count(row[5]))
                    walked[writeDate(*day)] = row[5];
        };
        unsigned random = indexed ? 4711 : 815;
        const auto next = [&](unsigned below) {
            random = random * 1664525 + 1013904223;
            return (random >> 16) % below;
        };
        for (int i = 0; i < 150; ++i) {
            const std::string day = std::to_string(next(4) + 10);
            if (next(3) == 0)
                add(rowOn("2026-03-" + day, static_cast<int>(next(60)), "theirs", styles[next(6)]));
            show("03/" + day + "/2026");
            const unsigned count = static_cast<unsigned>(SSDay1.tasks.size());
            if (count > 0 && next(2) == 0) {
                const std::string removedOn = SSMonth1.date;
                remove(static_cast<int>(next(count)));
                walked[removedOn] = "None";
            } else if (count > 0 && next(2) == 0) {
                change(static_cast<int>(next(count)), "changed");
            } else {
                create("09:00 AM", "10:00 AM", "ours");
            }
            walk();
            ASSERT_EQ(SSMonth1.styles, walked) << i;
            ASSERT_EQ(SSYear1.styles, walked) << i;
            clock.advance(std::chrono::seconds(1));
        }
    }
}

TEST_F(PlannerTest, ColoursNoMoreDaysThanAnEditCanHaveChanged) {
    for (int day = 1; day <= 28; ++day)
        add(rowOn("2026-02-" + std::string(day < 10 ? "0" : "") + std::to_string(day), day, ""));
    planner.UpdateDays();
    std::vector<std::string> order;
    SSMonth1.order = &order;
    show("03/12/2026");
    create("09:00 AM", "10:00 AM", "ours");
    EXPECT_THAT(order, ElementsAre("month 03/12/2026 Event"));
    add(rowOn("2026-03-20", 1, "theirs"));
    order.clear();
    create("10:00 AM", "11:00 AM", "ours");
    EXPECT_EQ(order.size(), 30U);
}

TEST_F(PlannerTest, FillsTheDayInTheOrderOfTheStore) {
    add({"2026-01-01 08:00:09", "2026-03-12", "11:00 AM", "1:00 PM", "later", "Event"});
    add({"2026-01-01 08:00:01", "2026-03-13", "08:00 AM", "09:00 AM", "other day", "Event"});
    add({"2026-01-01 08:00:03", "2026-03-12", "", "NULL", "one\r\ntwo", "Event"});
    show("03/12/2026");
    EXPECT_THAT(SSDay1.tasks,
                ElementsAre(DayTask{"11:00 AM", "1:00 PM", "later", "2026-01-01 08:00:09"},
                            DayTask{"", "", "one\r\ntwo", "2026-01-01 08:00:03"}));
    EXPECT_EQ(planner.SelectedDate(), "03/12/26");
    EXPECT_EQ(store.recordSource(), "select * from appoint where date = #03/12/26#");
    EXPECT_TRUE(store.Eof());
}

TEST_F(PlannerTest, ShowsTheDayThatIsSelectedWhateverItsCentury) {
    add(rowOn("1812-03-12", 1, "then"));
    add(rowOn("2026-03-12", 2, "now"));
    add(rowOn("0100-01-01", 3, "first"));
    add(rowOn("9999-12-31", 4, "last"));
    show("03/12/1812");
    EXPECT_THAT(SSDay1.texts(), ElementsAre("then"));
    show("01/01/0100");
    EXPECT_THAT(SSDay1.texts(), ElementsAre("first"));
    show("12/31/9999");
    EXPECT_THAT(SSDay1.texts(), ElementsAre("last"));
}

TEST_F(PlannerTest, StoresANewBlockWithThePresentMomentAsItsTag) {
    show("03/09/2026");
    create("09:00 AM", "09:30 AM", "dentist & co\r\nbring x-ray  ");
    EXPECT_THAT(rows(), ElementsAre(RawRow{"2026-03-12 10:42:00", "2026-03-09", "09:00 AM",
                                           "09:30 AM", "dentist & co\r\nbring x-ray  ", "Event"}));
    EXPECT_EQ(SSDay1.Task(0).TagVariant, "2026-03-12 10:42:00");
    EXPECT_EQ(SSMonth1.styleOf("03/09/2026"), "Event");
    EXPECT_EQ(SSYear1.styleOf("03/09/2026"), "Event");
    EXPECT_EQ(SSDay1.refreshes, 1);
}

TEST_F(PlannerTest, OverwritesTimesTextAndStyleInAnEdit) {
    add({"2026-01-01 08:00:01", "2026-03-12", "11:00 AM", "1:00 PM", "imported", "Vacation"});
    show("03/12/2026");
    change(0, "kept");
    EXPECT_THAT(rows(), ElementsAre(RawRow{"2026-01-01 08:00:01", "2026-03-12", "11:00 AM",
                                           "1:00 PM", "kept", "Event"}));
}

TEST_F(PlannerTest, MovesABlockByADragAsByAnyEdit) {
    show("03/12/2026");
    create("09:00 AM", "10:00 AM", "a");
    planner.OnTaskEditBegin(0, true);
    SSDay1.tasks[0].EndTime = "11:00 AM";
    planner.OnTaskEditEnd(0, true, true);
    ASSERT_EQ(rows().size(), 1U);
    EXPECT_EQ(rows()[0][3], "11:00 AM");
    EXPECT_EQ(SSDay1.refreshes, 1);  // none for the drag, which kept the painting to itself
}

TEST_F(PlannerTest, StoresNothingWithoutSaveAndColoursYet) {
    show("03/12/2026");
    add(rowOn("2026-03-20", 1, ""));
    SSDay1.tasks.push_back({"09:00 AM", "10:00 AM", "a", ""});
    planner.OnTaskEditBegin(0, false);
    planner.OnTaskEditEnd(0, false, false);
    EXPECT_EQ(rows().size(), 1U);
    EXPECT_EQ(SSMonth1.styleOf("03/20/2026"), "Event");
    EXPECT_EQ(SSDay1.refreshes, 1);
}

TEST_F(PlannerTest, StoresNothingForIndexMinusOneAndColoursYet) {
    show("03/12/2026");
    add(rowOn("2026-03-20", 1, ""));
    planner.OnTaskEditBegin(0, false);
    planner.OnTaskEditEnd(-1, false, true);
    EXPECT_EQ(rows().size(), 1U);
    EXPECT_EQ(SSMonth1.styleOf("03/20/2026"), "Event");
    EXPECT_EQ(SSDay1.refreshes, 0);
}

TEST_F(PlannerTest, WritesNothingForABlockThatIsNotThere) {
    add(rowOn("2026-03-12", 1, "a"));
    show("03/12/2026");
    planner.OnTaskEditBegin(7, true);
    planner.OnTaskEditEnd(7, false, true);
    EXPECT_EQ(rows()[0][4], "a");
    EXPECT_EQ(rows()[0][2], "09:00 AM");
}

TEST_F(PlannerTest, ChangesTheFirstRowOfATagThatTwoShare) {
    show("03/12/2026");
    create("09:00 AM", "10:00 AM", "first");
    create("10:00 AM", "11:00 AM", "second");
    ASSERT_EQ(SSDay1.Task(0).TagVariant, SSDay1.Task(1).TagVariant);
    change(1, "changed");
    EXPECT_EQ(rows()[0][4], "changed");
    EXPECT_EQ(rows()[1][4], "second");
}

TEST_F(PlannerTest, ChangesTheFirstRowOfATagOnTheDayOnly) {
    add(rowOn("2026-03-11", 1, "yesterday"));
    add(rowOn("2026-03-12", 1, "today"));
    show("03/12/2026");
    change(0, "changed");
    EXPECT_EQ(rows()[0][4], "yesterday");
    EXPECT_EQ(rows()[1][4], "changed");
}

TEST_F(PlannerTest, RemovesTheFirstRowOfATagInTheWholeTable) {
    add(rowOn("2026-03-11", 1, "yesterday"));
    add(rowOn("2026-03-12", 1, "today"));
    planner.UpdateDays();
    show("03/12/2026");
    remove(0);
    ASSERT_EQ(rows().size(), 1U);
    EXPECT_EQ(rows()[0][4], "today");
    EXPECT_EQ(SSMonth1.styleOf("03/12/2026"), "Event");  // a row is left on it
    EXPECT_EQ(SSMonth1.styleOf("03/11/2026"), "Event");  // keeps its colour for now
}

TEST_F(PlannerTest, LandsOnTheFirstRowOfTheDayWhenTheRowIsGone) {
    add(rowOn("2026-03-12", 1, "first"));
    add(rowOn("2026-03-12", 2, "gone"));
    show("03/12/2026");
    sqlite::Database(NativePath(path), sqlite::Access::ReadWrite)
        .execute("DELETE FROM appoint WHERE \"Desc\" = 'gone'");
    change(1, "changed");
    ASSERT_EQ(rows().size(), 1U);
    EXPECT_THAT(rows()[0], ElementsAre("2026-01-01 08:00:01", "2026-03-12", "09:00 AM", "10:00 AM",
                                       "changed", "Event"));
}

TEST_F(PlannerTest, WritesNothingWhenAllRowsOfTheDayAreGone) {
    add(rowOn("2026-03-12", 1, "a"));
    show("03/12/2026");
    sqlite::Database(NativePath(path), sqlite::Access::ReadWrite).execute("DELETE FROM appoint");
    change(0, "changed");
    EXPECT_THAT(rows(), IsEmpty());
}

TEST_F(PlannerTest, ClearsTheDayOfItsOnlyRow) {
    add(rowOn("2026-03-12", 1, "a"));
    planner.UpdateDays();
    show("03/12/2026");
    std::vector<std::string> order;
    SSMonth1.order = SSYear1.order = &order;
    remove(0);
    EXPECT_THAT(rows(), IsEmpty());
    EXPECT_THAT(order, ElementsAre("year 03/12/2026 None", "month 03/12/2026 None"));
}

TEST_F(PlannerTest, KeepsTheColourOfADayWithAnotherRow) {
    add(rowOn("2026-03-12", 1, "a"));
    add(rowOn("2026-03-12", 2, "b"));
    show("03/12/2026");
    remove(0);
    EXPECT_EQ(SSMonth1.styleOf("03/12/2026"), "Event");
    EXPECT_EQ(SSYear1.styleOf("03/12/2026"), "Event");
}

TEST_F(PlannerTest, RemovesNothingForABlockWithoutATag) {
    add(rowOn("2026-03-12", 1, "a"));
    show("03/12/2026");
    SSDay1.tasks[0].TagVariant = "";
    SSDay1.selected = 0;
    planner.OnTaskRemove();
    SSDay1.selected = -1;
    planner.OnTaskRemove();
    EXPECT_EQ(rows().size(), 1U);
}

TEST_F(PlannerTest, TakesTheTagBackWhenANewRowCanNotBeStored) {
    show("03/12/2026");
    {
        sqlite::Database other(NativePath(path), sqlite::Access::ReadWrite);
        other.execute("BEGIN IMMEDIATE");
        create("09:00 AM", "10:00 AM", "a");
    }
    EXPECT_EQ(SSDay1.Task(0).TagVariant, "");
    EXPECT_THAT(rows(), IsEmpty());
    change(0, "again");
    ASSERT_EQ(rows().size(), 1U);
    EXPECT_EQ(rows()[0][4], "again");
}

TEST_F(PlannerTest, GoesOnWithoutADatabase) {
    std::filesystem::remove(path);
    show("03/12/2026");
    create("09:00 AM", "10:00 AM", "a");
    remove(0);
    planner.UpdateDays();
    EXPECT_THAT(SSDay1.tasks, IsEmpty());
    EXPECT_FALSE(folder.has("qel.mdb"));
}

TEST_F(PlannerTest, LeavesAllRowsAtTheEndAfterEveryEdit) {
    add(rowOn("2026-03-12", 1, "a"));
    show("03/12/2026");
    const auto expectEnd = [&] {
        EXPECT_EQ(store.recordSource(), "Appoint");
        EXPECT_TRUE(store.Eof());
    };
    planner.UpdateDays();
    expectEnd();
    show("03/12/2026");
    planner.OnTaskEditEnd(-1, false, false);
    expectEnd();
    show("03/12/2026");
    change(0, "b");
    expectEnd();
    show("03/12/2026");
    remove(0);
    expectEnd();
}

TEST_F(PlannerTest, ShowsTheLongDateOfTheMonth) {
    show("03/12/2026");
    EXPECT_EQ(desk.longDate, "Thursday, March 12, 2026");
}

TEST_F(PlannerTest, LoadsNothingForAnEmptySelection) {
    show("03/12/2026");
    const int before = SSDay1.removals;
    planner.OnMonthSelection("");
    EXPECT_EQ(SSDay1.removals, before);
    EXPECT_EQ(planner.SelectedDate(), "");
}

TEST_F(PlannerTest, TellsTheKeyForTodayWhileTheMonthHasTheFocus) {
    planner.OnMonthGotFocus();
    EXPECT_EQ(status.text, "Press CTRL+T to go to today.");
    planner.OnMonthLostFocus();
    EXPECT_EQ(status.text, "");
}

TEST_F(PlannerTest, TellsAboutTheDividersOverTheDay) {
    planner.OnDayPointerMoved();
    EXPECT_EQ(status.text, "Drag horizontal divider bars to adjust times.");
}

TEST_F(PlannerTest, GoesToToday) {
    show("01/01/1990");
    add(rowOn("2026-03-12", 1, "today"));
    planner.GoToToday();
    EXPECT_EQ(SSMonth1.Date(), "03/12/2026");
    EXPECT_THAT(SSDay1.texts(), ElementsAre("today"));
}

TEST_F(PlannerTest, LeavesEverythingWhenADropHitsNoDate) {
    show("03/12/2026");
    SSDay1.tasks.push_back({"", "", "on show", ""});
    EXPECT_FALSE(planner.OnMonthDrop(500, 0, true));
    EXPECT_FALSE(planner.OnMonthDrop(-1, 0, true));
    EXPECT_THAT(SSDay1.texts(), ElementsAre("on show"));
    EXPECT_EQ(SSMonth1.Date(), "03/12/2026");
    EXPECT_EQ(planner.SelectedDate(), "03/12/26");
    EXPECT_EQ(SSMonth1.refreshes, 2);
    EXPECT_EQ(SSDay1.refreshes, 2);
}

TEST_F(PlannerTest, ShowsTheDayOfADropAndTheMenuForTheSelectedEntry) {
    add(rowOn("2026-03-02", 1, "there"));
    show("03/12/2026");
    EXPECT_TRUE(planner.OnMonthDrop(15, 3, true));
    EXPECT_EQ(SSMonth1.Date(), "03/02/2026");
    EXPECT_EQ(planner.SelectedDate(), "03/02/26");
    EXPECT_THAT(SSDay1.texts(), ElementsAre("there"));
}

TEST_F(PlannerTest, ShowsTheDayOfAForeignDropWithoutTheMenu) {
    show("03/12/2026");
    EXPECT_FALSE(planner.OnMonthDrop(15, 3, false));
    EXPECT_EQ(SSMonth1.Date(), "03/02/2026");
}

TEST_F(PlannerTest, LeavesADropOnADateThatTheMonthRefuses) {
    show("03/12/2026");
    SSMonth1.datesInView = {"no date"};
    EXPECT_FALSE(planner.OnMonthDrop(0, 0, true));
    EXPECT_EQ(SSMonth1.Date(), "03/12/2026");
}

TEST_F(PlannerTest, OpensTheYearOnTheDateOfTheMonth) {
    show("07/04/2030");
    planner.OpenYear();
    EXPECT_EQ(SSYear1.Date(), "07/04/2030");
    EXPECT_TRUE(desk.yearPaneShows);
    EXPECT_EQ(planner.SelectedDate(), "07/04/2030");
    EXPECT_EQ(status.text, "Double-click a date or click the caption to close.");
}

TEST_F(PlannerTest, OpensTheYearWhereItIsWhenTheDateIsOutOfItsReach) {
    for (const char* date : {"06/01/0100", "12/31/9999"}) {
        show(date);
        desk.yearPaneShows = false;
        planner.OpenYear();
        EXPECT_TRUE(desk.yearPaneShows);
        EXPECT_EQ(SSYear1.Date(), "03/12/2026");
    }
}

TEST_F(PlannerTest, LeavesTheMonthWhenTheYearIsClosedByItsCaption) {
    show("03/12/2026");
    planner.OpenYear();
    SSYear1.SetDate("12/24/2031");
    planner.OnYearCaptionClick();
    EXPECT_FALSE(desk.yearPaneShows);
    EXPECT_EQ(SSMonth1.Date(), "03/12/2026");
    EXPECT_EQ(planner.SelectedDate(), "12/24/2031");
    show("03/13/2026");
    EXPECT_EQ(planner.SelectedDate(), "03/13/26");
}

TEST_F(PlannerTest, LoadsADateOfTheYearTwice) {
    add(rowOn("2031-12-24", 1, "there"));
    show("03/12/2026");
    planner.OpenYear();
    SSYear1.SetDate("12/24/2031");
    const int before = SSDay1.removals;
    planner.OnYearDoubleClick();
    EXPECT_EQ(SSDay1.removals - before, 4);  // each load is preceded by one more removal
    EXPECT_FALSE(desk.yearPaneShows);
    EXPECT_EQ(SSMonth1.Date(), "12/24/2031");
    EXPECT_THAT(SSDay1.texts(), ElementsAre("there"));
}

TEST_F(PlannerTest, ShowsADistantDateOfTheYearInItsOwnCentury) {
    add(rowOn("2126-03-12", 1, "then"));
    show("03/12/2026");
    planner.OpenYear();
    SSYear1.SetDate("03/12/2126");
    planner.OnYearDoubleClick();
    EXPECT_THAT(SSDay1.texts(), ElementsAre("then"));
}

TEST_F(PlannerTest, LoadsAgainForTheSameDateOfTheYear) {
    show("03/12/2026");
    planner.OpenYear();
    add(rowOn("2026-03-12", 1, "new"));
    planner.OnYearDoubleClick();
    EXPECT_THAT(SSDay1.texts(), ElementsAre("new"));
}

TEST_F(PlannerTest, BringsTheMonthToTheDayOnShowBeforeAnEdit) {
    add(rowOn("2026-03-12", 1, "month's"));
    add(rowOn("2026-03-20", 2, "shown"));
    show("03/12/2026");
    planner.OpenYear();
    SSYear1.SetDate("03/20/2026");
    planner.OnYearCaptionClick();
    planner.LoadDayTasks();  // as a scheduling command does
    ASSERT_THAT(SSDay1.texts(), ElementsAre("shown"));
    ASSERT_EQ(SSMonth1.Date(), "03/12/2026");
    planner.AlignMonthWithDayOnShow();
    EXPECT_EQ(SSMonth1.Date(), "03/20/2026");
    change(0, "changed");
    EXPECT_EQ(rows()[0][4], "month's");
    EXPECT_EQ(rows()[1][4], "changed");
}

TEST_F(PlannerTest, LeavesTheMonthAloneWhenItHasTheDayOnShow) {
    show("03/12/2026");
    const int before = SSDay1.removals;
    planner.AlignMonthWithDayOnShow();
    EXPECT_EQ(SSDay1.removals, before);
}

}  // namespace
}  // namespace velmora
