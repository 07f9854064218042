#include "planner/NumberedList.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "planner/ListShapes.h"
#include "platform/Failure.h"
#include "support/MemorySettings.h"

namespace velmora {
namespace {

using namespace std::chrono;
using ::testing::ElementsAre;
using ::testing::IsEmpty;

constexpr year_month_day kDay = March / 9 / 2001;
const std::string kKey = "Alarms\\03092001";

class NumberedListTest : public ::testing::Test {
  protected:
    void alarm(const std::string& n, const std::string& time, const std::string& message) {
        settings.Save(kKey + n + "T", time);
        settings.Save(kKey + n + "M", message);
    }
    // "number time message" of all entries.
    [[nodiscard]] static std::vector<std::string> linesOf(const NumberedList& list) {
        std::vector<std::string> lines;
        for (const NumberedEntry& entry : list.entries())
            lines.push_back(std::to_string(entry.number) + " " + entry.time + " " + entry.message);
        return lines;
    }
    static NumberedList::Matches numbered(std::int64_t number) {
        return [number](const NumberedEntry& entry) { return entry.number == number; };
    }
    static NumberedList::Matches saying(const std::string& message) {
        return [message](const NumberedEntry& entry) { return entry.message == message; };
    }
    static NumberedList::Matches at(const std::string& time) {
        return [time](const NumberedEntry& entry) { return entry.time == time; };
    }

