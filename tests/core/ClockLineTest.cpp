#include "core/ClockLine.h"

#include <gtest/gtest.h>

#include "support/FakeClock.h"
#include "support/FakeMainForm.h"
#include "support/MemorySettings.h"

namespace velmora {
namespace {

class ClockLineTest : public ::testing::Test {
  protected:
    test::FakeMainForm form;
    test::FakeClock clock;
    test::MemorySettings medium;
    SettingsStore settings{medium};
    LocaleFormats locale;
    ClockLine clockLine{form, settings, clock, locale};
};

TEST_F(ClockLineTest, TheTextIsRewrittenOnlyWhenItChanges) {
    clockLine.tick();
    EXPECT_EQ(form.clock, "10:42 AM");
    clock.advance(std::chrono::seconds(59));
    clockLine.tick();
    EXPECT_EQ(form.clockWrites, 1);
    clock.advance(std::chrono::seconds(1));
    clockLine.tick();
    EXPECT_EQ(form.clock, "10:43 AM");
    EXPECT_EQ(form.clockWrites, 2);
}

TEST_F(ClockLineTest, TheTickedMenuGivesTwentyFourHours) {
    clock.set(std::chrono::year(2026) / 3 / 12, std::chrono::hours(17));
    form.tick = true;
    clockLine.tick();
    EXPECT_EQ(form.clock, "17:00");
}

TEST_F(ClockLineTest, TogglingFlipsTheTickAndRemembersIt) {
    clockLine.toggleTwentyFourHours();
    EXPECT_TRUE(form.tick);
    EXPECT_EQ(settings.Read("24hr"), "YES");
    clockLine.toggleTwentyFourHours();
    EXPECT_FALSE(form.tick);
    EXPECT_EQ(settings.Read("24hr"), "NO");
}

TEST_F(ClockLineTest, OnlyYesInAnyCaseTicksTheMenuAtStart) {
    for (const auto& [value, ticked] :
         {std::pair{"YES", true}, {" yes ", true}, {"NO", false}, {"", false}, {"1", false}}) {
        SCOPED_TRACE(value);
        settings.Save("24hr", value);
        form.tick = !ticked;
        clockLine.restore();
        EXPECT_EQ(form.tick, ticked);
    }
}

}  // namespace
}  // namespace velmora
