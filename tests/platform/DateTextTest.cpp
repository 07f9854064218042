#include "platform/DateText.h"

#include <gtest/gtest.h>

namespace velmora {
namespace {

using namespace std::chrono;

constexpr year kPivot = year(2026);

TEST(DateText, IsWrittenWithTenCharacters) {
    EXPECT_EQ(writeDate(year(2026) / 3 / 9), "03/09/2026");
    EXPECT_EQ(writeDate(year(100) / 1 / 1), "01/01/0100");
    EXPECT_EQ(writeDate(year(9999) / 12 / 31), "12/31/9999");
}

TEST(DateText, IsReadInTheKnownForms) {
    for (const char* text :
         {"3/9/26", "03/09/26", "3/9/2026", "03/09/2026", "2026/3/9", "2026/03/09", "2026-03-09",
          "March 9, 2026", "march 9 2026", "MAR 9, 26", "  March  09,2026 "}) {
        SCOPED_TRACE(text);
        EXPECT_EQ(readDate(text, kPivot), year(2026) / 3 / 9);
    }
}

TEST(DateText, IsNothingInAnyOtherForm) {
    for (const char* text : {"",
                             " ",
                             "today",
                             "9 March 2026",
                             "9-Mar-26",
                             "3/9",
                             "3/9/6",
                             "3-9-2026",
                             "2026/3-9",
                             "2026-3-9",
                             "3/9/2026 10:00",
                             "3/9/2026x",
                             "13/1/2026",
                             "31/12/2026",
                             "3 /9/2026",
                             "03092026",
                             "Thursday, March 12, 2026",
                             "Marc 9, 2026",
                             "March9 2026",
                             "March 92026",
                             "3//2026",
                             "/9/2026",
                             "123/3/9/26",
                             "00003/9/2026",
                             "3/9/20260",
                             "-3/9/2026",
                             "##"}) {
        SCOPED_TRACE(text);
        EXPECT_EQ(readDate(text, kPivot), std::nullopt);
    }
}

TEST(DateText, NeverRollsOverIntoTheNextMonth) {
    EXPECT_EQ(readDate("02/30/2026", kPivot), std::nullopt);
    EXPECT_EQ(readDate("02/29/2026", kPivot), std::nullopt);
    EXPECT_EQ(readDate("02/29/2024", kPivot), year(2024) / 2 / 29);
    EXPECT_EQ(readDate("0/1/2026", kPivot), std::nullopt);
    EXPECT_EQ(readDate("1/0/2026", kPivot), std::nullopt);
    EXPECT_EQ(readDate("4/31/2026", kPivot), std::nullopt);
}

TEST(DateText, ReachesFromTheYear100To9999) {
    EXPECT_EQ(readDate("100/1/1", kPivot), year(100) / 1 / 1);
    EXPECT_EQ(readDate("1/1/100", kPivot), year(100) / 1 / 1);
    EXPECT_EQ(readDate("01/01/0100", kPivot), year(100) / 1 / 1);
    EXPECT_EQ(readDate("9999/12/31", kPivot), year(9999) / 12 / 31);
    EXPECT_EQ(readDate("1/1/0099", kPivot), std::nullopt);
    EXPECT_EQ(readDate("1/1/10000", kPivot), std::nullopt);
}

TEST(DateText, TwoDigitsOfAYearMeanTheHundredYearsAroundThePivot) {
    struct Row {
        const char* text;
        int pivot;
        int year;
    };
    for (const Row& row :
         {Row{"1/1/30", 2026, 2030}, Row{"1/1/75", 2026, 2075}, Row{"1/1/76", 2026, 1976},
          Row{"1/1/98", 2026, 1998}, Row{"1/1/00", 2026, 2000}, Row{"1/1/26", 1926, 1926},
          Row{"1/1/26", 2150, 2126}, Row{"1/1/00", 2150, 2100}, Row{"1/1/99", 2150, 2199}}) {
        SCOPED_TRACE(row.text);
        EXPECT_EQ(readDate(row.text, year(row.pivot)), year(row.year) / 1 / 1);
    }
}

TEST(DateText, TwoDigitsThatFallOutsideTheReachAreUnreadable) {
    EXPECT_EQ(readDate("1/1/90", year(120)), std::nullopt);
    EXPECT_EQ(readDate("1/1/10", year(120)), year(110) / 1 / 1);
    EXPECT_EQ(readDate("1/1/20", year(9990)), std::nullopt);
}

TEST(DateText, EveryDayOfAYearReadsBackAsItself) {
    for (sys_days day = year(2024) / 1 / 1; day < sys_days(year(2025) / 1 / 1); day += days(1))
        EXPECT_EQ(readDate(writeDate(day), kPivot), year_month_day(day));
}

}  // namespace
}  // namespace velmora
