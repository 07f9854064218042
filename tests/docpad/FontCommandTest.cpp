#include "docpad/FontCommand.h"

#include <gtest/gtest.h>

#include "support/MemorySettings.h"

namespace velmora {
namespace {

struct FakeFontTarget final : FontTarget {
    [[nodiscard]] FontChoice font() const override { return present; }
    void setFont(const FontChoice& font) override { present = font; }
    FontChoice present{"Inter", 9.75, -1};
};

struct FakeFontDialog final : FontQuestion {
    std::optional<FontChoice> choose(const FontChoice& now, double smallest,
                                     double largest) override {
        shown = now;
        EXPECT_EQ(smallest, 4);
        EXPECT_EQ(largest, 14);
        return answer;
    }
    FontChoice shown;
    std::optional<FontChoice> answer;
};

class FontCommandTest : public ::testing::Test {
  protected:
    FakeFontTarget target;
    FakeFontDialog dialog;
    test::MemorySettings medium;
    SettingsStore settings{medium};
    FontCommand command{"DocFont", FontCommand::Keeps::NameSizeAndColour, target, dialog, settings};
};

TEST_F(FontCommandTest, AppliesAndSavesWhatIsChosen) {
    dialog.answer = FontChoice{"Arial", 12.5, 255 + 256 * 2 + 65536 * 3};
    command.change();
    EXPECT_EQ(dialog.shown, (FontChoice{"Inter", 9.75, -1}));
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

TEST_F(FontCommandTest, AWholeSizeHasNoPoint) {
    dialog.answer = FontChoice{"Arial", 10, 0};
    command.change();
    EXPECT_EQ(settings.Read("DocFontS"), "10");
    EXPECT_EQ(settings.Read("DocFontC"), "0");
}

TEST_F(FontCommandTest, SavesNoColourWhereNoneIsKept) {
    FontCommand planner("PlanFont", FontCommand::Keeps::NameAndSize, target, dialog, settings);
    settings.Save("PlanFontC", "255");
    planner.applyStored();
    EXPECT_EQ(target.present.colour, -1);
    planner.change();
    EXPECT_EQ(settings.Read("PlanFont"), "Inter");
    EXPECT_EQ(settings.Read("PlanFontC"), "255");
}

TEST_F(FontCommandTest, AppliesEachStoredSettingThatIsNotEmpty) {
    settings.Save("DocFontS", " 8.25");
    command.applyStored();
    EXPECT_EQ(target.present, (FontChoice{"Inter", 8.25, -1}));
    settings.Save("DocFont", "Arial");
    settings.Save("DocFontC", "255");
    command.applyStored();
    EXPECT_EQ(target.present, (FontChoice{"Arial", 8.25, 255}));
}

TEST_F(FontCommandTest, PassesOverASizeThatIsNone) {
    for (const char* size : {"0", "-3", "large", "1E9"}) {
        settings.Save("DocFontS", size);
        command.applyStored();
        EXPECT_EQ(target.present.size, 9.75) << size;
    }
}

}  // namespace
}  // namespace velmora
