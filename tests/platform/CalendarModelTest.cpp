#include "platform/calendar/CalendarModel.h"

#include <gtest/gtest.h>

#include "platform/Failure.h"

namespace velmora {
namespace {

using namespace std::chrono;

class CalendarModelTest : public testing::Test {
  protected:
    CalendarModel calendar{year(100) / 1 / 1, year(9999) / 12 / 31, year(2026) / 3 / 12,
                           CodePage::western()};

    year_month_day after(year_month_day date, DateStep step) {
        calendar.setDate(date);
        return calendar.stepped(step);
    }
};

TEST_F(CalendarModelTest, StartsOnToday) {
    EXPECT_EQ(calendar.date(), year(2026) / 3 / 12);
    EXPECT_EQ(calendar.dateText(), "03/12/2026");
}

TEST_F(CalendarModelTest, RefusesWhatIsNoDateOrOutOfRangeAndKeepsItsDate) {
    for (const char* text : {"", "nonsense", "02/30/2026", "99/12/31", "1/1/10000"}) {
        SCOPED_TRACE(text);
        EXPECT_THROW((void)calendar.readDate(text), Failure);
    }
    EXPECT_THROW(calendar.setDate(year(99) / 12 / 31), Failure);
    EXPECT_THROW(calendar.setDate(year(10000) / 1 / 1), Failure);
    EXPECT_THROW(calendar.setDate(year(2026) / 2 / 30), Failure);
    EXPECT_EQ(calendar.dateText(), "03/12/2026");
    EXPECT_EQ(calendar.readDate("100/1/1"), year(100) / 1 / 1);
    EXPECT_EQ(calendar.readDate("9999/12/31"), year(9999) / 12 / 31);
}

TEST_F(CalendarModelTest, ReadsTwoDigitsOfAYearAroundToday) {
    EXPECT_EQ(calendar.readDate("1/1/75"), year(2075) / 1 / 1);
    EXPECT_EQ(calendar.readDate("1/1/76"), year(1976) / 1 / 1);
    calendar.setDate(year(1900) / 1 / 1);
    EXPECT_EQ(calendar.readDate("1/1/75"), year(2075) / 1 / 1);
    calendar.setToday(year(2030) / 1 / 1);
    EXPECT_EQ(calendar.readDate("1/1/76"), year(2076) / 1 / 1);
}

TEST_F(CalendarModelTest, ADayTakesAStyleByName) {
    calendar.setStyleSet("Event", {.foreColor = Rgb{255, 0, 0}, .backColor = {}});
    calendar.setStyleSet("Other", {.foreColor = {}, .backColor = Rgb{0, 255, 255}});
    EXPECT_EQ(calendar.styleOf(year(2026) / 3 / 13), nullptr);
    EXPECT_EQ(calendar.setDayStyle("03/13/2026", "Event"), year(2026) / 3 / 13);
    ASSERT_NE(calendar.styleOf(year(2026) / 3 / 13), nullptr);
    EXPECT_EQ(calendar.styleOf(year(2026) / 3 / 13)->foreColor, (Rgb{255, 0, 0}));
    EXPECT_EQ(calendar.setDayStyle("03/13/2026", "OTHER"), year(2026) / 3 / 13);
    EXPECT_EQ(calendar.styleOf(year(2026) / 3 / 13)->backColor, (Rgb{0, 255, 255}));
}

TEST_F(CalendarModelTest, ADayThatKeepsItsStyleReportsNoChange) {
    calendar.setStyleSet("Event", {});
    EXPECT_TRUE(calendar.setDayStyle("3/13/26", "Event"));
    EXPECT_FALSE(calendar.setDayStyle("03/13/2026", "event"));
}

TEST_F(CalendarModelTest, UnknownStylesAndUnreadableDaysAreFailuresThatChangeNothing) {
    calendar.setStyleSet("Event", {});
    EXPECT_THROW(calendar.setDayStyle("03/13/2026", "Party"), Failure);
    EXPECT_THROW(calendar.setDayStyle("03/13/2026", ""), Failure);
    EXPECT_THROW(calendar.setDayStyle("", "Event"), Failure);
    EXPECT_THROW(calendar.setDayStyle("99/1/1", "Event"), Failure);
    EXPECT_EQ(calendar.styleOf(year(2026) / 3 / 13), nullptr);
}

TEST_F(CalendarModelTest, StepsByDayAndWeekOverTheEndsOfMonths) {
    EXPECT_EQ(after(year(2026) / 3 / 1, DateStep::PreviousDay), year(2026) / 2 / 28);
    EXPECT_EQ(after(year(2024) / 2 / 28, DateStep::NextDay), year(2024) / 2 / 29);
    EXPECT_EQ(after(year(2026) / 12 / 31, DateStep::NextWeek), year(2027) / 1 / 7);
    EXPECT_EQ(after(year(2026) / 1 / 3, DateStep::PreviousWeek), year(2025) / 12 / 27);
}

TEST_F(CalendarModelTest, StepsByMonthAndYearToADayThatIsThere) {
    EXPECT_EQ(after(year(2026) / 1 / 31, DateStep::NextMonth), year(2026) / 2 / 28);
    EXPECT_EQ(after(year(2026) / 3 / 31, DateStep::PreviousMonth), year(2026) / 2 / 28);
    EXPECT_EQ(after(year(2024) / 2 / 29, DateStep::NextYear), year(2025) / 2 / 28);
    EXPECT_EQ(after(year(2024) / 2 / 29, DateStep::PreviousYear), year(2023) / 2 / 28);
    EXPECT_EQ(after(year(2025) / 12 / 5, DateStep::NextMonth), year(2026) / 1 / 5);
    EXPECT_EQ(after(year(2026) / 2 / 14, DateStep::FirstOfMonth), year(2026) / 2 / 1);
    EXPECT_EQ(after(year(2026) / 2 / 14, DateStep::LastOfMonth), year(2026) / 2 / 28);
}

TEST_F(CalendarModelTest, StepsEndAtTheEndsOfTheRange) {
    EXPECT_EQ(after(year(100) / 1 / 1, DateStep::PreviousDay), year(100) / 1 / 1);
    EXPECT_EQ(after(year(100) / 1 / 9, DateStep::PreviousYear), year(100) / 1 / 1);
    EXPECT_EQ(after(year(9999) / 12 / 28, DateStep::NextWeek), year(9999) / 12 / 31);
    EXPECT_EQ(after(year(9999) / 12 / 30, DateStep::NextMonth), year(9999) / 12 / 31);
}

}  // namespace
}  // namespace velmora
