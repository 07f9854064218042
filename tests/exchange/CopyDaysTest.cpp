#include "exchange/CopyDays.h"

#include <gmock/gmock.h>

#include <set>
#include <string>

namespace velmora {
namespace {

using namespace std::chrono_literals;
using std::chrono::days;
using testing::ElementsAre;

// A Monday.
const Day kMonday{2026y / 3 / 9};

std::set<Day> everyDay(int count) {
    std::set<Day> all;
    for (int i = 0; i < count; ++i)
        all.insert(kMonday + days(i));
    return all;
}

TEST(CopyDays, ACopyIsNamedAfterItsFileAndItsDay) {
    EXPECT_EQ(nameOfCopy("DATAY.QEL", kMonday), "DATAY.QEL.2026-03-09");
    EXPECT_EQ(dayOfCopy("DATAY.QEL", "DATAY.QEL.2026-03-09"), kMonday);
}

TEST(CopyDays, AnythingElseIsNoCopy) {
    for (const char* name :
         {"DATAY.QEL", "DATAY.QEL.", "DATAW.QEL.2026-03-09", "DATAY.QEL.2026-03-09x",
          "DATAY.QEL.2026-3-9", "DATAY.QEL.2026-02-30", "DATAY.QEL.2026-13-01",
          "DATAY.QEL.2026/03/09", "DATAY.QELx2026-03-09"})
        EXPECT_FALSE(dayOfCopy("DATAY.QEL", name)) << name;
}

TEST(CopyDays, TheLastSevenAreKept) {
    EXPECT_EQ(daysToKeep(everyDay(7)), everyDay(7));
    EXPECT_TRUE(daysToKeep({}).empty());
}

TEST(CopyDays, OfTheFourWeeksBeforeTheLastCopyOfEachIsKept) {
    // Nine whole weeks; the last seven days are a week of their own.
    const std::set<Day> kept = daysToKeep(everyDay(63));
    EXPECT_EQ(kept.size(), 11U);
    for (int week = 5; week <= 8; ++week)
        EXPECT_TRUE(kept.contains(kMonday + days(week * 7 - 1))) << week;
    EXPECT_FALSE(kept.contains(kMonday + days(4 * 7 - 1)));
}

TEST(CopyDays, WeeksWithoutACopyDoNotCount) {
    std::set<Day> all = everyDay(7);
    all.insert(kMonday - days(100));
    all.insert(kMonday - days(300));
    EXPECT_EQ(daysToKeep(all), all) << "a file that seldom changes keeps its old copies";
}

// As the days go by and only what was kept is still there.
TEST(CopyDays, DayByDaySevenDaysAndFourWeeksStay) {
    std::set<Day> there;
    for (int i = 0; i < 200; ++i) {
        const Day today = kMonday + days(i);
        there.insert(today);
        there = daysToKeep(there);
        for (int back = 0; back < 7 && back <= i; ++back)
            ASSERT_TRUE(there.contains(today - days(back)));
        ASSERT_LE(there.size(), 11U);
        if (i > 40) {
            ASSERT_EQ(there.size(), 11U);
            ASSERT_GE((today - *there.begin()).count(), 7 + 2 * 7 + 1)
                << "three weeks at the least";
        }
    }
}

}  // namespace
}  // namespace velmora
