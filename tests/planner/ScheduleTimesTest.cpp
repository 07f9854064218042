#include "planner/ScheduleTimes.h"

#include <gmock/gmock.h>

#include "support/FakeClock.h"
#include "support/FakeMessages.h"

namespace velmora {
namespace {

using namespace std::chrono;
using Part = ScheduleTimes::Part;
using testing::ElementsAre;
using testing::IsEmpty;

constexpr const char* kRefusal =
    "warn|Velmora|The event must end after the time that it starts. Please adjust the ending time. "
    "If your event extends into the next day (after midnight), please schedule the event for the "
    "next day.";

class ScheduleTimesTest : public testing::Test {
  protected:
    void openAt(int hour, int minute) {
        clock.set(year(2026) / 3 / 12, hours(hour) + minutes(minute));
        times.Open();
    }

    void set(int beginHour, int beginMinute, int endHour, int endMinute) {
        times.setValue(Part::BeginHour, beginHour);
        times.setValue(Part::BeginMinute, beginMinute);
        times.setValue(Part::EndHour, endHour);
        times.setValue(Part::EndMinute, endMinute);
    }

    std::vector<std::string> labels() const {
        return {times.label(Part::BeginHour), times.label(Part::BeginMinute),
                times.label(Part::EndHour), times.label(Part::EndMinute)};
    }

    ScheduleTexts texts{"09:00 AM", "10:00 AM"};
    test::FakeMessages messages;
    test::FakeClock clock;
    ScheduleTimes times{texts, messages, clock};
};

TEST_F(ScheduleTimesTest, BeginsNowForAnHourInTwoDigits) {
    openAt(9, 5);
    EXPECT_THAT(labels(), ElementsAre("09", "05", "10", "05"));
    openAt(0, 0);
    EXPECT_THAT(labels(), ElementsAre("00", "00", "01", "00"));
}

TEST_F(ScheduleTimesTest, EmptiesTheTextsOnOpening) {
    openAt(9, 5);
    EXPECT_EQ(texts.ScheduleBegin, "");
    EXPECT_EQ(texts.ScheduleEnd, "");
}

TEST_F(ScheduleTimesTest, GivesTheTimesAsTheLabelsShowThem) {
    openAt(9, 5);
    EXPECT_TRUE(times.Apply());
    EXPECT_EQ(texts.ScheduleBegin, "09:05");
    EXPECT_EQ(texts.ScheduleEnd, "10:05");
    EXPECT_THAT(messages.takeShown(), IsEmpty());
}

TEST_F(ScheduleTimesTest, RefusesAnEventOfNoLength) {
    openAt(9, 5);
    set(9, 30, 9, 30);
    EXPECT_FALSE(times.Apply());
    EXPECT_THAT(messages.takeShown(), ElementsAre(kRefusal));
    EXPECT_EQ(texts.ScheduleBegin, "");
    EXPECT_EQ(texts.ScheduleEnd, "");
    set(9, 30, 9, 31);
    EXPECT_TRUE(times.Apply());
}

TEST_F(ScheduleTimesTest, RefusesAnEndHourBelowTheBeginHour) {
    openAt(9, 5);
    set(9, 0, 8, 59);
    EXPECT_FALSE(times.Apply());
    set(9, 59, 10, 0);
    EXPECT_TRUE(times.Apply());
    EXPECT_THAT(messages.takeShown(), ElementsAre(kRefusal));
}

TEST_F(ScheduleTimesTest, OpensAcrossMidnightAndIsRefusedUntilChanged) {
    openAt(23, 30);
    EXPECT_THAT(labels(), ElementsAre("23", "30", "00", "30"));
    EXPECT_FALSE(times.Apply());
    EXPECT_THAT(messages.takeShown(), ElementsAre(kRefusal));
    times.setValue(Part::EndHour, 23);
    times.setValue(Part::EndMinute, 59);
    EXPECT_TRUE(times.Apply());
    EXPECT_EQ(texts.ScheduleEnd, "23:59");
}

}  // namespace
}  // namespace velmora
