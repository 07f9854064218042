#include "core/WindowShape.h"

#include <gtest/gtest.h>

#include "support/MemorySettings.h"

namespace velmora {
namespace {

class WindowShapeTest : public testing::Test {
  protected:
    WindowShape stored(const char* text) {
        settings.Save("WindowShape", text);
        return storedWindowShape(settings);
    }

    test::MemorySettings medium;
    SettingsStore settings{medium};
};

TEST_F(WindowShapeTest, ComesBackAsItWasKept) {
    const WindowShape shape{1300, 801, true, 377};
    keepWindowShape(settings, shape);
    EXPECT_EQ(storedWindowShape(settings), shape);
}

TEST_F(WindowShapeTest, IsThatOfTheFirstStartWithoutOne) {
    EXPECT_EQ(storedWindowShape(settings), WindowShape());
}

TEST_F(WindowShapeTest, IsThatOfTheFirstStartWhenTheSettingMakesNoSense) {
    for (const char* text :
         {"", "abc", "1200", "1200 700 0", "1200 700 0 400 ", "1200 700 0 400 5", "-1 700 0 400",
          "1200  700 0 400", "99999999999999999999 1 0 1", "40000 700 0 400", "1200,700,0,400"})
        EXPECT_EQ(stored(text), WindowShape()) << text;
    EXPECT_EQ(stored("1200 700 0 0"), (WindowShape{1200, 700, false, 0}));
}

}  // namespace
}  // namespace velmora
