#include "platform/controls/PadEditor.h"

#include <gtest/gtest.h>

#include <QInputMethodEvent>
#include <QMimeData>
#include <vector>

#include "platform/controls/PadInputMethod.h"

namespace velmora {
namespace {

// An editor without a window, which keeps what it is told.
class ToldEditor final : public PadEditor {
  public:
    using PadEditor::PadEditor;

    std::vector<std::size_t> lengths;  // of the text after each change
    int changesThatFollow = 0;
    int moves = 0;
    int movesThatFollow = 0;
    int replaced = 0;
    int rows = 1;

  private:
    void textWasChanged(const PadBuffer::Change&, View view) override {
        EXPECT_EQ(page().rows().begin(page().rows().count()), bytes().size())
            << "rows follow first";
        EXPECT_LE(caret().selection().caret, bytes().size());
        lengths.push_back(bytes().size());
        changesThatFollow += view == View::Follows ? 1 : 0;
    }
    void caretWasMoved(View view) override {
        ++moves;
        movesThatFollow += view == View::Follows ? 1 : 0;
    }
    void characterWasReplaced() override { ++replaced; }
    [[nodiscard]] int rowsOnShow() const override { return rows; }
};

class PadEditorTest : public ::testing::Test {
  protected:
    ToldEditor editor{CodePage::western()};
};

TEST_F(PadEditorTest, TellsEachChangeOnceWhenRowsAndCaretAreThoseBehindIt) {
    editor.setBytes("one");
    editor.setBytes("one");
    editor.select(3, 0);
    editor.type(QStringLiteral(" two"));
    editor.undo();
    editor.undo();
    editor.undo();
    EXPECT_EQ(editor.lengths, (std::vector<std::size_t>{3, 7, 3, 0}));
    EXPECT_EQ(editor.changesThatFollow, 4);
}

TEST_F(PadEditorTest, WhatIsAppendedAndAllThatIsSelectedLeaveTheViewWhereItIs) {
    editor.setBytes("a\r");
    editor.select(2, 0);
    const int follow = editor.changesThatFollow;
    const int moves = editor.movesThatFollow;
    editor.append("\nb");
    EXPECT_EQ(editor.changesThatFollow, follow);
    EXPECT_EQ(editor.selectionStart(), 1u) << "not between CR and LF";
    editor.append("");
    EXPECT_EQ(editor.lengths.size(), 2u) << "nothing is no change";
    editor.selectAll();
    EXPECT_EQ(editor.movesThatFollow, moves);
    EXPECT_EQ(editor.selectedText(), QStringLiteral("a\nb"));
}

TEST_F(PadEditorTest, ASelectionThatIsErasedLeavesWhatLiesBehindIt) {
    editor.setBytes("one two three");
    editor.select(4, 4);
    editor.erase(0);
    EXPECT_EQ(editor.bytes(), "one three");
    editor.erase(4);
    EXPECT_EQ(editor.bytes(), "one three") << "from the caret to itself";
    editor.erase(0);
    EXPECT_EQ(editor.bytes(), "three");
    EXPECT_EQ(editor.lengths.size(), 3u);
}

TEST_F(PadEditorTest, OnlyTextIsInserted) {
    QMimeData picture;
    picture.setData(QStringLiteral("image/png"), "png");
    editor.setBytes("a");
    editor.selectAll();
    editor.insert(picture);
    EXPECT_EQ(editor.bytes(), "a");
    QMimeData text;
    text.setText(QStringLiteral("1\n2\u0416"));
    editor.insert(text);
    EXPECT_EQ(editor.bytes(), "1\r\n2?");
    EXPECT_EQ(editor.replaced, 1);
}

TEST_F(PadEditorTest, AMoveOfTheCaretEndsTheStepThatIsUndone) {
    editor.type(QStringLiteral("a"));
    editor.moveCaret(PadCaret::Move::PreviousCharacter, false);
    editor.moveCaret(PadCaret::Move::NextCharacter, false);
    editor.type(QStringLiteral("b"));
    EXPECT_EQ(editor.moves, 2);
    editor.undo();
    EXPECT_EQ(editor.bytes(), "a");
}

TEST_F(PadEditorTest, APageHasTheRowsThatAreOnShow) {
    editor.setBytes("1\n2\n3\n4\n5\n6");
    editor.rows = 3;
    editor.moveCaret(PadCaret::Move::NextPage, false);
    EXPECT_EQ(editor.selectionStart(), 6u);
    editor.moveCaret(PadCaret::Move::PreviousPage, true);
    EXPECT_EQ(editor.selectedBytes(), "1\n2\n3\n");
}

class PadInputMethodTest : public PadEditorTest {
  protected:
    [[nodiscard]] QString around() const { return input.answer(Qt::ImSurroundingText)->toString(); }

    PadInputMethod input{editor};
};

TEST_F(PadInputMethodTest, WhatIsComposedIsNoTextUntilItIsDone) {
    QInputMethodEvent composing(QStringLiteral("xyz"),
                                {QInputMethodEvent::Attribute(QInputMethodEvent::Cursor, 1, 1)});
    input.obey(composing);
    ASSERT_NE(input.composed(), nullptr);
    EXPECT_EQ(input.composed()->text, QStringLiteral("xyz"));
    EXPECT_EQ(input.composed()->caret, 1);
    EXPECT_TRUE(editor.lengths.empty());
    QInputMethodEvent done;
    done.setCommitString(QStringLiteral("z"));
    input.obey(done);
    EXPECT_EQ(input.composed(), nullptr);
    EXPECT_EQ(editor.bytes(), "z");
}

TEST_F(PadInputMethodTest, AReplacementTakesThePlaceOfWhatStandsAroundTheCaret) {
    editor.setBytes("abcd");
    editor.select(3, 0);
    QInputMethodEvent event;
    event.setCommitString(QStringLiteral("X"), -2, 2);
    input.obey(event);
    EXPECT_EQ(editor.bytes(), "aXd");
    event.setCommitString(QStringLiteral("Y"), -9, 1);
    input.obey(event);
    EXPECT_EQ(editor.bytes(), "YXd") << "no further back than the begin";
}

TEST_F(PadInputMethodTest, IsToldTheLineOfTheCaretAndNoMoreThanAStretchOfALongOne) {
    editor.setBytes("before\r\nthe line\r\nbehind");
    editor.select(12, 0);
    EXPECT_EQ(around(), QStringLiteral("the line"));
    EXPECT_EQ(input.answer(Qt::ImCursorPosition)->toInt(), 4);
    editor.setBytes(std::string(100'000, 'm'));
    editor.select(50'000, 10);
    EXPECT_EQ(around().size(), 1000);
    EXPECT_EQ(input.answer(Qt::ImCursorPosition)->toInt(), 500);
    EXPECT_EQ(input.answer(Qt::ImAnchorPosition)->toInt(), 490);
    EXPECT_EQ(input.answer(Qt::ImCurrentSelection)->toString().size(), 10);
    editor.selectAll();
    EXPECT_TRUE(input.answer(Qt::ImCurrentSelection)->toString().isEmpty());
    EXPECT_EQ(input.answer(Qt::ImHints), std::nullopt);
}

}  // namespace
}  // namespace velmora
