#include "platform/calendar/MonthGrid.h"

#include <gtest/gtest.h>

namespace velmora {
namespace {

using namespace std::chrono;

TEST(MonthGrid, BeginsInTheWeekOfTheFirst) {
    const MonthGrid march(year(2026) / 3, 0);  // 1 March 2026 is a Sunday
    EXPECT_EQ(march.dateAt(0), year(2026) / 3 / 1);
    EXPECT_EQ(march.dateAt(41), year(2026) / 4 / 11);
    EXPECT_EQ(march.weeks(), 5);
    const MonthGrid january(year(2026) / 1, 0);
    EXPECT_EQ(january.dateAt(0), year(2025) / 12 / 28);
    EXPECT_EQ(january.cellOf(year(2026) / 1 / 1), 4);
}

TEST(MonthGrid, FollowsTheFirstWeekdayOfTheLocale) {
    const MonthGrid monday(year(2026) / 3, 1);
    EXPECT_EQ(monday.dateAt(0), year(2026) / 2 / 23);
    EXPECT_EQ(monday.weekdayOf(0), 1U);
    EXPECT_EQ(monday.weekdayOf(6), 0U);
    EXPECT_EQ(monday.weeks(), 6);
    const MonthGrid saturday(year(2026) / 3, 6);
    EXPECT_EQ(saturday.dateAt(0), year(2026) / 2 / 28);
}

TEST(MonthGrid, TellsTheMonthsOwnDaysFromItsNeighbours) {
    const MonthGrid grid(year(2026) / 1, 0);
    EXPECT_FALSE(grid.inMonth(3));
    EXPECT_TRUE(grid.inMonth(4));
    EXPECT_TRUE(grid.inMonth(34));
    EXPECT_FALSE(grid.inMonth(35));
    EXPECT_EQ(grid.cellOf(year(2025) / 12 / 27), std::nullopt);
    EXPECT_EQ(grid.cellOf(year(2026) / 2 / 8), std::nullopt);
}

TEST(MonthGrid, CountsTheWeeksThatAMonthNeeds) {
    EXPECT_EQ(MonthGrid(year(2026) / 2, 0).weeks(), 4);
    EXPECT_EQ(MonthGrid(year(2026) / 5, 0).weeks(), 6);
}

TEST(MonthGrid, EveryDayOfEveryMonthHasACell) {
    for (unsigned firstWeekday = 0; firstWeekday < 7; ++firstWeekday)
        for (year_month month = year(2023) / 1; month < year(2027) / 1; month += months(1)) {
            const MonthGrid grid(month, firstWeekday);
            EXPECT_LT(*grid.cellOf(month / 1), 7);
            EXPECT_TRUE(grid.cellOf(month / last));
        }
}

TEST(MonthGrid, StandsAtTheEndsOfTheCalendar) {
    EXPECT_EQ(MonthGrid(year(100) / 1, 0).cellOf(year(100) / 1 / 1), 5);  // a Friday
    const MonthGrid end(year(9999) / 12, 0);
    EXPECT_EQ(end.dateAt(*end.cellOf(year(9999) / 12 / 31)), year(9999) / 12 / 31);
}

}  // namespace
}  // namespace velmora
