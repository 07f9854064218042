#include "planner/StoredText.h"

#include <gtest/gtest.h>

namespace velmora {
namespace {

using namespace std::chrono;

constexpr year kPivot{2026};

Moment at(int y, unsigned m, unsigned d, int hour = 0, int minute = 0, int second = 0) {
    return Moment(local_days(year(y) / month(m) / day(d))) + hours(hour) + minutes(minute) +
           seconds(second);
}

TEST(StoredDay, HasFourTwoAndTwoDigits) {
    EXPECT_EQ(storedDay(year(2026) / 3 / 9), "2026-03-09");
    EXPECT_EQ(storedDay(year(100) / 1 / 1), "0100-01-01");
    EXPECT_EQ(storedDay(year(9999) / 12 / 31), "9999-12-31");
}

TEST(StoredDay, ReadsItsOwnFormOnly) {
    EXPECT_EQ(readStoredDay("2026-03-09"), year(2026) / 3 / 9);
    EXPECT_EQ(readStoredDay("2024-02-29"), year(2024) / 2 / 29);
    for (const char* text :
         {"", "2026-3-9", "2026-02-29", "2026-02-30", "2026-00-01", "2026-13-01", "2026-03-00",
          "03/09/2026", "2026/03/09", "2026-03-09 ", "2026-03-0x", "-026-03-09"})
        EXPECT_EQ(readStoredDay(text), std::nullopt) << text;
}

TEST(StoredMoment, CarriesItsTimeAtMidnightToo) {
    EXPECT_EQ(storedMoment(at(2026, 3, 12, 9, 5, 7)), "2026-03-12 09:05:07");
    EXPECT_EQ(storedMoment(at(2026, 3, 12)), "2026-03-12 00:00:00");
}

TEST(StoredMoment, IsReadInEveryForm) {
    const Moment moment = at(2026, 3, 12, 14, 5, 7);
    EXPECT_EQ(readMoment("2026-03-12 14:05:07", kPivot), moment);
    EXPECT_EQ(readMoment("2026-03-12 14:05:07.999", kPivot), moment);
    EXPECT_EQ(readMoment("3/12/2026 2:05:07 PM", kPivot), moment);
    EXPECT_EQ(readMoment("  3/12/26 2:05:07 PM ", kPivot), moment);
    EXPECT_EQ(readMoment("March 12, 2026 2:05:07 PM", kPivot), moment);
    EXPECT_EQ(readMoment("3/12/2026", kPivot), at(2026, 3, 12));
    EXPECT_EQ(readMoment("2026-03-12", kPivot), at(2026, 3, 12));
}

TEST(StoredMoment, IsNotReadFromNonsense) {
    for (const char* text : {"", "##", "now", "14:05", "2026-02-30 10:00:00", "2026-03-12 25:00:00",
                             "2026-03-12 10:00:00.x", "2026-03-12 soon:"})
        EXPECT_EQ(readMoment(text, kPivot), std::nullopt) << text;
}

}  // namespace
}  // namespace velmora
