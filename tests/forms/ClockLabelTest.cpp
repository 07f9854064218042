#include "core/forms/ClockLabel.h"

#include <gtest/gtest.h>

#include <QAction>

#include "core/forms/CommandMenus.h"
#include "forms/CalendarFixture.h"

namespace velmora {
namespace {

class ClockLabelTest : public test::CalendarFixture {
  protected:
    ClockLabel& clock = calendar.clock();
};

TEST_F(ClockLabelTest, TheCommandAloneDecidesAboutTheTick) {
    calendar.menus().item("twentyfourhr")->trigger();
    EXPECT_FALSE(clock.twentyFourHourTick());
    clock.setTwentyFourHourTick(true);
    calendar.menus().item("twentyfourhr")->trigger();
    EXPECT_TRUE(clock.twentyFourHourTick());
}

TEST_F(ClockLabelTest, ShowsTheTimeInWhichItHasRoomForTheLongest) {
    clock.setClockText("10:42 AM");
    EXPECT_EQ(clock.text(), "10:42 AM");
    EXPECT_EQ(clock.clockText(), "10:42 AM");
    const int width = clock.width();
    EXPECT_GE(width, clock.fontMetrics().horizontalAdvance("12:00 PM"));
    clock.setClockText("9:41");
    QCoreApplication::processEvents();
    EXPECT_EQ(clock.width(), width) << "the row does not move each hour";
}

}  // namespace
}  // namespace velmora
