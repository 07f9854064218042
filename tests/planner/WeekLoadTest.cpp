#include "planner/WeekLoad.h"

#include <gmock/gmock.h>

#include <filesystem>

#include "core/DataLocations.h"
#include "platform/files/PosixFiles.h"
#include "support/FakeWeekView.h"
#include "support/PlannerFixture.h"

namespace velmora {
namespace {

using test::rowOn;
using testing::Each;
using testing::ElementsAre;
using testing::IsEmpty;

// The month stands on Thursday, 12 March 2026.
class WeekLoadTest : public testing::Test, protected test::PlannerFixture {
  protected:
    void load() { week.Load(view); }
    void loadFrom(const std::string& date) {
        SSMonth1.date = date;
        load();
    }
    std::vector<std::string> allTexts() {
        std::vector<std::string> result;
        for (int day = 1; day <= kWeekDays; ++day)
            for (const std::string& text : view.texts(day))
                result.push_back(std::to_string(day) + " " + text);
        return result;
    }

    PosixFiles files{NativePaths(CodePage::western())};
    DataLocations locations{folder.path(), settings, files, CodePage::western()};
    test::FakeWeekView view;
    SqliteAppointmentSource source{files};
    WeekLoad week{locations, source, CodePage::western(), SSMonth1, clock, formats};
};

TEST_F(WeekLoadTest, TitleAndCaptionsNameTheSelectedDayAndTheSixBehindIt) {
    load();
    EXPECT_EQ(view.title, "Week at Glance From Thursday, March 12, 2026");
    EXPECT_THAT(view.captions(),
                ElementsAre("Friday, March 13, 2026", "Saturday, March 14, 2026",
                            "Sunday, March 15, 2026", "Monday, March 16, 2026",
                            "Tuesday, March 17, 2026", "Wednesday, March 18, 2026"));
}

TEST_F(WeekLoadTest, CaptionsHaveNoLeadingZeroAndTheTitleHasTheLocalesLongDate) {
    formats.longDate = "d. mmmm yyyy";
    loadFrom("02/27/2026");
    EXPECT_EQ(view.title, "Week at Glance From 27. February 2026");
    EXPECT_EQ(view.captions()[1], "Sunday, March 1, 2026");
}

TEST_F(WeekLoadTest, EachDayShowsItsRowsInTheOrderOfTheirCreationAndNoOtherDayShows) {
    add(rowOn("2026-03-12", 1, "the selected day"));
    add(rowOn("2026-03-13", 2, "late"));
    add(rowOn("2026-03-13", 3, "early"));
    add(rowOn("2026-03-18", 4, "last"));
    add(rowOn("2026-03-19", 5, "a week on"));
    add(rowOn("NULL", 6, "without a date"));
    load();
    EXPECT_THAT(allTexts(), ElementsAre("1 late", "1 early", "6 last"));
}

TEST_F(WeekLoadTest, ATaskHasTheTextsOfItsRowAndItsTag) {
    add({"2026-01-01 08:00:07", "2026-03-14", "11:00 AM", "1:00 PM",
         "Tea with \xC3\xA9 & <b>\r\n  two lines ", "Meeting"});
    add({"NULL", "2026-03-14", "NULL", "NULL", "NULL", "NULL"});
    load();
    ASSERT_EQ(view.days[1].tasks.size(), 2U);
    EXPECT_EQ(view.days[1].tasks[0],
              (DayTask{"11:00 AM", "1:00 PM", "Tea with \xE9 & <b>\r\n  two lines ",
                       "2026-01-01 08:00:07"}));
    EXPECT_EQ(view.days[1].tasks[1], (DayTask{"", "", "", ""}));
}

TEST_F(WeekLoadTest, EndsOfMonthAndYearAreCrossed) {
    add(rowOn("2026-12-31", 1, "old year"));
    add(rowOn("2027-01-01", 2, "new year"));
    loadFrom("12/30/2026");
    EXPECT_THAT(allTexts(), ElementsAre("1 old year", "2 new year"));
    EXPECT_EQ(view.captions()[1], "Friday, January 1, 2027");
}

TEST_F(WeekLoadTest, FebruaryHas29DaysInLeapYearsOnly) {
    loadFrom("02/28/2026");
    EXPECT_EQ(view.captions()[0], "Sunday, March 1, 2026");
    add(rowOn("2028-02-29", 1, "leap day"));
    loadFrom("02/28/2028");
    EXPECT_EQ(view.captions()[0], "Tuesday, February 29, 2028");
    EXPECT_EQ(view.captions()[1], "Wednesday, March 1, 2028");
    EXPECT_THAT(allTexts(), ElementsAre("1 leap day"));
}

TEST_F(WeekLoadTest, TheCenturyIsThatOfTheMonth) {
    add(rowOn("1925-03-13", 1, "long ago"));
    add(rowOn("2025-03-13", 2, "not this"));
    loadFrom("03/12/1925");
    EXPECT_THAT(allTexts(), ElementsAre("1 long ago"));
    add(rowOn("2100-01-01", 3, "next century"));
    loadFrom("12/31/2099");
    EXPECT_THAT(allTexts(), ElementsAre("1 next century"));
}

TEST_F(WeekLoadTest, TheLastDayThatAMonthHoldsIsFollowedByEmptyDays) {
    loadFrom("12/31/9999");
    EXPECT_EQ(view.title, "Week at Glance From Friday, December 31, 9999");
    EXPECT_THAT(allTexts(), IsEmpty());
}

TEST_F(WeekLoadTest, ALoadReplacesWhatTheOneBeforeShowed) {
    add(rowOn("2026-03-13", 1, "first"));
    load();
    add(rowOn("2026-03-14", 2, "second"));
    loadFrom("03/13/2026");
    EXPECT_EQ(view.removals, 2);
    EXPECT_THAT(allTexts(), ElementsAre("1 second"));
}

TEST_F(WeekLoadTest, AMissingDatabaseLeavesSixEmptyDaysUnderTheirCaptions) {
    add(rowOn("2026-03-13", 1, "gone"));
    load();
    std::filesystem::remove(path);
    load();
    EXPECT_THAT(allTexts(), IsEmpty());
    EXPECT_THAT(view.captions(), Each(testing::HasSubstr(", 2026")));
    EXPECT_FALSE(std::filesystem::exists(path));
}

TEST_F(WeekLoadTest, ALockedDatabaseLeavesSixEmptyDaysThatSaySo) {
    add(rowOn("2026-03-13", 1, "a"));
    load();
    {
        sqlite::Database other(NativePath(path), sqlite::Access::ReadWrite);
        other.execute("BEGIN EXCLUSIVE");
        EXPECT_FALSE(week.Load(view, WeekLoad::Locks::PassBy));
        EXPECT_THAT(allTexts(), IsEmpty());
        for (const auto& day : view.days)
            EXPECT_EQ(day.notice,
                      "This day can not be read: another program is using the planner.");
    }
    EXPECT_TRUE(week.Load(view, WeekLoad::Locks::PassBy));
    EXPECT_THAT(allTexts(), ElementsAre("1 a"));
    EXPECT_EQ(view.days[0].notice, "");
}

TEST_F(WeekLoadTest, AForeignFileLeavesSixEmptyDaysAndStaysAsItIs) {
    folder.write("qel.mdb", "no database");
    load();
    EXPECT_THAT(allTexts(), IsEmpty());
    EXPECT_EQ(folder.read("qel.mdb"), "no database");
}

TEST_F(WeekLoadTest, ReadsTheDatabaseThatTheSettingNamesNow) {
    std::filesystem::create_directory(folder.file("shared"));
    layDownDatabase(NativePath(folder.file("shared/qel.mdb")));
    test::addRawRow(folder.file("shared/qel.mdb"), rowOn("2026-03-13", 1, "shared"));
    add(rowOn("2026-03-13", 1, "own"));
    load();
    EXPECT_THAT(allTexts(), ElementsAre("1 own"));
    settings.Save("Calendar", folder.file("shared"));
    load();
    EXPECT_THAT(allTexts(), ElementsAre("1 shared"));
    settings.Save("Calendar", folder.file("nowhere"));
    load();
    EXPECT_THAT(allTexts(), ElementsAre("1 own"));
}

TEST_F(WeekLoadTest, LeavesThePlannersOwnCursorAlone) {
    add(rowOn("2026-03-12", 1, "on show"));
    store.SelectByDate("03/12/2026");
    store.Refresh();
    load();
    EXPECT_EQ(store.recordSource(), "select * from appoint where date = #03/12/2026#");
    EXPECT_EQ(store.Get(Column::Desc), "on show");
}

TEST_F(WeekLoadTest, KeepsNoFileOpen) {
    load();
    std::filesystem::rename(path, folder.file("moved.mdb"));
    layDownDatabase(NativePath(path));
    add(rowOn("2026-03-13", 1, "in the new file"));
    load();
    EXPECT_THAT(allTexts(), ElementsAre("1 in the new file"));
}

}  // namespace
}  // namespace velmora
