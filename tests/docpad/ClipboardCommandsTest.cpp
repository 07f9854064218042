#include "docpad/ClipboardCommands.h"

#include <gtest/gtest.h>

#include <optional>

#include "platform/Failure.h"

namespace velmora {
namespace {

struct FakeFocusedText final : FocusedText {
    [[nodiscard]] std::string selection() const override { return selected; }
    void replaceSelection(const std::string& text) override { selected = text; }
    std::string selected;
};

struct FakeClipboard final : ClipboardText {
    void clear() override {
        failIfAsked();
        text.clear();
    }
    void set(const std::string& newText) override {
        failIfAsked();
        text = newText;
    }
    [[nodiscard]] std::string get() const override {
        failIfAsked();
        return text;
    }
    void failIfAsked() const {
        if (failing)
            throw Failure("The clipboard is not there.");
    }
    std::string text = "before";
    bool failing = false;
};

class ClipboardCommandsTest : public ::testing::Test {
  protected:
    FakeFocusedText focused;
    FakeClipboard clipboard;
    ClipboardCommands commands{focused, clipboard};
};

TEST_F(ClipboardCommandsTest, CutMovesTheSelection) {
    focused.selected = "a\r\nb";
    commands.EditCut();
    EXPECT_EQ(clipboard.text, "a\r\nb");
    EXPECT_EQ(focused.selected, "");
}

TEST_F(ClipboardCommandsTest, CopyLeavesTheSelection) {
    focused.selected = "text";
    commands.EditCopy();
    EXPECT_EQ(clipboard.text, "text");
    EXPECT_EQ(focused.selected, "text");
}

TEST_F(ClipboardCommandsTest, CutAndCopyOfNothingEmptyTheClipboard) {
    commands.EditCopy();
    EXPECT_EQ(clipboard.text, "");
    clipboard.text = "before";
    commands.EditCut();
    EXPECT_EQ(clipboard.text, "");
}

TEST_F(ClipboardCommandsTest, PasteReplacesTheSelection) {
    focused.selected = "text";
    commands.EditPaste();
    EXPECT_EQ(focused.selected, "before");
}

TEST_F(ClipboardCommandsTest, AClipboardThatFailsIsPassedOver) {
    focused.selected = "text";
    clipboard.failing = true;
    commands.EditPaste();
    EXPECT_EQ(focused.selected, "text");
    commands.EditCopy();
    commands.EditCut();
    EXPECT_EQ(focused.selected, "") << "the next step of Cut runs whatever happened before";
}

}  // namespace
}  // namespace velmora
