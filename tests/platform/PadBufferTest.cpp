#include "platform/controls/models/PadBuffer.h"

#include <gtest/gtest.h>

namespace velmora {
namespace {

using Kind = PadBuffer::Kind;

class PadBufferTest : public ::testing::Test {
  protected:
    void type(std::string_view letters) {
        for (const char letter : letters) {
            text.replace(caret, 0, std::string(1, letter), Kind::Typing, {caret, caret});
            ++caret;
        }
    }
    void backspace(int times) {
        for (int i = 0; i < times; ++i, --caret)
            text.replace(caret - 1, 1, "", Kind::Erasing, {caret, caret});
    }
    void undo() {
        const auto replay = text.undo();
        ASSERT_TRUE(replay);
        caret = replay->selection.caret;
    }

    PadBuffer text;
    std::size_t caret = 0;
};

TEST_F(PadBufferTest, OneUndoTakesAWordWithTheBlanksBehindIt) {
    type("Dear Eva,  thank you");
    for (const char* left : {"Dear Eva,  thank ", "Dear Eva,  ", "Dear ", ""}) {
        undo();
        EXPECT_EQ(text.bytes(), left);
    }
    EXPECT_FALSE(text.canUndo());
    EXPECT_TRUE(text.redo());
    EXPECT_TRUE(text.redo());
    EXPECT_EQ(text.bytes(), "Dear Eva,  ");
}

TEST_F(PadBufferTest, ErasedLettersComeBackAWordAtATime) {
    type("one two");
    backspace(5);
    EXPECT_EQ(text.bytes(), "on");
    undo();
    undo();
    EXPECT_EQ(text.bytes(), "one two");
    EXPECT_EQ(caret, 7u);
}

TEST_F(PadBufferTest, AMovedCaretBeginsANewStep) {
    type("ab");
    text.endStep();
    type("cd");
    undo();
    EXPECT_EQ(text.bytes(), "ab");
}

TEST_F(PadBufferTest, UndoBringsTheSelectionBack) {
    type("one");
    text.replace(0, 3, "two", Kind::Other, {3, 0});
    const auto replay = text.undo();
    ASSERT_TRUE(replay);
    EXPECT_EQ(replay->selection, (PadBuffer::Selection{3, 0}));
    EXPECT_EQ(replay->change.removed, "two");
    EXPECT_EQ(replay->change.inserted, 3u);
}

TEST_F(PadBufferTest, AChangeEndsWhatCouldBeRedone) {
    type("one ");
    undo();
    type("x");
    EXPECT_FALSE(text.canRedo());
    EXPECT_FALSE(text.redo());
}

TEST_F(PadBufferTest, NothingIsUndoneBeyondAForgottenHistory) {
    type("one");
    text.forgetHistory();
    EXPECT_FALSE(text.undo());
    EXPECT_FALSE(text.redo());
    EXPECT_EQ(text.bytes(), "one");
}

TEST_F(PadBufferTest, TheOldestStepsOfAHugeHistoryAreForgotten) {
    const std::string huge(60'000'000, 'x');
    for (int i = 0; i < 5; ++i)
        text.replace(0, text.size(), i % 2 == 0 ? huge : std::string(), Kind::Other, {});
    int steps = 0;
    while (text.undo())
        ++steps;
    EXPECT_EQ(steps, 3);
}

TEST_F(PadBufferTest, ALoneCrAndALoneLfNeverBecomeOneLineEnd) {
    text.append("a\rx\nb", {});
    text.replace(2, 1, "", Kind::Erasing, {3, 3});
    EXPECT_EQ(text.bytes(), "a\r\n\nb");
    text.replace(0, 5, "", Kind::Other, {});
    text.append("a\rb\nc", {});
    text.replace(2, 0, "\n", Kind::Other, {2, 2});
    EXPECT_EQ(text.bytes(), "a\r\n\nb\nc");
    text.replace(5, 0, "\r", Kind::Other, {5, 5});
    EXPECT_EQ(text.bytes(), "a\r\n\nb\r\n\nc");
}

TEST_F(PadBufferTest, AppendedBytesStayAsTheyAre) {
    text.append("a\r", {});
    text.append("\nb", {});
    EXPECT_EQ(text.bytes(), "a\r\nb");
    undo();
    EXPECT_EQ(text.bytes(), "a\r");
}

TEST_F(PadBufferTest, ACaretNeverStandsInsideALineEnd) {
    text.append("a\r\nb\n\rc", {});
    EXPECT_EQ(text.snapped(2), 1u);
    EXPECT_EQ(text.snapped(3), 3u);
    EXPECT_EQ(text.snapped(5), 5u);
    EXPECT_EQ(text.snapped(100), 7u);
    EXPECT_EQ(text.lineBegin(4), 3u);
    EXPECT_EQ(text.lineEnd(3), 4u);
    EXPECT_EQ(text.lineBegin(1), 0u);
}

}  // namespace
}  // namespace velmora