    test::MemorySettings medium;
    SettingsStore settings{medium};
    NumberedList alarms{settings, alarmsOf(kDay)};
    NumberedList toDo{settings, toDoLines()};
};

TEST_F(NumberedListTest, WritesTheKeysOfEachKindOfList) {
    alarms.append("07:00", "rise");
    alarms.append("08:00", "go");
    toDo.append("", "buy milk");
    NumberedList(settings, weeklyTasksOf("Monday")).append("09:05", "bins");
    NumberedList(settings, monthlyTasksOf(9)).append("", "rent");
    NumberedList(settings, occasionsOf("March", 9)).append("", "Ann's birthday");
    const std::map<std::string, std::string> expected{
        {"ALARMS\\03092001", "2"},
        {"ALARMS\\030920011T", "07:00"},
        {"ALARMS\\030920011M", "rise"},
        {"ALARMS\\030920012T", "08:00"},
        {"ALARMS\\030920012M", "go"},
        {"TASKS\\NUMTASKS", "1"},
        {"TASKS\\1", "buy milk"},
        {"WEEKLY\\MONDAY\\NUMTASKS", "1"},
        {"WEEKLY\\MONDAY\\1T", "09:05"},
        {"WEEKLY\\MONDAY\\1M", "bins"},
        {"MONTHLY\\9\\NUMTASKS", "1"},
        {"MONTHLY\\9\\1M", "rent"},
        {R"(EVENTS\MARCH\09\NUMTASKS)", "1"},
        {R"(EVENTS\MARCH\09\1M)", "Ann's birthday"},
    };
    EXPECT_EQ(medium.values, expected);
}

TEST_F(NumberedListTest, KeepsThousandsOfEntriesAsManyAsEachKindCanMove) {
    EXPECT_EQ(alarmsOf(kDay).mostEntries, 5000);
    EXPECT_EQ(toDoLines().mostEntries, 5000);
    EXPECT_EQ(weeklyTasksOf("Monday").mostEntries, 9000);
    EXPECT_EQ(monthlyTasksOf(1).mostEntries, 9000);
    EXPECT_EQ(occasionsOf("May", 1).mostEntries, 9000);
}

TEST_F(NumberedListTest, TheWeekdayOfADateIsEnglish) {
    EXPECT_EQ(weekdayNameOf(March / 15 / 2026), "Sunday");
    EXPECT_EQ(weekdayNameOf(March / 21 / 2026), "Saturday");
}

TEST_F(NumberedListTest, AListWithoutAnyKeyIsEmpty) {
    EXPECT_EQ(alarms.count(), 0);
    EXPECT_THAT(alarms.entries(), IsEmpty());
    EXPECT_FALSE(alarms.remove(numbered(1)));
    EXPECT_TRUE(medium.values.empty());
}

TEST_F(NumberedListTest, EntriesComeByNumberAndNotByKey) {
    for (int n = 1; n <= 11; ++n)
        toDo.append("", std::string(1, static_cast<char>('a' + n - 1)));
    EXPECT_THAT(linesOf(toDo), ElementsAre("1  a", "2  b", "3  c", "4  d", "5  e", "6  f", "7  g",
                                           "8  h", "9  i", "10  j", "11  k"));
}

TEST_F(NumberedListTest, ListsWhoseKeysBeginAlikeStayApart) {
    NumberedList first(settings, monthlyTasksOf(1)), eleventh(settings, monthlyTasksOf(11));
    first.append("", "one");
    eleventh.append("", "eleven");
    EXPECT_THAT(linesOf(first), ElementsAre("1  one"));
    EXPECT_THAT(linesOf(eleventh), ElementsAre("1  eleven"));
}

TEST_F(NumberedListTest, ReplacingTakesTheFirstThatMatches) {
    alarms.append("07:00", "a");
    alarms.append("08:00", "b");
    alarms.append("08:00", "c");
    alarms.replaceOrAppend(at("08:00"), "08:00", " new ");
    alarms.replaceOrAppend(at("09:00"), "09:00", "d");
    EXPECT_THAT(linesOf(alarms),
                ElementsAre("1 07:00 a", "2 08:00  new ", "3 08:00 c", "4 09:00 d"));
    EXPECT_EQ(settings.Read(kKey), "4");
}

TEST_F(NumberedListTest, RemovingTheOnlyEntryLeavesTheCountAtNought) {
    alarms.append("07:00", "a");
    EXPECT_TRUE(alarms.remove(at("07:00")));
    const std::map<std::string, std::string> expected{{"ALARMS\\03092001", "0"}};
    EXPECT_EQ(medium.values, expected);
}

TEST_F(NumberedListTest, AnAlarmWithoutAMessageIsLostToTheNextAndLeavesAnEmptyPlace) {
    settings.Save(kKey, "4");
    alarm("1", "08:00", "A");
    alarm("2", "09:00", "   ");
    alarm("3", "10:00", "C");
    alarm("4", "11:00", "D");
    EXPECT_TRUE(alarms.remove(numbered(1)));
    EXPECT_THAT(linesOf(alarms), ElementsAre("1 10:00 C", "2 11:00 D", "3  "));
    EXPECT_EQ(settings.Read(kKey), "3");
    EXPECT_FALSE(medium.values.contains("ALARMS\\030920014T"));
    EXPECT_FALSE(medium.values.contains("ALARMS\\030920014M"));
    alarms.append("12:00", "E");
    EXPECT_THAT(linesOf(alarms), ElementsAre("1 10:00 C", "2 11:00 D", "3  ", "4 12:00 E"));
    // The empty place goes with the next closing up, and a new one stands at the end.
    EXPECT_TRUE(alarms.remove(numbered(1)));
    EXPECT_THAT(linesOf(alarms), ElementsAre("1 11:00 D", "2 12:00 E", "3  "));
    EXPECT_TRUE(alarms.remove(numbered(1)));
    EXPECT_TRUE(alarms.remove(numbered(1)));
    EXPECT_THAT(linesOf(alarms), ElementsAre("1  "));
}

TEST_F(NumberedListTest, AnAlarmWithoutAMessageSurvivesInTheLastPlace) {
    settings.Save(kKey, "3");
    alarm("1", "08:00", "A");
    alarm("2", " 09:00 ", " B ");
    alarm("3", "10:00", "  ");
    EXPECT_TRUE(alarms.remove(numbered(1)));
    EXPECT_THAT(linesOf(alarms), ElementsAre("1 09:00 B", "2 10:00 "));
}

TEST_F(NumberedListTest, AMessageWithoutATimeTakesTheTimeThatWasWaiting) {
    settings.Save(kKey, "5");
    alarm("1", "08:00", "A");
    alarm("2", "09:00", "");
    alarm("3", "", "C");
    alarm("4", "", "D");
    alarm("5", "12:00", "E");
    EXPECT_TRUE(alarms.remove(numbered(1)));
    EXPECT_THAT(linesOf(alarms), ElementsAre("1 09:00 C", "2  D", "3 12:00 E", "4  "));
}

TEST_F(NumberedListTest, WeeklyTasksCloseUpAsAlarmsDo) {
    NumberedList weekly(settings, weeklyTasksOf("Friday"));
    for (const char* time : {"08:00", "09:00", "10:00", "11:00"})
        weekly.append(time, std::string("of ") + time);
    settings.Save("Weekly\\Friday\\2M", "   ");
    EXPECT_TRUE(weekly.remove(at("08:00")));
    EXPECT_THAT(linesOf(weekly), ElementsAre("1 10:00 of 10:00", "2 11:00 of 11:00", "3  "));
}

TEST_F(NumberedListTest, BlankTextsAreLeftOutAndTheirPlacesStandEmptyAtTheEnd) {
    for (const char* text : {"a", "", "c", " d "})
        toDo.append("", text);
    EXPECT_TRUE(toDo.remove(saying("a")));
    EXPECT_THAT(linesOf(toDo), ElementsAre("1  c", "2  d", "3  "));
    EXPECT_EQ(settings.Read("Tasks\\NumTasks"), "3");
    toDo.append("", "e");
    EXPECT_EQ(settings.Read("Tasks\\4"), "e");
}

TEST_F(NumberedListTest, OfEqualTextsTheFirstGoes) {
    for (const char* text : {"x", "same", "y", "same"})
        toDo.append("", text);
    EXPECT_TRUE(toDo.remove(saying("same")));
    EXPECT_THAT(linesOf(toDo), ElementsAre("1  x", "2  y", "3  same"));
}

TEST_F(NumberedListTest, NothingIsRemovedWhereNothingMatches) {
    toDo.append("", "a");
    const auto before = medium.values;
    EXPECT_FALSE(toDo.remove(saying("b")));
    EXPECT_EQ(medium.values, before);
}

TEST_F(NumberedListTest, TextsOfLineEndsAreNotBlank) {
    for (const char* text : {"a", "\r\n", "\t"})
        toDo.append("", text);
    EXPECT_TRUE(toDo.remove(saying("a")));
    EXPECT_THAT(linesOf(toDo), ElementsAre("1  \r\n", "2  \t"));
}

TEST_F(NumberedListTest, KeysBehindTheCountMeanNothingAndStay) {
    settings.Save("Tasks\\NumTasks", "2");
    for (const char* n : {"1", "2", "3"})
        settings.Save(std::string("Tasks\\") + n, std::string("of ") + n);
    EXPECT_TRUE(toDo.remove(saying("of 1")));
    EXPECT_THAT(linesOf(toDo), ElementsAre("1  of 2"));
    EXPECT_EQ(settings.Read("Tasks\\2"), "");
    EXPECT_EQ(settings.Read("Tasks\\3"), "of 3");
}

TEST_F(NumberedListTest, ACountBelowNoughtOrThatIsNoNumberIsNought) {
    for (const char* count : {"-3", "many", "", "-99999999999999999999"}) {
        medium.values.clear();
        settings.Save("Tasks\\1", "hidden");
        settings.Save("Tasks\\NumTasks", count);
        EXPECT_EQ(toDo.count(), 0) << count;
        EXPECT_THAT(toDo.entries(), IsEmpty()) << count;
        EXPECT_FALSE(toDo.remove(saying("hidden"))) << count;
        toDo.append("", "new");
        EXPECT_EQ(settings.Read("Tasks\\NumTasks"), "1") << count;
        EXPECT_THAT(linesOf(toDo), ElementsAre("1  new")) << count;
    }
}

TEST_F(NumberedListTest, ACountWithTextBehindItIsItsLeadingDigits) {
    settings.Save("Tasks\\1", "a");
    settings.Save("Tasks\\NumTasks", " 1 line");
    EXPECT_THAT(linesOf(toDo), ElementsAre("1  a"));
}

TEST_F(NumberedListTest, AHugeCountCostsNoMoreThanTheKeysThatAreThere) {
    settings.Save("Tasks\\NumTasks", "2000000000");
    settings.Save("Tasks\\1", "a");
    settings.Save("Tasks\\3", "c");
    settings.Save("Tasks\\1999999999", "z");
    settings.Save("Tasks\\99999999999999999999999", "no number");
    EXPECT_EQ(toDo.count(), 2'000'000'000);
    EXPECT_EQ(toDo.find(saying("z"))->number, 1'999'999'999);
    EXPECT_EQ(toDo.entries().size(), 5001U);  // gaps only as far as a list can reach
    EXPECT_TRUE(toDo.remove(saying("a")));
    EXPECT_EQ(settings.Read("Tasks\\NumTasks"), "1999999999");
    EXPECT_EQ(settings.Read("Tasks\\1"), "c");
    EXPECT_EQ(settings.Read("Tasks\\2"), "z");
    EXPECT_EQ(settings.Read("Tasks\\1999999999"), "");
    toDo.append("", "new");
    EXPECT_EQ(settings.Read("Tasks\\2000000000"), "new");
    EXPECT_EQ(toDo.find(saying("new"))->number, 2'000'000'000);
}

TEST_F(NumberedListTest, ACountBeyondAllNumbersStaysInReach) {
    settings.Save("Tasks\\NumTasks", "1e300");
    settings.Save("Tasks\\1", "a");
    EXPECT_THAT(linesOf(toDo), ElementsAre("1  a"));
    toDo.append("", "new");
    EXPECT_EQ(settings.Read("Tasks\\NumTasks"), "999999999999999");
    EXPECT_EQ(settings.Read("Tasks\\999999999999999"), "new");
}

TEST_F(NumberedListTest, NumbersWithZerosInFrontAreOtherKeys) {
    settings.Save("Tasks\\NumTasks", "2");
    settings.Save("Tasks\\01", "no");
    settings.Save("Tasks\\+1", "no");
    settings.Save("Tasks\\0", "no");
    settings.Save("Tasks\\1x", "no");
    settings.Save("Tasks\\2", "yes");
    EXPECT_THAT(linesOf(toDo), ElementsAre("1  ", "2  yes"));
}

TEST_F(NumberedListTest, MissingEntriesAreEmptyOnesUpToTheHighest) {
    settings.Save("Tasks\\NumTasks", "7");
    settings.Save("Tasks\\3", "c");
    EXPECT_THAT(linesOf(toDo), ElementsAre("1  ", "2  ", "3  c"));
}

TEST_F(NumberedListTest, MoreThanAListCanMoveIsAFailureThatChangesNothing) {
    settings.Save("Tasks\\NumTasks", "5002");
    for (int n = 1; n <= 5002; ++n)
        settings.Save("Tasks\\" + std::to_string(n), "line " + std::to_string(n));
    const auto before = medium.values;
    EXPECT_THROW(toDo.remove(saying("line 1")), Failure);
    EXPECT_EQ(medium.values, before);
    settings.Save("Tasks\\5000", "  ");
    EXPECT_TRUE(toDo.remove(saying("line 1")));
    EXPECT_EQ(settings.Read("Tasks\\NumTasks"), "5001");
    EXPECT_EQ(settings.Read("Tasks\\5000"), "line 5002");
    EXPECT_EQ(settings.Read("Tasks\\5001"), "");
}

TEST_F(NumberedListTest, AnAlarmTooManyIsAFailureEvenWithoutAMessage) {
    settings.Save(kKey, "5002");
    for (int n = 1; n <= 5002; ++n)
        alarm(std::to_string(n), "10:00", "x");
    settings.Save(kKey + "5002M", "");
    EXPECT_THROW(alarms.remove(numbered(1)), Failure);
    settings.Save(kKey, "5001");
    EXPECT_TRUE(alarms.remove(numbered(1)));
    EXPECT_EQ(alarms.entries().size(), 5000U);
}

TEST_F(NumberedListTest, AFailedWriteChangesNothing) {
    for (const char* text : {"a", "b", "c"})
        toDo.append("", text);
    const auto before = medium.values;
    medium.failing = true;
    EXPECT_THROW(toDo.append("", "d"), Failure);
    EXPECT_THROW(toDo.remove(saying("a")), Failure);
    EXPECT_THROW(toDo.replaceOrAppend(saying("a"), "", "A"), Failure);
    EXPECT_EQ(medium.values, before);
}

TEST_F(NumberedListTest, AListThatCanNotBeReadIsNeverTakenForAnEmptyOne) {
    toDo.append("", "a");
    const auto before = medium.values;
    medium.unreadable = true;
    EXPECT_THROW(toDo.append("", "b"), Failure);
    EXPECT_THROW(toDo.remove(saying("a")), Failure);
    EXPECT_THROW((void)toDo.entries(), Failure);
    EXPECT_EQ(medium.values, before);
}

}  // namespace
}  // namespace velmora
