#include "docpad/FontCommand.h"

#include <gtest/gtest.h>

#include <functional>

#include "support/FakeEventLoop.h"
#include "support/MemorySettings.h"

namespace velmora {
namespace {

struct FakeFontHolder final : FontHolder {
    [[nodiscard]] ControlFont font() const override { return present; }
    void setFont(const ControlFont& font) override { present = font; }
    ControlFont present{"Inter", 9.75, -1};
};

struct FakeFontDialog final : FontQuestion {
    std::optional<ControlFont> choose(const ControlFont& now, double smallest,
                                      double largest) override {
        shown = now;
        EXPECT_EQ(smallest, 4);
        EXPECT_EQ(largest, 14);
        if (whileOpen)
            whileOpen();
        return answer;
    }
    ControlFont shown;
    std::optional<ControlFont> answer;
    std::function<void()> whileOpen;
};

class FontCommandTest : public ::testing::Test {
  protected:
    FakeFontHolder target;
    FakeFontDialog dialog;
    test::MemorySettings medium;
    SettingsStore settings{medium};
    test::FakeEventLoop loop;
    FontCommand command{
        keys::DocFont, FontCommand::Keeps::NameSizeAndColour, target, dialog, settings, loop};
};

TEST_F(FontCommandTest, AppliesAndSavesWhatIsChosen) {
    dialog.answer = ControlFont{"Arial", 12.5, 255 + 256 * 2 + 65536 * 3};
    command.change();
    EXPECT_EQ(dialog.shown, (ControlFont{"Inter", 9.75, -1}));
    EXPECT_EQ(target.present, *dialog.answer);
    EXPECT_EQ(settings.Read("DocFont"), "Arial");
    EXPECT_EQ(settings.Read("DocFontS"), "12.5");
    EXPECT_EQ(settings.Read("DocFontC"), "197375");
}

TEST_F(FontCommandTest, ACancelledDialogSavesThePresentFont) {
    command.change();
    EXPECT_EQ(settings.Read("DocFont"), "Inter");
    EXPECT_EQ(settings.Read("DocFontS"), "9.75");
    EXPECT_EQ(settings.Read("DocFontC"), "-1");
}

TEST_F(FontCommandTest, ADialogThatTheEndOfTheProgramClosesSavesNothing) {
    dialog.whileOpen = [this] { loop.isClosing = true; };
    command.change();
    EXPECT_EQ(settings.Read("DocFont"), "");
    EXPECT_EQ(settings.Read("DocFontS"), "");
}

TEST_F(FontCommandTest, AWholeSizeHasNoPoint) {
    dialog.answer = ControlFont{"Arial", 10, 0};
    command.change();
    EXPECT_EQ(settings.Read("DocFontS"), "10");
    EXPECT_EQ(settings.Read("DocFontC"), "0");
}

TEST_F(FontCommandTest, SavesNoColourWhereNoneIsKept) {
    FontCommand planner(keys::PlanFont, FontCommand::Keeps::NameAndSize, target, dialog, settings,
                        loop);
    settings.Save("PlanFontC", "255");
    planner.change();
    EXPECT_EQ(settings.Read("PlanFont"), "Inter");
    EXPECT_EQ(settings.Read("PlanFontC"), "255");
}

}  // namespace
}  // namespace velmora
