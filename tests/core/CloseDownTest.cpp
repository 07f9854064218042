#include "core/CloseDown.h"

#include <gtest/gtest.h>

#include "platform/Failure.h"
#include "support/FakeMainForm.h"
#include "support/FakeTrayIcon.h"

namespace velmora {
namespace {

TEST(CloseDown, RunsOnceAndTakesTheTrayIconAwayEvenAfterAFailure) {
    test::FakeMainForm form;
    test::FakeTrayIcon icon;
    Tray tray(icon, form);
    tray.InitTray();
    int ended = 0;
    CloseDown closeDown(tray, {.endScans = [&ended] {
                            ++ended;
                            throw Failure("stop");
                        }});
    EXPECT_FALSE(closeDown.done());
    closeDown.run();
    closeDown.run();
    EXPECT_TRUE(closeDown.done());
    EXPECT_EQ(ended, 1);
    EXPECT_FALSE(icon.shown);
}

}  // namespace
}  // namespace velmora
