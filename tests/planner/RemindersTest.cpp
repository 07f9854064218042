#include "planner/Reminders.h"

#include <gmock/gmock.h>

#include "platform/Failure.h"
#include "support/FakeClock.h"
#include "support/MemorySettings.h"
#include "support/PrintDesk.h"

namespace velmora {
namespace {

using namespace std::chrono;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::SizeIs;

constexpr const char* kNone = "No Events Today.";

// It is Thursday, 12 March 2026, 10:42.
class RemindersTest : public testing::Test {
  protected:
    void on(year_month_day date) { clock.set(date, hours(10)); }
    void ahead(const std::string& days) { settings.Save("EventDays", days); }
    void occasion(const std::string& monthAndDay, const std::string& text) {
        put("Events\\" + monthAndDay + "\\", text);
    }
    void monthly(int day, const std::string& text) {
        put("Monthly\\" + std::to_string(day) + "\\", text);
    }
    void put(const std::string& prefix, const std::string& text) {
        const int number = readWhole(settings.Read(prefix + "NumTasks")) + 1;
        settings.Save(prefix + "NumTasks", std::to_string(number));
        settings.Save(prefix + std::to_string(number) + "M", text);
    }

    test::MemorySettings medium;
    SettingsStore settings{medium};
    test::FakeClock clock;
    LocaleFormats formats;
    int rings = 0;
    Reminders events{settings, clock, formats, [this] { ++rings; }};
};

TEST_F(RemindersTest, TheFourStepsStandOneBehindTheOther) {
    ahead("10");
    monthly(14, "Pay the rent");
    monthly(12, "Read the meters");
    occasion("March\\22", "Birthday: Hugo");
    occasion("March\\13", "Wedding anniversary");
    occasion("March\\12", "Birthday: Clara");
    occasion("March\\12", "Founding day");
    monthly(13, "Water the plants");
    EXPECT_THAT(events.Lines(),
                ElementsAre("TODAY - Birthday: Clara", "TODAY - Founding day",
                            "In  1 Day - Wedding anniversary", "In  10 Days - Birthday: Hugo",
                            "TODAY: Monthly Event - Read the meters",
                            "In  1 Day -  Monthly Event - Water the plants",
                            "In  2 Days -  Monthly Event - Pay the rent"));
}

TEST_F(RemindersTest, WithoutEventDaysOnlyTodayShows) {
    occasion("March\\12", "today");
    occasion("March\\13", "tomorrow");
    monthly(12, "today");
    monthly(13, "tomorrow");
    for (const char* days : {"", "0", "-1", "-2147483648", "many", "0.9", "   "}) {
        ahead(days);
        EXPECT_THAT(events.Lines(), ElementsAre("TODAY - today", "TODAY: Monthly Event - today"))
            << days;
    }
}

TEST_F(RemindersTest, EventDaysIsReadLeniently) {
    occasion("March\\14", "x");
    for (const char* days : {"2", " 2", "2.9", "2 days", "+2"}) {
        ahead(days);
        EXPECT_THAT(events.Lines(), ElementsAre("In  2 Days - x")) << days;
    }
}

TEST_F(RemindersTest, HugeEventDaysEndAfterAHundredYears) {
    occasion("March\\12", "x");
    for (const char* days : {"36525", "36526", "2147483647", "99999999999999999999", "1e30"}) {
        ahead(days);
        const auto lines = events.Lines();
        ASSERT_THAT(lines, SizeIs(101)) << days;
        EXPECT_EQ(lines[1], "In  365 Days - x");
    }
}

TEST_F(RemindersTest, AnOccasionOfThe29thOfFebruaryShowsInLeapYearsOnly) {
    occasion("February\\29", "Leap day");
    ahead("5");
    on(2026y / 2 / 26);
    EXPECT_THAT(events.Lines(), ElementsAre(kNone));
    on(2026y / 3 / 1);
    EXPECT_THAT(events.Lines(), ElementsAre(kNone));
    on(2028y / 2 / 28);
    EXPECT_THAT(events.Lines(), ElementsAre("In  1 Day - Leap day"));
    on(2028y / 2 / 29);
    EXPECT_THAT(events.Lines(), ElementsAre("TODAY - Leap day"));
}

TEST_F(RemindersTest, LookingAheadCrossesTheEndsOfMonthAndYear) {
    occasion("April\\01", "April");
    occasion("January\\01", "New Year");
    monthly(1, "first of the month");
    ahead("2");
    on(2026y / 3 / 30);
    EXPECT_THAT(events.Lines(), ElementsAre("In  2 Days - April",
                                            "In  2 Days -  Monthly Event - first of the month"));
    on(2026y / 12 / 31);
    EXPECT_THAT(events.Lines(), ElementsAre("In  1 Day - New Year",
                                            "In  1 Day -  Monthly Event - first of the month"));
}

TEST_F(RemindersTest, AMonthlyTaskOfThe31stIsNotReachedInAMonthOf30Days) {
    monthly(31, "Month end");
    ahead("3");
    on(2026y / 4 / 29);
    EXPECT_THAT(events.Lines(), ElementsAre(kNone));
    on(2026y / 3 / 29);
    EXPECT_THAT(events.Lines(), ElementsAre("In  2 Days -  Monthly Event - Month end"));
    on(2026y / 2 / 28);
    EXPECT_THAT(events.Lines(), ElementsAre(kNone));
    on(2026y / 3 / 31);
    EXPECT_THAT(events.Lines(), ElementsAre("TODAY: Monthly Event - Month end"));
}

TEST_F(RemindersTest, BlankTextsAreSkippedInAllFourSteps) {
    ahead("1");
    occasion("March\\12", "  ");
    occasion("March\\12", "");
    occasion("March\\13", " ");
    monthly(12, " ");
    monthly(13, "");
    EXPECT_THAT(events.Lines(), ElementsAre(kNone));
    EXPECT_THAT(events.Open(), ElementsAre(kNone));
    EXPECT_EQ(rings, 0);
}

TEST_F(RemindersTest, TextsShowAsTheyAre) {
    for (const char* text :
         {"A - B", "Tea & <b>cake</b>", " TODAY - x", "\xC4\x80\xFF", "a\r\nb"}) {
        medium.values.clear();
        occasion("March\\12", text);
        EXPECT_THAT(events.Lines(), ElementsAre("TODAY - " + std::string(text)));
    }
}

TEST_F(RemindersTest, EqualTextsShowEachForItself) {
    occasion("March\\12", "same");
    occasion("March\\12", "same");
    EXPECT_THAT(events.Lines(), ElementsAre("TODAY - same", "TODAY - same"));
}

TEST_F(RemindersTest, OpeningRingsOnceForTheWholeList) {
    ahead("1");
    occasion("March\\12", "a");
    occasion("March\\12", "b");
    occasion("March\\13", "c");
    EXPECT_THAT(events.Open(), SizeIs(3));
    EXPECT_EQ(rings, 1);
}

TEST_F(RemindersTest, OpeningAnEmptyListIsSilent) {
    EXPECT_THAT(events.Open(), ElementsAre(kNone));
    EXPECT_EQ(rings, 0);
}

TEST_F(RemindersTest, AtMidnightTheLinesMoveSilently) {
    occasion("March\\12", "a");
    occasion("March\\13", "b");
    ahead("1");
    (void)events.Open();
    clock.set(2026y / 3 / 12, hours(24) - seconds(1));
    EXPECT_THAT(events.Lines(), ElementsAre("TODAY - a", "In  1 Day - b"));
    clock.advance(seconds(1));
    EXPECT_THAT(events.Lines(), ElementsAre("TODAY - b"));
    EXPECT_EQ(rings, 1);
}

TEST_F(RemindersTest, OnlyLinesOfTodayAreAboutToday) {
    EXPECT_TRUE(isEventOfToday("TODAY - a"));
    EXPECT_TRUE(isEventOfToday("TODAY: Monthly Event - a"));
    EXPECT_FALSE(isEventOfToday("In  1 Day - TODAY - a"));
    EXPECT_FALSE(isEventOfToday(kNone));
    EXPECT_FALSE(isEventOfToday(""));
}

TEST_F(RemindersTest, PrintsItsLinesUnderAHeading) {
    test::PrintDesk desk;
    settings.Save("ListFont", "Times");
    events.Print(desk.printing, {"TODAY - Tea & <b>cake</b>", "In  1 Day - x"});
    EXPECT_EQ(desk.printer.takeDump(),
              "printer Pocket, portrait\n"
              "page 1\n"
              "0.000 0.000 Times 13 bold |Events and Occasions for March 12, 2026|\n"
              "0.000 0.508 Times 13 bold |TODAY - Tea & <b>cake</b>|\n"
              "0.000 0.716 Times 13 bold |In  1 Day - x|\n");
}

TEST_F(RemindersTest, AnEmptyListIsPrintedAsItShows) {
    test::PrintDesk desk;
    events.Print(desk.printing, {kNone});
    EXPECT_THAT(desk.printer.takeDump(), testing::HasSubstr("|No Events Today.|"));
}

TEST_F(RemindersTest, AListOfManyLinesGoesOnOnFurtherPages) {
    test::PrintDesk desk;
    events.Print(desk.printing, std::vector<std::string>(100, "line"));
    const auto jobs = desk.printer.takeJobs();
    ASSERT_THAT(jobs, SizeIs(1));
    EXPECT_THAT(jobs[0].pages, SizeIs(3));
}

TEST_F(RemindersTest, APrinterThatFailsIsTold) {
    test::PrintDesk desk;
    desk.printer.refusal = "The printer is on fire.";
    events.Print(desk.printing, {kNone});
    EXPECT_THAT(desk.messages.takeShown(), ElementsAre("error|Velmora|The printer is on fire."));
}

}  // namespace
}  // namespace velmora
