#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "planner/MonthlyTasks.h"
#include "planner/ToDoList.h"
#include "planner/WeeklyTasks.h"
#include "platform/FatalFailure.h"
#include "support/FakeClock.h"
#include "support/FakeMessages.h"
#include "support/MemorySettings.h"
#include "support/PrintDesk.h"

namespace velmora {
namespace {

using namespace std::chrono;
using ::testing::ElementsAre;
using ::testing::IsEmpty;

// Thursday, 12 March 2026, 10:42.
class TaskListsTest : public ::testing::Test {
  protected:
    [[nodiscard]] std::string read(const std::string& key) const { return settings.Read(key); }

    test::MemorySettings medium;
    SettingsStore settings{medium};
    test::FakeClock clock;
    test::FakeMessages messages;
    LocaleFormats locale;
};

class ToDoListTest : public TaskListsTest {
  protected:
    void add(const std::string& text) {
        list.setText(text);
        list.AddTask();
    }

    ToDoList list{settings, messages, clock, locale};
};

TEST_F(ToDoListTest, TheFirstTextHoldsDateAndTimeAndIsStoredWhenAddedAtOnce) {
    list.Open();
    EXPECT_EQ(list.text(), "3/12/2026 10:42:00 AM - New Task");
    list.AddTask();
    EXPECT_EQ(read("Tasks\\1"), "3/12/2026 10:42:00 AM - New Task");
    EXPECT_EQ(read("Tasks\\NumTasks"), "1");
    EXPECT_THAT(list.lines(), ElementsAre("3/12/2026 10:42:00 AM - New Task"));
}

TEST_F(ToDoListTest, TheFirstTextHasNoTimeAtMidnightAndTwelveAtNoon) {
    clock.set(December / 1 / 2026, seconds(0));
    list.Open();
    EXPECT_EQ(list.text(), "12/1/2026 - New Task");
    clock.set(December / 1 / 2026, hours(12) + seconds(7));
    list.Open();
    EXPECT_EQ(list.text(), "12/1/2026 12:00:07 PM - New Task");
}

TEST_F(ToDoListTest, AddsTheTrimmedTextAsTheLastLine) {
    list.Open();
    add("  first ");
    add("second");
    EXPECT_EQ(read("Tasks\\1"), "first");
    EXPECT_EQ(read("Tasks\\2"), "second");
    EXPECT_EQ(read("Tasks\\NumTasks"), "2");
    EXPECT_THAT(list.lines(), ElementsAre("first", "second"));
}

TEST_F(ToDoListTest, AnEmptyTextIsRefused) {
    list.Open();
    add("   ");
    EXPECT_THAT(messages.takeShown(), ElementsAre("warn|Velmora|No task specified."));
    EXPECT_TRUE(medium.values.empty());
}

TEST_F(ToDoListTest, PickingALineTakesTheTextOfItsKey) {
    settings.Save("Tasks\\NumTasks", "2");
    settings.Save("Tasks\\1", "x");
    settings.Save("Tasks\\2", "  kept blanks ");
    list.Open();
    EXPECT_THAT(list.lines(), ElementsAre("x", "kept blanks"));
    list.Pick("kept blanks");
    EXPECT_EQ(list.text(), "  kept blanks ");
    list.Pick("not there");
    EXPECT_EQ(list.text(), "  kept blanks ");
}

TEST_F(ToDoListTest, RemovingALineClosesTheListUpAndEmptiesTheText) {
    for (const char* text : {"a", "b", "c"})
        add(text);
    list.RemoveTask(" b ");
    EXPECT_EQ(list.text(), "");
    EXPECT_THAT(list.lines(), ElementsAre("a", "c"));
    EXPECT_EQ(read("Tasks\\2"), "c");
    EXPECT_EQ(read("Tasks\\NumTasks"), "2");
    EXPECT_FALSE(medium.values.contains("TASKS\\3"));
}

TEST_F(ToDoListTest, OfTwoEqualLinesTheFirstIsRemoved) {
    for (const char* text : {"x", "same", "y", "same"})
        add(text);
    list.RemoveTask("same");
    EXPECT_THAT(list.lines(), ElementsAre("x", "y", "same"));
}

TEST_F(ToDoListTest, RemovingTheLastLineLeavesTheCountAtNought) {
    add("only");
    list.RemoveTask("only");
    const std::map<std::string, std::string> expected{{"TASKS\\NUMTASKS", "0"}};
    EXPECT_EQ(medium.values, expected);
}

TEST_F(ToDoListTest, RemovingABlankLineDoesNothing) {
    add("a");
    list.RemoveTask("  ");
    list.RemoveTask("");
    EXPECT_EQ(list.text(), "a");
    EXPECT_EQ(read("Tasks\\NumTasks"), "1");
}

TEST_F(ToDoListTest, RemovingALineThatIsGoneFillsTheListOnly) {
    add("a");
    add("b");
    ToDoList(settings, messages, clock, locale).RemoveTask("a");
    list.RemoveTask("a");
    EXPECT_THAT(list.lines(), ElementsAre("b"));
    EXPECT_EQ(read("Tasks\\NumTasks"), "1");
}

TEST_F(ToDoListTest, OpeningShowsBlankLinesAndFillingAnewLeavesThemOut) {
    settings.Save("Tasks\\NumTasks", "4");
    settings.Save("Tasks\\1", "a");
    settings.Save("Tasks\\2", "");
    settings.Save("Tasks\\4", "d");
    list.Open();
    EXPECT_THAT(list.lines(), ElementsAre("a", "", "", "d"));
    add("e");
    EXPECT_THAT(list.lines(), ElementsAre("a", "d", "e"));
    EXPECT_EQ(read("Tasks\\5"), "e");
}

TEST_F(ToDoListTest, DamagedCountsAreNoReasonToFail) {
    settings.Save("Tasks\\1", "a");
    for (const char* count : {"-1", "x", ""}) {
        settings.Save("Tasks\\NumTasks", count);
        list.Open();
        EXPECT_THAT(list.lines(), IsEmpty()) << count;
    }
    settings.Save("Tasks\\NumTasks", "2000000000");
    list.Open();
    EXPECT_THAT(list.lines(), ElementsAre("a"));
}

TEST_F(ToDoListTest, AListThatOutgrewItsLimitCanNotBeRemovedFromAndStaysAsItWas) {
    settings.Save("Tasks\\NumTasks", "5002");
    for (int n = 1; n <= 5002; ++n)
        settings.Save("Tasks\\" + std::to_string(n), "line " + std::to_string(n));
    list.Open();
    const auto before = medium.values;
    EXPECT_THROW(list.RemoveTask("line 7"), FatalFailure);
    EXPECT_EQ(medium.values, before);
}

TEST_F(ToDoListTest, PrintsTheLinesUnderTheDateOfToday) {
    for (const char* text : {"buy milk", "call Ann"})
        add(text);
    test::PrintDesk desk;
    list.PrintTasks(desk.printing, "Inter");
    EXPECT_EQ(desk.printer.takeDump(),
              "printer Pocket, portrait\n"
              "page 1\n"
              "0.000 0.000 Inter 14 |Task Manager - To Do       Thursday, March 12, 2026|\n"
              "0.000 0.672 Inter 11 |buy milk|\n"
              "0.000 0.848 Inter 11 |call Ann|\n");
}

TEST_F(ToDoListTest, PrintsTheHeadOfAnEmptyList) {
    test::PrintDesk desk;
    list.PrintTasks(desk.printing, "Inter");
    EXPECT_EQ(desk.printer.takeDump(),
              "printer Pocket, portrait\n"
              "page 1\n"
              "0.000 0.000 Inter 14 |Task Manager - To Do       Thursday, March 12, 2026|\n");
}

class WeeklyTasksTest : public TaskListsTest {
  protected:
    void add(int day, int hour, int minute, const std::string& text) {
        tasks.setDay(day);
        tasks.setHour(hour);
        tasks.setMinute(minute);
        tasks.setText(text);
        tasks.Add();
    }

