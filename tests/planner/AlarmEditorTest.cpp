#include "planner/AlarmEditor.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "platform/Failure.h"
#include "support/FakeClock.h"
#include "support/MemorySettings.h"

namespace velmora {
namespace {

using namespace std::chrono;
using ::testing::ElementsAre;
using ::testing::IsEmpty;

// The dialog on Thursday, 12 March 2026, at 10:42, with that day in the planner.
class AlarmEditorTest : public ::testing::Test {
  protected:
    void setTime(int hour, int minute) {
        editor.setHour(hour);
        editor.setMinute(minute);
    }
    void add(int hour, int minute, const std::string& message) {
        setTime(hour, minute);
        editor.setMessage(message);
        editor.AddOrChange();
    }
    [[nodiscard]] std::string key(const std::string& rest) const {
        return settings.Read("Alarms\\03122026" + rest);
    }

    test::MemorySettings medium;
    SettingsStore settings{medium};
    test::FakeClock clock;
    year_month_day day = March / 12 / 2026;
    AlarmEditor editor{settings, clock, [this] { return day; }};
};

TEST_F(AlarmEditorTest, OpensWithThePresentTimeAndAMessage) {
    editor.Open();
    EXPECT_EQ(editor.time(), (ClockTime{10, 42}));
    EXPECT_EQ(editor.message(), "Alarm triggered");
    EXPECT_THAT(editor.times(), IsEmpty());
}

TEST_F(AlarmEditorTest, TheKeysHoldTimeAndMessageUnderTheDateAndTheNumber) {
    day = March / 9 / 2001;
    editor.Open();
    add(8, 15, "first");
    add(9, 5, " second ");
    const std::map<std::string, std::string> expected{
        {"ALARMS\\03092001", "2"},          {"ALARMS\\030920011T", "08:15"},
        {"ALARMS\\030920011M", "first"},    {"ALARMS\\030920012T", "09:05"},
        {"ALARMS\\030920012M", " second "},
    };
    EXPECT_EQ(medium.values, expected);
}

TEST_F(AlarmEditorTest, ListsTheTimesInTheOrderOfSetting) {
    editor.Open();
    add(16, 20, "late");
    add(8, 15, "early");
    EXPECT_THAT(editor.times(), ElementsAre("16:20", "08:15"));
    editor.Open();
    EXPECT_THAT(editor.times(), ElementsAre("16:20", "08:15"));
}

TEST_F(AlarmEditorTest, AddingATimeThatExistsChangesItsMessageAndAddsNoKey) {
    editor.Open();
    add(8, 15, "old");
    add(9, 0, "other");
    const std::size_t keys = medium.values.size();
    add(8, 15, "new");
    EXPECT_EQ(medium.values.size(), keys);
    EXPECT_EQ(key("1M"), "new");
    EXPECT_EQ(key(""), "2");
    EXPECT_THAT(editor.times(), ElementsAre("08:15", "09:00"));
}

TEST_F(AlarmEditorTest, ATimeThatIsWrittenInAnotherWayIsTheSameTime) {
    settings.Save("Alarms\\03122026", "2");
    settings.Save("Alarms\\031220261T", "9:5");
    settings.Save("Alarms\\031220261M", "old");
    settings.Save("Alarms\\031220262T", "2:05 PM");
    editor.Open();
    EXPECT_THAT(editor.times(), ElementsAre("09:05", "14:05"));
    add(9, 5, "new");
    EXPECT_EQ(key("1T"), "09:05");
    EXPECT_EQ(key("1M"), "new");
    EXPECT_EQ(key(""), "2");
}

TEST_F(AlarmEditorTest, AnEmptyMessageGetsOneOfItsOwnButBlanksAreAMessage) {
    editor.Open();
    add(8, 0, "");
    EXPECT_EQ(editor.message(), "Alarm Set For This Time.");
    EXPECT_EQ(key("1M"), "Alarm Set For This Time.");
    add(9, 0, "   ");
    EXPECT_EQ(key("2M"), "   ");
}

TEST_F(AlarmEditorTest, PickingATimeTakesOverItsMessageByteByByte) {
    editor.Open();
    add(23, 7, " two\r\nlines ");
    add(8, 0, "x");
    editor.Pick("23:07");
    EXPECT_EQ(editor.message(), " two\r\nlines ");
    EXPECT_EQ(editor.time(), (ClockTime{23, 7}));
    editor.AddOrChange();
    EXPECT_EQ(key("1M"), " two\r\nlines ");
}

TEST_F(AlarmEditorTest, PickingAnAlarmThatRangMeanwhileChangesNothing) {
    editor.Open();
    editor.Pick("08:00");
    EXPECT_EQ(editor.message(), "Alarm triggered");
    EXPECT_EQ(editor.time(), (ClockTime{10, 42}));
}

TEST_F(AlarmEditorTest, RemovingTakesThePickedTimeAndEmptiesTheMessage) {
    editor.Open();
    add(8, 0, "a");
    add(9, 0, "b");
    add(10, 0, "c");
    editor.Remove("09:00");
    EXPECT_EQ(editor.message(), "");
    EXPECT_THAT(editor.times(), ElementsAre("08:00", "10:00"));
    EXPECT_EQ(key("2M"), "c");
    EXPECT_EQ(key(""), "2");
    EXPECT_FALSE(medium.values.contains("ALARMS\\031220263T"));
}

TEST_F(AlarmEditorTest, RemovingTheOnlyAlarmLeavesTheCountAtNought) {
    editor.Open();
    add(8, 0, "a");
    editor.Remove("08:00");
    EXPECT_EQ(key(""), "0");
    EXPECT_EQ(medium.values.size(), 1U);
}

TEST_F(AlarmEditorTest, RemovingWithoutAPickedTimeDoesNothing) {
    editor.Open();
    add(8, 0, "a");
    const auto before = medium.values;
    editor.Remove("");
    editor.Remove("  ");
    EXPECT_EQ(editor.message(), "a");
    EXPECT_EQ(medium.values, before);
}

TEST_F(AlarmEditorTest, RemovingAnAlarmThatRangMeanwhileKeepsTheOthersAndFillsTheList) {
    editor.Open();
    add(8, 0, "a");
    add(9, 0, "b");
    {
        AlarmEditor other(settings, clock, [this] { return day; });
        other.Open();
        other.Remove("08:00");
    }
    EXPECT_EQ(key(""), "1");
    editor.Remove("08:00");
    EXPECT_EQ(key(""), "1");
    EXPECT_EQ(key("1M"), "b");
    EXPECT_THAT(editor.times(), ElementsAre("09:00"));
}

TEST_F(AlarmEditorTest, OfTwoAlarmsOfOneTimeTheFirstIsRemoved) {
    settings.Save("Alarms\\03122026", "2");
    for (const char* n : {"1", "2"}) {
        settings.Save(std::string("Alarms\\03122026") + n + "T", "11:00");
        settings.Save(std::string("Alarms\\03122026") + n + "M", std::string("alarm ") + n);
    }
    editor.Open();
    EXPECT_THAT(editor.times(), ElementsAre("11:00", "11:00"));
    editor.Remove("11:00");
    EXPECT_EQ(key("1M"), "alarm 2");
    EXPECT_EQ(key(""), "1");
}

TEST_F(AlarmEditorTest, EachActionAsksForTheDayOnShow) {
    editor.Open();
    add(8, 0, "twelfth");
    day = December / 31 / 2026;
    add(9, 0, "last of the year");
    EXPECT_THAT(editor.times(), ElementsAre("09:00"));
    EXPECT_EQ(settings.Read("Alarms\\123120261M"), "last of the year");
    day = March / 12 / 2026;
    editor.Remove("09:00");  // no such alarm on this day
    EXPECT_THAT(editor.times(), ElementsAre("08:00"));
    EXPECT_EQ(settings.Read("Alarms\\12312026"), "1");
}

TEST_F(AlarmEditorTest, ATextThatIsNoTimeIsListedAsItIsAndAnEmptyOneIsNot) {
    settings.Save("Alarms\\03122026", "4");
    settings.Save("Alarms\\031220261T", "soon");
    settings.Save("Alarms\\031220262T", "");
    settings.Save("Alarms\\031220262M", "no time");
    settings.Save("Alarms\\031220264T", "25:99");
    editor.Open();
    EXPECT_THAT(editor.times(), ElementsAre("soon", "25:99"));
    editor.Pick("soon");
    EXPECT_EQ(editor.time(), (ClockTime{0, 0}));
    editor.Pick("25:99");
    EXPECT_EQ(editor.time(), (ClockTime{23, 59}));
}

TEST_F(AlarmEditorTest, ADamagedCountIsNoReasonToFail) {
    for (const char* count : {"-7", "none", "2000000000"}) {
        medium.values.clear();
        settings.Save("Alarms\\03122026", count);
        settings.Save("Alarms\\031220261T", "08:00");
        settings.Save("Alarms\\031220261M", "a");
        editor.Open();
        EXPECT_EQ(editor.times().size(), std::string(count) == "2000000000" ? 1U : 0U) << count;
    }
}

TEST_F(AlarmEditorTest, MoreThanFiveThousandAlarmsAreAFailureOfTheNextRemoval) {
    settings.Save("Alarms\\03122026", "5002");
    for (int n = 1; n <= 5002; ++n) {
        settings.Save("Alarms\\03122026" + std::to_string(n) + "T",
                      twoDigits(n / 60 % 24) + ":" + twoDigits(n % 60));
        settings.Save("Alarms\\03122026" + std::to_string(n) + "M", "m");
    }
    editor.Open();
    EXPECT_EQ(editor.times().size(), 5002U);
    const auto before = medium.values;
    EXPECT_THROW(editor.Remove("00:01"), Failure);
    EXPECT_EQ(medium.values, before);
}

TEST(ClockTimeTest, MinutesGoRoundTheClock) {
    EXPECT_EQ((ClockTime{23, 57}.plusMinutes(5).text()), "00:02");
    EXPECT_EQ((ClockTime{23, 55}.plusMinutes(5).text()), "00:00");
    EXPECT_EQ((ClockTime{9, 55}.plusMinutes(10).text()), "10:05");
}

TEST(ClockTimeTest, DropsTheSeconds) {
    EXPECT_EQ(ClockTime::of(Moment(local_days(March / 8 / 2026)) + hours(9) + seconds(59)),
              (ClockTime{9, 0}));
}

}  // namespace
}  // namespace velmora
