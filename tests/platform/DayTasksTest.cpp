#include "platform/calendar/DayTasks.h"

#include <gtest/gtest.h>

#include "platform/Failure.h"

namespace velmora {
namespace {

TEST(DayTasks, KeepTheOrderInWhichTheyWereAdded) {
    DayTasks tasks;
    tasks.Add("05:00 PM", "06:00 PM", "late");
    tasks.Add("08:00 AM", "09:00 AM", "early");
    tasks.Add("", "nonsense", "no time");
    ASSERT_EQ(tasks.Count(), 3);
    EXPECT_EQ(tasks.Item(0).text, "late");
    EXPECT_EQ(tasks.Item(1).BeginTime, "08:00 AM");
    EXPECT_EQ(tasks.Item(2).EndTime, "nonsense");
    EXPECT_EQ(tasks.Item(2).TagVariant, "");
}

TEST(DayTasks, AnIndexOutOfRangeIsAFailure) {
    DayTasks tasks;
    EXPECT_THROW((void)tasks.Item(0), Failure);
    tasks.Add("", "", "");
    EXPECT_THROW((void)tasks.Item(1), Failure);
    EXPECT_THROW((void)tasks.Item(-1), Failure);
    EXPECT_THROW(tasks.setTagVariant(1, "x"), Failure);
    EXPECT_THROW(tasks.Remove(1), Failure);
}

TEST(DayTasks, ABlockIsKnownByItsIdWhenIndicesMove) {
    DayTasks tasks;
    tasks.Add("", "", "a");
    tasks.Add("", "", "b");
    const DayTasks::Id second = tasks.idOf(1);
    tasks.Remove(0);
    EXPECT_EQ(tasks.indexOf(second), 0);
    tasks.RemoveAll();
    EXPECT_EQ(tasks.indexOf(second), -1);
    tasks.Add("", "", "c");
    EXPECT_NE(tasks.idOf(0), second);
}

TEST(DayTasks, ReportsEachChangeThatCanBeSeen) {
    int changes = 0;
    DayTasks tasks([&] { ++changes; });
    tasks.Add("", "", "");
    tasks.setBeginTime(0, "9:00 AM");
    tasks.setEndTime(0, "9:30 AM");
    tasks.setText(0, "x\r\ny");
    EXPECT_EQ(changes, 4);
    // One without a tag looks otherwise; which tag it has, nobody sees.
    tasks.setTagVariant(0, "2026-03-12 10:42:00");
    EXPECT_EQ(changes, 5);
    tasks.setTagVariant(0, "2026-03-12 10:43:00");
    EXPECT_EQ(changes, 5);
    tasks.RemoveAll();
    EXPECT_EQ(changes, 6);
}

}  // namespace
}  // namespace velmora