    WeeklyTasks tasks{settings, clock};
};

TEST_F(WeeklyTasksTest, OpensAtThePresentWeekdayAndTime) {
    tasks.Open();
    EXPECT_EQ(tasks.day(), 5);
    EXPECT_EQ(tasks.dayName(), "Thursday");
    EXPECT_EQ(tasks.time(), (ClockTime{10, 42}));
    EXPECT_EQ(tasks.text(), "Task");
    clock.set(March / 15 / 2026, hours(0));
    tasks.Open();
    EXPECT_EQ(tasks.day(), 1);
    EXPECT_EQ(tasks.dayName(), "Sunday");
}

TEST_F(WeeklyTasksTest, KeysAreThoseOfTheEnglishWeekday) {
    add(2, 9, 5, " Put the bins out ");
    const std::map<std::string, std::string> expected{
        {"WEEKLY\\MONDAY\\NUMTASKS", "1"},
        {R"(WEEKLY\MONDAY\1T)", "09:05"},
        {R"(WEEKLY\MONDAY\1M)", " Put the bins out "},
    };
    EXPECT_EQ(medium.values, expected);
}

TEST_F(WeeklyTasksTest, LinesTellDayTimeAndTextFromSundayToSaturday) {
    add(7, 8, 0, "sat");
    add(1, 9, 0, "sun, later");
    add(1, 7, 0, "sun, earlier");
    EXPECT_THAT(tasks.lines(),
                ElementsAre("Sunday - 09:00 - sun, later", "Sunday - 07:00 - sun, earlier",
                            "Saturday - 08:00 - sat"));
    tasks.Open();
    EXPECT_EQ(tasks.lines().size(), 3U);
}

TEST_F(WeeklyTasksTest, ATimeThatTheDayHasGetsAnotherText) {
    add(2, 9, 5, "old");
    add(3, 9, 5, "of another day");
    add(2, 9, 5, "new");
    EXPECT_THAT(tasks.lines(),
                ElementsAre("Monday - 09:05 - new", "Tuesday - 09:05 - of another day"));
    EXPECT_EQ(read("Weekly\\Monday\\NumTasks"), "1");
}

TEST_F(WeeklyTasksTest, AStoredTimeIsShownAndComparedInTwoDigits) {
    settings.Save("Weekly\\Monday\\NumTasks", "1");
    settings.Save("Weekly\\Monday\\1T", "9:5");
    settings.Save("Weekly\\Monday\\1M", "short");
    tasks.Open();
    EXPECT_THAT(tasks.lines(), ElementsAre("Monday - 09:05 - short"));
    add(2, 9, 5, "new");
    EXPECT_EQ(read("Weekly\\Monday\\NumTasks"), "1");
    EXPECT_EQ(read("Weekly\\Monday\\1M"), "new");
}

TEST_F(WeeklyTasksTest, AnEmptyTextGetsOneOfItsOwnInTheBoxAndInTheKey) {
    add(2, 9, 5, "");
    EXPECT_EQ(tasks.text(), "Weekly Task Set At This Time.");
    EXPECT_EQ(read("Weekly\\Monday\\1M"), "Weekly Task Set At This Time.");
    add(2, 10, 0, "  ");
    EXPECT_EQ(read("Weekly\\Monday\\2M"), "  ");
}

TEST_F(WeeklyTasksTest, PickingALineTakesItsWholeTextDayAndTime) {
    add(2, 9, 5, "call - and write - to Ann");
    tasks.Open();
    tasks.Pick("Monday - 09:05 - call - and write - to Ann");
    EXPECT_EQ(tasks.text(), "call - and write - to Ann");
    EXPECT_EQ(tasks.dayName(), "Monday");
    EXPECT_EQ(tasks.time(), (ClockTime{9, 5}));
}

TEST_F(WeeklyTasksTest, PickingATaskThatIsGoneChangesNothing) {
    tasks.Open();
    for (const char* line : {"", "Monday", "Monday - 09:05 - x", "Someday - 09:05 - x"})
        tasks.Pick(line);
    EXPECT_EQ(tasks.dayName(), "Thursday");
    EXPECT_EQ(tasks.text(), "Task");
}

TEST_F(WeeklyTasksTest, RemovingClosesUpTheListOfTheDayOnly) {
    add(2, 9, 0, "a - b");
    add(2, 10, 0, "second");
    add(3, 9, 0, "of Tuesday");
    tasks.Remove("Monday - 09:00 - a - b");
    EXPECT_THAT(tasks.lines(),
                ElementsAre("Monday - 10:00 - second", "Tuesday - 09:00 - of Tuesday"));
    EXPECT_EQ(read("Weekly\\Monday\\NumTasks"), "1");
    tasks.Remove("Monday - 10:00 - second");
    EXPECT_EQ(read("Weekly\\Monday\\NumTasks"), "0");
    EXPECT_EQ(read("Weekly\\Monday\\1T"), "");
    tasks.Remove("");
    tasks.Remove("Monday - 10:00 - second");
    EXPECT_THAT(tasks.lines(), ElementsAre("Tuesday - 09:00 - of Tuesday"));
}

TEST_F(WeeklyTasksTest, ATextThatIsNoTimeIsListedAndAnEmptyTimeIsNot) {
    settings.Save("Weekly\\Monday\\NumTasks", "3");
    settings.Save("Weekly\\Monday\\1T", "soon");
    settings.Save("Weekly\\Monday\\1M", "x");
    settings.Save("Weekly\\Monday\\2M", "without a time");
    settings.Save("Weekly\\Monday\\3T", "11:00");
    tasks.Open();
    EXPECT_THAT(tasks.lines(), ElementsAre("Monday - soon - x", "Monday - 11:00 - "));
    tasks.Pick("Monday - soon - x");
    EXPECT_EQ(tasks.time(), (ClockTime{0, 0}));
    tasks.Remove("Monday - soon - x");
    EXPECT_THAT(tasks.lines(), ElementsAre("Monday - 11:00 - "));
    EXPECT_EQ(read("Weekly\\Monday\\1M"), "without a time");
}

class MonthlyTasksTest : public TaskListsTest {
  protected:
    void add(int day, const std::string& text) {
        tasks.setDay(day);
        tasks.setText(text);
        tasks.Add();
    }

