#include "planner/AlarmTick.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "planner/AlarmEditor.h"
#include "planner/ListShapes.h"
#include "platform/Failure.h"
#include "support/FakeAlarmWindows.h"
#include "support/FakeClock.h"
#include "support/FakeEventLoop.h"
#include "support/FakeSound.h"
#include "support/MemoryFiles.h"
#include "support/MemorySettings.h"

namespace velmora {
namespace {

using namespace std::chrono;
using ::testing::ElementsAre;
using ::testing::IsEmpty;

// The program on Thursday, 12 March 2026. A minute has its ticks at 5, 30 and 55 seconds; every
// third one has only two.
class AlarmTickTest : public ::testing::Test {
  protected:
    AlarmTickTest() { goTo(10, 0); }

    void goTo(int hour, int minute) { clock.set(day, hours(hour) + minutes(minute)); }
    void tickAt(int hour, int minute, int second = 5) {
        clock.set(day, hours(hour) + minutes(minute) + seconds(second));
        tick.run();
    }
    // Lets the timer run from now on, as it does: every 25 seconds.
    void runFor(minutes duration) {
        for (const Moment end = clock.now() + duration; clock.now() < end;) {
            clock.advance(seconds(25));
            tick.run();
        }
    }
    void alarm(const std::string& time, const std::string& message) {
        NumberedList(settings, alarmsOf(day)).append(time, message);
    }
    void weekly(std::string_view weekday, const std::string& time, const std::string& message) {
        NumberedList(settings, weeklyTasksOf(weekday)).append(time, message);
    }
    // Messages left in the list of the day.
    [[nodiscard]] std::vector<std::string> left() {
        std::vector<std::string> messages;
        for (const NumberedEntry& entry : NumberedList(settings, alarmsOf(day)).entries())
            messages.push_back(entry.message);
        return messages;
    }
    // What the alert shows, which is then closed.
    std::string takeAlert() {
        std::string text = windows.alert.value_or("(no alert)");
        alerts.Ok();
        return text;
    }

