#include "platform/calendar/TimeColumn.h"

#include <gtest/gtest.h>

#include "platform/Failure.h"

namespace velmora {

void PrintTo(const TimeSpan& span, std::ostream* out) {
    *out << span.begin.count() << " to " << span.end.count();
}

namespace {

using namespace std::chrono;

TimeSpan span(int beginHour, int beginMinute, int endHour, int endMinute) {
    return {hours(beginHour) + minutes(beginMinute), hours(endHour) + minutes(endMinute)};
}

constexpr TimeSpan kWholeDay{minutes(0), kDay};

TEST(TimeColumn, ShowsTheWholeDayAtFirst) {
    EXPECT_EQ(TimeColumn().limits(), kWholeDay);
}

TEST(TimeColumn, ShowsItsLastTimeInFull) {
    TimeColumn column;
    column.setLast("11:00 PM");
    column.setFirst("12:00 AM");
    EXPECT_EQ(column.limits(), kWholeDay);
    column.setLast("5:00 PM");
    column.setFirst("8:00 AM");
    EXPECT_EQ(column.limits(), span(8, 0, 18, 0));
    column.setLast("8:00 AM");
    EXPECT_EQ(column.limits(), span(8, 0, 9, 0));
}

TEST(TimeColumn, RefusesATextThatIsNoTimeAndKeepsItsLimit) {
    TimeColumn column;
    column.setLast("5:00 PM");
    column.setFirst("8:00 AM");
    for (const char* text : {"24:00", "", "noon", "99"}) {
        SCOPED_TRACE(text);
        EXPECT_THROW(column.setLast(text), Failure);
        EXPECT_THROW(column.setFirst(text), Failure);
    }
    EXPECT_EQ(column.limits(), span(8, 0, 18, 0));
}

TEST(TimeColumn, KeepsTheLastLimitsThatMadeSenseWhileAPairIsReversed) {
    TimeColumn column;
    column.setLast("5:00 PM");
    column.setFirst("8:00 AM");
    column.setLast("6:00 AM");
    EXPECT_EQ(column.limits(), span(8, 0, 18, 0));
    column.setFirst("5:00 AM");
    EXPECT_EQ(column.limits(), span(5, 0, 7, 0));
    column.setFirst("11:00 PM");
    EXPECT_EQ(column.limits(), span(5, 0, 7, 0));
}

TEST(TimeColumn, GrowsByWholeSlotsToBlocksOutsideItsLimits) {
    TimeColumn column;
    column.setLast("5:00 PM");
    column.setFirst("8:00 AM");
    EXPECT_EQ(column.shown({}), span(8, 0, 18, 0));
    EXPECT_EQ(column.shown({span(9, 0, 10, 0)}), span(8, 0, 18, 0));
    EXPECT_EQ(column.shown({span(6, 40, 7, 0), span(18, 0, 18, 5)}), span(6, 30, 18, 30));
}

TEST(TimeColumn, ReadsTheTimesOfABlock) {
    struct Row {
        const char* begin;
        const char* end;
        TimeSpan span;
    };
    TimeColumn column;
    column.setLast("5:00 PM");
    column.setFirst("8:00 AM");
    for (const Row& row : {
             Row{"09:30 AM", "10:30 AM", span(9, 30, 10, 30)},
             Row{"1:00 PM", "3:00 PM", span(13, 0, 15, 0)},
             Row{"14:05", "2:10:30 pm", span(14, 5, 14, 10)},
             Row{"11:00a", "1:00P", span(11, 0, 13, 0)},
             Row{"", "", span(8, 0, 8, 30)},
             Row{"later", "9:00 AM", span(8, 0, 9, 0)},
             Row{"10:00 AM", "soon", span(10, 0, 10, 30)},
             Row{"10:00 AM", "10:00 AM", span(10, 0, 10, 30)},
             Row{"10:00 AM", "9:00 AM", span(10, 0, 10, 30)},
             Row{"11:45 PM", "12:00 AM", span(23, 45, 24, 0)},
         }) {
        SCOPED_TRACE(std::string(row.begin) + " - " + row.end);
        EXPECT_EQ(column.spanOf({row.begin, row.end, "", ""}), row.span);
    }
}

TEST(TimeColumn, WritesTimesWithTwoDigitsAndTheHalfOfTheDay) {
    EXPECT_EQ(writeTime(minutes(5)), "12:05 AM");
    EXPECT_EQ(writeTime(hours(9) + minutes(30)), "09:30 AM");
    EXPECT_EQ(writeTime(hours(12)), "12:00 PM");
    EXPECT_EQ(writeTime(hours(14) + minutes(5)), "02:05 PM");
    EXPECT_EQ(writeTime(kDay), "11:59 PM");
}

TEST(Dragging, MovesOneEdgeToWholeFiveMinutes) {
    const TimeSpan block = span(9, 0, 10, 0);
    EXPECT_EQ(dragged(block, Grip::End, minutes(13), kWholeDay), span(9, 0, 10, 15));
    EXPECT_EQ(dragged(block, Grip::End, minutes(-12), kWholeDay), span(9, 0, 9, 50));
    EXPECT_EQ(dragged(block, Grip::Begin, minutes(-31), kWholeDay), span(8, 30, 10, 0));
    EXPECT_EQ(dragged(block, Grip::End, minutes(1), kWholeDay), block);
}

TEST(Dragging, LeavesABlockAtLeastFiveMinutes) {
    const TimeSpan block = span(9, 0, 10, 0);
    EXPECT_EQ(dragged(block, Grip::End, hours(-5), kWholeDay), span(9, 0, 9, 5));
    EXPECT_EQ(dragged(block, Grip::Begin, hours(5), kWholeDay), span(9, 55, 10, 0));
}

TEST(Dragging, MovesAWholeBlockAndKeepsItsLength) {
    const TimeSpan block = span(9, 3, 10, 0);
    EXPECT_EQ(dragged(block, Grip::Whole, minutes(30), kWholeDay), span(9, 35, 10, 32));
    EXPECT_EQ(dragged(block, Grip::Whole, hours(-12), kWholeDay), span(0, 0, 0, 57));
    EXPECT_EQ(dragged(block, Grip::Whole, hours(20), kWholeDay), span(23, 3, 24, 0));
}

TEST(Dragging, EndsAtTheEndsOfTheColumn) {
    const TimeSpan block = span(9, 0, 10, 0);
    const TimeSpan column = span(8, 0, 18, 0);
    EXPECT_EQ(dragged(block, Grip::Begin, hours(-5), column), span(8, 0, 10, 0));
    EXPECT_EQ(dragged(block, Grip::End, hours(20), column), span(9, 0, 18, 0));
    EXPECT_EQ(dragged(block, Grip::Whole, hours(20), column), span(17, 0, 18, 0));
}

}  // namespace
}  // namespace velmora