    MonthlyTasks tasks{settings, clock};
};

TEST_F(MonthlyTasksTest, OpensAtThePresentDay) {
    tasks.Open();
    EXPECT_EQ(tasks.day(), 12);
    EXPECT_EQ(tasks.text(), "Task");
}

TEST_F(MonthlyTasksTest, KeysHaveTheDayWithoutAZeroInFront) {
    add(9, " rent ");
    const std::map<std::string, std::string> expected{{"MONTHLY\\9\\NUMTASKS", "1"},
                                                      {R"(MONTHLY\9\1M)", " rent "}};
    EXPECT_EQ(medium.values, expected);
}

TEST_F(MonthlyTasksTest, TheSameTextMayStandTwiceOnADay) {
    add(9, "rent");
    add(9, "rent");
    add(31, "last");
    add(1, "first");
    EXPECT_THAT(tasks.lines(), ElementsAre("1 - first", "9 - rent", "9 - rent", "31 - last"));
    EXPECT_EQ(read("Monthly\\9\\NumTasks"), "2");
}

TEST_F(MonthlyTasksTest, AnEmptyTextGetsOneOfItsOwn) {
    add(9, "");
    EXPECT_EQ(tasks.text(), "Monthly Task.");
    EXPECT_EQ(read("Monthly\\9\\1M"), "Monthly Task.");
    add(9, "  ");
    EXPECT_EQ(read("Monthly\\9\\2M"), "  ");
    EXPECT_THAT(tasks.lines(), ElementsAre("9 - Monthly Task."));
}

TEST_F(MonthlyTasksTest, PickingALineSetsTheDayAndNotTheText) {
    add(9, "rent");
    tasks.setText("mine");
    tasks.setDay(1);
    tasks.Pick("9 - rent");
    EXPECT_EQ(tasks.day(), 9);
    EXPECT_EQ(tasks.text(), "mine");
}

TEST_F(MonthlyTasksTest, RemovingComparesTheTrimmedTextWithCase) {
    add(9, "Rent");
    add(9, " rent - of the flat ");
    add(9, "other");
    tasks.Remove("9 -  rent - of the flat ");
    EXPECT_THAT(tasks.lines(), ElementsAre("9 - Rent", "9 - other"));
    tasks.Remove("9 - rent");
    EXPECT_EQ(read("Monthly\\9\\NumTasks"), "2");
    tasks.Remove("9 - Rent");
    tasks.Remove("9 - other");
    EXPECT_EQ(read("Monthly\\9\\NumTasks"), "0");
    EXPECT_EQ(read("Monthly\\9\\1M"), "");
    tasks.Remove("");
    EXPECT_THAT(tasks.lines(), IsEmpty());
}

TEST_F(MonthlyTasksTest, ALineWithoutItsPartsDoesNoHarm) {
    add(1, "first");
    tasks.Pick("nonsense");
    EXPECT_EQ(tasks.day(), 1);
    tasks.Pick("99 - x");
    EXPECT_EQ(tasks.day(), 31);
    tasks.Remove("nonsense");
    EXPECT_THAT(tasks.lines(), ElementsAre("1 - first"));
}

}  // namespace
}  // namespace velmora