    year_month_day day = March / 12 / 2026;
    test::FakeClock clock;
    test::MemorySettings medium;
    SettingsStore settings{medium};
    test::MemoryFiles files;
    test::FakeSound sound;
    test::FakeAlarmWindows windows;
    test::FakeEventLoop loop;
    AlarmSound alarmSound{settings, files, sound};
    AlertStack alerts{settings, clock, windows};
    AlarmTick tick{settings, clock, alarmSound, alerts, windows, loop};
};

TEST_F(AlarmTickTest, ADayWithoutAlarmsIsSilent) {
    runFor(minutes(3));
    EXPECT_FALSE(windows.alert);
    EXPECT_THAT(sound.takeHeard(), IsEmpty());
    EXPECT_TRUE(medium.values.empty());
}

TEST_F(AlarmTickTest, AnAlarmRingsOnceInItsMinuteAndLeavesTheList) {
    alarm("10:02", "Leave for the train");
    tickAt(10, 1, 55);
    EXPECT_FALSE(windows.alert);
    tickAt(10, 2, 20);
    EXPECT_EQ(takeAlert(), "Leave for the train");
    EXPECT_THAT(sound.takeHeard(), ElementsAre("beeps"));
    EXPECT_EQ(settings.Read("Alarms\\03122026"), "0");
    EXPECT_THAT(left(), IsEmpty());
    tickAt(10, 2, 45);
    EXPECT_FALSE(windows.alert);
}

TEST_F(AlarmTickTest, AnAlarmOfThePresentMinuteRingsOnTheNextTick) {
    tickAt(10, 0, 5);
    alarm("10:00", "now");
    tickAt(10, 0, 30);
    EXPECT_EQ(takeAlert(), "now");
}

TEST_F(AlarmTickTest, AnAlarmOfAPassedMinuteNeverRingsAndStays) {
    alarm("09:59", "too late");
    runFor(minutes(24 * 60 - 2));
    EXPECT_FALSE(windows.alert);
    EXPECT_EQ(settings.Read("Alarms\\03122026"), "1");
    EXPECT_EQ(settings.Read("Alarms\\031220261M"), "too late");
}

TEST_F(AlarmTickTest, EveryMinuteOfADayIsSeen) {
    goTo(0, 0);
    for (int n = 0; n < 24 * 60; n += 37)
        alarm(twoDigits(n / 60) + ":" + twoDigits(n % 60), "x");
    runFor(minutes(24 * 60 - 1));
    EXPECT_THAT(left(), IsEmpty());
}

TEST_F(AlarmTickTest, TheAlarmBehindOneThatRingsWaitsForTheNextTick) {
    for (const char* name : {"A", "B", "C", "D"})
        alarm("10:00", name);
    tickAt(10, 0, 5);
    EXPECT_EQ(takeAlert(), "C\r\nA");
    EXPECT_THAT(left(), ElementsAre("B", "D"));
    tickAt(10, 0, 30);
    EXPECT_EQ(takeAlert(), "B");
    EXPECT_THAT(left(), ElementsAre("D"));
    tickAt(10, 0, 55);
    EXPECT_EQ(takeAlert(), "D");
    EXPECT_THAT(left(), IsEmpty());
}

TEST_F(AlarmTickTest, AMinuteOfTwoTicksLeavesTheLastOfFourAdjacentAlarmsForGood) {
    for (const char* name : {"A", "B", "C", "D"})
        alarm("10:00", name);
    tickAt(10, 0, 20);
    tickAt(10, 0, 45);
    tickAt(10, 1, 10);
    EXPECT_EQ(takeAlert(), "B\r\nC\r\nA");
    EXPECT_THAT(left(), ElementsAre("D"));
}

TEST_F(AlarmTickTest, TwoAlarmsRingInOneTickOnlyIfTheyAreNotAdjacent) {
    alarm("10:00", "first");
    alarm("17:00", "between");
    alarm("10:00", "second");
    tickAt(10, 0);
    EXPECT_EQ(takeAlert(), "second\r\nfirst");
    EXPECT_THAT(left(), ElementsAre("between"));
}

TEST_F(AlarmTickTest, WhileTheAlertIsOpenTheNewestMessageComesOnTop) {
    alarm("10:00", "one");
    alarm("10:01", "two");
    alarm("10:02", "three");
    runFor(minutes(3));
    EXPECT_EQ(takeAlert(), "three\r\ntwo\r\none");
    alarm("10:04", "four");
    runFor(minutes(2));
    EXPECT_EQ(takeAlert(), "four");
}

TEST_F(AlarmTickTest, TimesInOtherSpellingsRingAndOtherTextsDoNot) {
    alarm("9:5", "short");
    alarm(" 09:06 ", "blanks");
    alarm("2:05 PM", "afternoon");
    alarm("soon", "no time");
    alarm("", "no time at all");
    alarm("24:00", "no time of a clock");
    tickAt(9, 5);
    EXPECT_EQ(takeAlert(), "short");
    tickAt(9, 6);
    EXPECT_EQ(takeAlert(), "blanks");
    tickAt(14, 5);
    EXPECT_EQ(takeAlert(), "afternoon");
    tickAt(0, 0);
    EXPECT_FALSE(windows.alert);
}

TEST_F(AlarmTickTest, AnAlarmWithoutAMessageRingsToo) {
    alarm("10:00", "");
    tickAt(10, 0);
    EXPECT_EQ(takeAlert(), "");
    EXPECT_EQ(settings.Read("Alarms\\03122026"), "0");
}

TEST_F(AlarmTickTest, ClosingUpFollowsTheRulesOfTheLists) {
    alarm("10:00", "A");
    alarm("11:00", "   ");
    alarm("12:00", "C");
    alarm("13:00", "D");
    tickAt(10, 0);
    EXPECT_EQ(settings.Read("Alarms\\03122026"), "3");
    EXPECT_EQ(settings.Read("Alarms\\031220261T"), "12:00");
    EXPECT_EQ(settings.Read("Alarms\\031220262T"), "13:00");
    EXPECT_THAT(left(), ElementsAre("C", "D", ""));
}

TEST_F(AlarmTickTest, TodayIsTheClocksDayAndNotThePlanners) {
    NumberedList(settings, alarmsOf(March / 13 / 2026)).append("10:00", "tomorrow's");
    tickAt(10, 0);
    EXPECT_FALSE(windows.alert);
    day = March / 13 / 2026;
    tickAt(10, 0);
    EXPECT_EQ(takeAlert(), "tomorrow's");
}

TEST_F(AlarmTickTest, AlarmsRingAroundMidnightAndAtTheEndsOfMonths) {
    for (const auto& [last, first] : {std::pair{February / 28 / 2026, March / 1 / 2026},
                                      {February / 29 / 2028, March / 1 / 2028},
                                      {April / 30 / 2026, May / 1 / 2026},
                                      {December / 31 / 2026, January / 1 / 2027}}) {
        day = last;
        alarm("23:59", "old day");
        alarm("00:00", "long past");
        NumberedList(settings, alarmsOf(first)).append("00:00", "new day");
        goTo(23, 58);
        runFor(minutes(4));
        EXPECT_EQ(takeAlert(), "new day\r\nold day");
        EXPECT_THAT(left(), ElementsAre("long past"));
    }
}

TEST_F(AlarmTickTest, ALeapDayHasItsOwnKey) {
    day = February / 29 / 2028;
    alarm("10:00", "leap");
    EXPECT_EQ(settings.Read("Alarms\\022920281M"), "leap");
    tickAt(10, 0);
    EXPECT_EQ(takeAlert(), "leap");
}

// The clock jumps from 01:59:59 to 03:00:00.
TEST_F(AlarmTickTest, AnAlarmInTheHourThatIsSkippedStaysInTheList) {
    day = March / 29 / 2026;
    alarm("02:30", "skipped");
    alarm("03:00", "after");
    goTo(1, 59);
    runFor(minutes(1));
    goTo(3, 0);
    tick.run();
    runFor(minutes(60));
    EXPECT_EQ(takeAlert(), "after");
    EXPECT_THAT(left(), ElementsAre("skipped"));
}

// The clock jumps from 02:59:59 back to 02:00:00.
TEST_F(AlarmTickTest, InTheHourThatComesTwiceAnAlarmRingsOnceAndAWeeklyTaskTwice) {
    day = October / 25 / 2026;
    alarm("02:30", "once");
    weekly("Sunday", "02:40", "twice");
    for (int times = 1; times <= 2; ++times) {
        goTo(2, 0);
        runFor(minutes(59));
        EXPECT_EQ(takeAlert(), times == 1 ? "once" : "(no alert)");
        EXPECT_GE(windows.takeBoxes().size(), 2U);
    }
}

TEST_F(AlarmTickTest, TheSoundFileIsPlayedWhenItIsThereAndThreeBeepsAreGivenOtherwise) {
    settings.Save("AlarmSound", "/sounds/bell.wav");
    for (const char* time : {"10:00", "10:01"})
        alarm(time, "x");
    tickAt(10, 0);
    EXPECT_THAT(sound.takeHeard(), ElementsAre("beeps"));
    files.append("/sounds/bell.wav", "x");
    tickAt(10, 1);
    EXPECT_THAT(sound.takeHeard(), ElementsAre("play /sounds/bell.wav"));
}

TEST_F(AlarmTickTest, NoneAndAnEmptySettingBeep) {
    settings.Save("AlarmSound", "none");
    alarmSound.ring();
    settings.Save("AlarmSound", "");
    alarmSound.ring();
    EXPECT_THAT(sound.takeHeard(), ElementsAre("beeps", "beeps"));
}

TEST_F(AlarmTickTest, EachAlarmOfATickSounds) {
    alarm("10:00", "A");
    alarm("11:00", "B");
    alarm("10:00", "C");
    weekly("Thursday", "10:00", "D");
    tickAt(10, 0);
    EXPECT_EQ(sound.takeHeard().size(), 3U);
}

TEST_F(AlarmTickTest, AWeeklyTaskRingsOnEachTickOfItsMinuteEveryWeek) {
    weekly("Thursday", "10:00", "Put the bins out");
    for (const int second : {5, 30, 55})
        tickAt(10, 0, second);
    tickAt(10, 1);
    const std::string box = "Alarm|Velmora Weekly Task Alarm\r\n\r\nPut the bins out";
    EXPECT_THAT(windows.takeBoxes(), ElementsAre(box, box, box));
    day = March / 13 / 2026;
    tickAt(10, 0);
    EXPECT_THAT(windows.takeBoxes(), IsEmpty());
    day = March / 19 / 2026;
    tickAt(10, 0);
    EXPECT_THAT(windows.takeBoxes(), ElementsAre(box));
    EXPECT_FALSE(windows.alert);
}

TEST_F(AlarmTickTest, EachDayOfTheWeekHasItsEnglishName) {
    const std::array names{"Sunday",   "Monday", "Tuesday", "Wednesday",
                           "Thursday", "Friday", "Saturday"};
    for (const char* name : names)
        weekly(name, "10:00", name);
    for (unsigned i = 0; i < 7; ++i) {
        day = year(2026) / March / (15 + i);
        tickAt(10, 0);
        EXPECT_THAT(windows.takeBoxes(),
                    ElementsAre(std::string("Alarm|Velmora Weekly Task Alarm\r\n\r\n") + names[i]));
    }
}

TEST_F(AlarmTickTest, SeveralWeeklyTasksOfOneMinuteRingInTheOrderOfTheirNumbers) {
    weekly("Thursday", "10:00", "one");
    weekly("Thursday", "11:00", "other");
    weekly("Thursday", "10:0", "two");
    tickAt(10, 0);
    const std::string head = "Alarm|Velmora Weekly Task Alarm\r\n\r\n";
    EXPECT_THAT(windows.takeBoxes(), ElementsAre(head + "one", head + "two"));
}

TEST_F(AlarmTickTest, TheDatedAlarmsComeBeforeTheWeeklyTasks) {
    weekly("Thursday", "10:00", "weekly");
    alarm("10:00", "dated");
    std::string alertAtBox;
    windows.whileOpen = [&] { alertAtBox = windows.alert.value_or("none"); };
    tickAt(10, 0);
    EXPECT_EQ(alertAtBox, "dated");
}

TEST_F(AlarmTickTest, ABoxHoldsUpItsOwnTickAndNoOther) {
    weekly("Thursday", "10:00", "first");
    weekly("Thursday", "10:00", "second");
    alarm("10:05", "meanwhile");
    windows.whileOpen = [&] {
        windows.whileOpen = nullptr;  // the user is away for ten minutes
        runFor(minutes(10));
    };
    tickAt(10, 0, 35);
    EXPECT_EQ(takeAlert(), "meanwhile");
    EXPECT_THAT(left(), IsEmpty());
    // When the tick goes on the minute is over, and the second task is not due any more.
    const std::string head = "Alarm|Velmora Weekly Task Alarm\r\n\r\n";
    EXPECT_THAT(windows.takeBoxes(), ElementsAre(head + "first"));
}

TEST_F(AlarmTickTest, TicksOfTheSameMinutePileUpAtMostThreeBoxes) {
    weekly("Thursday", "10:00", "task");
    int open = 0, most = 0;
    windows.whileOpen = [&] {
        most = std::max(most, ++open);
        clock.advance(seconds(25));
        tick.run();
        --open;
    };
    tickAt(10, 0, 5);
    EXPECT_EQ(most, 3);
    EXPECT_EQ(windows.takeBoxes().size(), 3U);
}

TEST_F(AlarmTickTest, AChangeWhileTheBoxIsOpenLosesNothing) {
    weekly("Thursday", "10:00", "first");
    weekly("Thursday", "10:00", "second");
    weekly("Thursday", "10:00", "third");
    AlarmEditor editor(settings, clock, [this] { return day; });
    windows.whileOpen = [&] {
        windows.whileOpen = nullptr;
        NumberedList(settings, weeklyTasksOf("Thursday")).remove([](const NumberedEntry& entry) {
            return entry.message == "first";
        });
        editor.Open();
        editor.AddOrChange();
    };
    tickAt(10, 0);
    const std::string head = "Alarm|Velmora Weekly Task Alarm\r\n\r\n";
    EXPECT_THAT(windows.takeBoxes(), ElementsAre(head + "first", head + "third"));
    EXPECT_THAT(left(), ElementsAre("Alarm triggered"));
}

TEST_F(AlarmTickTest, ABoxThatReturnsWhileTheProgramClosesEndsTheTick) {
    weekly("Thursday", "10:00", "first");
    weekly("Thursday", "10:00", "second");
    windows.whileOpen = [&] { loop.isClosing = true; };
    tickAt(10, 0);
    EXPECT_EQ(windows.takeBoxes().size(), 1U);
}

TEST_F(AlarmTickTest, SettingsThatCanNotBeReadOrWrittenStopNothing) {
    alarm("10:00", "dated");
    weekly("Thursday", "10:00", "weekly");
    medium.failing = true;
    tickAt(10, 0);
    EXPECT_EQ(takeAlert(), "dated");
    EXPECT_EQ(windows.takeBoxes().size(), 1U);
    medium.failing = false;
    EXPECT_THAT(left(), ElementsAre("dated"));
    medium.unreadable = true;
    EXPECT_NO_THROW(tickAt(10, 0, 30));
}

TEST_F(AlarmTickTest, AListThatIsTooLongRingsAndStaysAsItWas) {
    settings.Save("Alarms\\03122026", "5002");
    for (int n = 1; n <= 5002; ++n) {
        settings.Save("Alarms\\03122026" + std::to_string(n) + "T", n == 9 ? "10:00" : "11:00");
        settings.Save("Alarms\\03122026" + std::to_string(n) + "M", "alarm " + std::to_string(n));
    }
    const auto before = medium.values;
    tickAt(10, 0);
    EXPECT_EQ(takeAlert(), "alarm 9");
    EXPECT_EQ(medium.values, before);
}

TEST_F(AlarmTickTest, DamagedCountsAreNoMoreThanTheKeysThatAreThere) {
    for (const char* count : {"2000000000", "1e300", "-1", "many", "1"}) {
        medium.values.clear();
        alarm("10:00", "x");
        settings.Save("Alarms\\03122026", count);
        weekly("Thursday", "10:00", "y");
        settings.Save("Weekly\\Thursday\\NumTasks", count);
        tickAt(10, 0);
        const bool counts = std::string(count) != "-1" && std::string(count) != "many";
        EXPECT_EQ(takeAlert(), counts ? "x" : "(no alert)") << count;
        EXPECT_EQ(windows.takeBoxes().size(), counts ? 1U : 0U) << count;
    }
}

TEST_F(AlarmTickTest, SnoozingSetsAnAlarmFromTheMomentOfThePressWithoutSeconds) {
    alarm("10:00", "wake");
    tickAt(10, 0);
    clock.set(day, hours(10) + minutes(7) + seconds(59));
    alerts.Snooze(5);
    EXPECT_FALSE(windows.alert);
    EXPECT_EQ(settings.Read("Alarms\\03122026"), "1");
    EXPECT_EQ(settings.Read("Alarms\\031220261T"), "10:12");
    EXPECT_EQ(settings.Read("Alarms\\031220261M"), "wake");
    tickAt(10, 12);
    EXPECT_EQ(takeAlert(), "wake");
}

TEST_F(AlarmTickTest, StackedAlarmsComeBackAsOneWithOneMessage) {
    alarm("10:00", " one ");
    alarm("11:00", "other");
    alarm("10:00", "two");
    tickAt(10, 0);
    alerts.Snooze(10);
    EXPECT_THAT(left(), ElementsAre("other", "two\r\n one"));
    tickAt(10, 10);
    EXPECT_EQ(takeAlert(), "two\r\n one");
}

TEST_F(AlarmTickTest, ASnoozeBeforeMidnightIsSetForTheBeginningOfTheSameDay) {
    alarm("23:57", "late");
    tickAt(23, 57, 30);
    alerts.Snooze(5);
    EXPECT_EQ(settings.Read("Alarms\\031220261T"), "00:02");
    runFor(minutes(20));
    EXPECT_FALSE(windows.alert);
    EXPECT_THAT(left(), ElementsAre("late"));
}

TEST_F(AlarmTickTest, ASnoozeAfterMidnightBelongsToTheNewDay) {
    alarm("23:59", "late");
    tickAt(23, 59);
    day = March / 13 / 2026;
    goTo(0, 1);
    alerts.Snooze(5);
    EXPECT_EQ(settings.Read("Alarms\\031320261T"), "00:06");
    runFor(minutes(6));
    EXPECT_EQ(takeAlert(), "late");
}

TEST_F(AlarmTickTest, ASnoozeToATimeThatHasAnAlarmMakesTwo) {
    alarm("10:05", "there already");
    alerts.add("snoozed");
    goTo(10, 0);
    alerts.Snooze(5);
    EXPECT_THAT(left(), ElementsAre("there already", "snoozed"));
    EXPECT_EQ(settings.Read("Alarms\\031220262T"), "10:05");
}

TEST_F(AlarmTickTest, ASnoozeThatCanNotBeStoredKeepsTheAlertOpen) {
    alerts.add("keep me");
    medium.failing = true;
    EXPECT_THROW(alerts.Snooze(5), Failure);
    EXPECT_EQ(windows.alert, "keep me");
}

}  // namespace
}  // namespace velmora
