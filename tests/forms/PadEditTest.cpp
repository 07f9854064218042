#include "platform/controls/PadEdit.h"

#include <gtest/gtest.h>

#include <QAccessible>
#include <QApplication>
#include <QClipboard>
#include <QDragEnterEvent>
#include <QDropEvent>
#include <QInputMethodEvent>
#include <QLineEdit>
#include <QMenu>
#include <QMimeData>
#include <QScrollBar>
#include <QSignalSpy>
#include <QTest>
#include <QVBoxLayout>

#include "platform/controls/DragFormats.h"

namespace velmora {
namespace {

std::string everyByte() {
    std::string bytes;
    for (int i = 0; i < 256; ++i)
        bytes += static_cast<char>(i);
    return bytes;
}

class PadEditTest : public ::testing::Test {
  protected:
    PadEditTest() {
        pad.resize(400, 300);
        pad.show();
        pad.activateWindow();
        pad.setFocus();
    }
    void caret(std::size_t position) { pad.select(position, 0); }
    void type(const QString& text) { QTest::keyClicks(&pad, text); }

    PadEdit pad{CodePage::western()};
};

TEST_F(PadEditTest, GivesBackTheBytesThatItGot) {
    for (const std::string& bytes :
         {std::string(), std::string("text"), std::string("a\r\nb\r\n"), std::string("a\nb\n"),
          std::string("a\rb\r"), std::string("a\r\nb\nc\rd\r\r\n\n\r\n\n\re"), std::string("\r\n"),
          std::string("\n"), std::string("\r"), std::string("\r\r"), std::string("\n\n"),
          std::string("\0\0a\0\r\n\0", 7), std::string("a\xA0 b\t\f\v"), everyByte()}) {
        pad.setBytes(bytes);
        EXPECT_EQ(pad.bytes(), bytes);
        EXPECT_EQ(pad.isEmpty(), bytes.empty());
    }
}

TEST_F(PadEditTest, EveryCodePageGivesBackItsBytes) {
    for (const int number : {874, 1250, 1251, 1253, 1254, 1255, 1256, 1257, 1258}) {
        const CodePage page = CodePage::numbered(number);
        PadEdit other(page);
        other.setBytes(everyByte());
        EXPECT_EQ(other.bytes(), everyByte()) << number;
    }
}

TEST_F(PadEditTest, TypingKeepsTheLineEndsAroundIt) {
    pad.setBytes("a\nb\rc\r\nd");
    caret(2);
    type("x");
    EXPECT_EQ(pad.bytes(), "a\nxb\rc\r\nd");
    caret(9);
    QTest::keyClick(&pad, Qt::Key_Backspace);
    EXPECT_EQ(pad.bytes(), "a\nxb\rc\r\n");
}

TEST_F(PadEditTest, ANewLineEndsInCrLfWhateverItsNeighboursHave) {
    for (const Qt::Key key : {Qt::Key_Return, Qt::Key_Enter}) {
        pad.setBytes("a\nbc\nd");
        caret(3);
        QTest::keyClick(&pad, key);
        EXPECT_EQ(pad.bytes(), "a\nb\r\nc\nd");
    }
    pad.setBytes("a\nb");
    caret(2);
    QTest::keyClick(&pad, Qt::Key_Return);
    EXPECT_EQ(pad.bytes(), "a\n\r\nb");
    QTest::keyClick(&pad, Qt::Key_Return, Qt::ShiftModifier);
    EXPECT_EQ(pad.bytes(), "a\n\r\n\r\nb");
}

TEST_F(PadEditTest, JoiningLinesRemovesTheirLineEndAndNoOther) {
    pad.setBytes("a\nb\rc\r\nd");
    caret(2);
    QTest::keyClick(&pad, Qt::Key_Backspace);
    EXPECT_EQ(pad.bytes(), "ab\rc\r\nd");
    caret(2);
    QTest::keyClick(&pad, Qt::Key_Delete);
    EXPECT_EQ(pad.bytes(), "abc\r\nd");
}

TEST_F(PadEditTest, TwoLineEndsNeverBecomeOneInTheBytes) {
    pad.setBytes("a\rx\nb");
    caret(2);
    QTest::keyClick(&pad, Qt::Key_Delete);
    EXPECT_EQ(pad.page().rows().count(), 3u);
    EXPECT_EQ(pad.bytes(), "a\r\n\nb");
}

TEST_F(PadEditTest, UndoAndRedoBringEachLineEndBack) {
    const std::string mixed = "a\nb\rc\r\nd\n";
    pad.setBytes(mixed);
    pad.selectAll();
    QTest::keyClick(&pad, Qt::Key_Delete);
    EXPECT_EQ(pad.bytes(), "");
    pad.undo();
    EXPECT_EQ(pad.bytes(), mixed);
    caret(2);
    QTest::keyClick(&pad, Qt::Key_Backspace);
    pad.undo();
    EXPECT_EQ(pad.bytes(), mixed);
    pad.redo();
    EXPECT_EQ(pad.bytes(), "ab\rc\r\nd\n");
}

TEST_F(PadEditTest, UndoGoesAcrossChangesByTheProgramOneByOne) {
    type("typed");
    pad.setBytes("set\n");
    pad.append("more\r");
    pad.undo();
    EXPECT_EQ(pad.bytes(), "set\n");
    pad.undo();
    EXPECT_EQ(pad.bytes(), "typed");
    pad.undo();
    EXPECT_EQ(pad.bytes(), "");
    EXPECT_FALSE(pad.page().text().canUndo());
}

TEST_F(PadEditTest, UndoNeverGoesBackBehindATextThatWasLoaded) {
    type("typed");
    pad.reload("loaded");
    EXPECT_FALSE(pad.page().text().canUndo());
    QTest::keyClick(&pad, Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(pad.bytes(), "loaded");
    type("x");
    QTest::keyClick(&pad, Qt::Key_Z, Qt::ControlModifier);
    QTest::keyClick(&pad, Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(pad.bytes(), "loaded");
    pad.setBytes("");
    pad.reload("");
    pad.undo();
    EXPECT_EQ(pad.bytes(), "") << "nor behind an empty one";
}

TEST_F(PadEditTest, OneUndoTakesAWord) {
    type("one two three");
    QTest::keyClick(&pad, Qt::Key_Return);
    type("four");
    for (const char* left : {"one two three\r\n", "one two three", "one two ", "one ", ""}) {
        QTest::keyClick(&pad, Qt::Key_Z, Qt::ControlModifier);
        EXPECT_EQ(pad.bytes(), left);
    }
    QTest::keyClick(&pad, Qt::Key_Z, Qt::ControlModifier | Qt::ShiftModifier);
    EXPECT_EQ(pad.bytes(), "one ");
    QTest::keyClick(&pad, Qt::Key_Y, Qt::ControlModifier);
    EXPECT_EQ(pad.bytes(), "one two ");
}

TEST_F(PadEditTest, AClickBetweenTwoLettersBeginsAnotherStep) {
    type("ab");
    caret(1);
    type("x");
    pad.undo();
    EXPECT_EQ(pad.bytes(), "ab");
}

TEST_F(PadEditTest, TellsRealChangesAndOnlyThose) {
    QSignalSpy changes(&pad, &PadEdit::textChanged);
    pad.setBytes("a\nb");
    EXPECT_EQ(changes.count(), 1);
    pad.setBytes("a\nb");
    EXPECT_EQ(changes.count(), 1) << "an equal text is no change";
    pad.setBytes("a\r\nb");
    EXPECT_EQ(changes.count(), 2) << "another line end is one";
    pad.reload("a\r\nb");
    EXPECT_EQ(changes.count(), 3);
    pad.append("");
    pad.select(0, 2);
    pad.setFont(QFont(QStringLiteral("DejaVu Sans"), 12));
    pad.setInk(QColor(Qt::red));
    pad.setTextMargins({56, 28, 56, 28});
    pad.resize(500, 200);
    EXPECT_EQ(changes.count(), 3) << "looks are no change of the text";
    type("x");
    EXPECT_EQ(changes.count(), 4);
    pad.setBytes("");
    EXPECT_EQ(changes.count(), 5);
    pad.reload("");
    EXPECT_EQ(changes.count(), 5);
}

TEST_F(PadEditTest, PositionsCountBytes) {
    pad.setBytes("one\r\ntwo\nsix\r\rx");
    const std::string bytes = pad.bytes();
    for (std::size_t start = 0; start <= bytes.size(); ++start) {
        if (start == 4)
            continue;  // between CR and LF
        pad.select(start, 0);
        EXPECT_EQ(pad.selectionStart(), start);
        EXPECT_EQ(pad.selectionLength(), 0u);
    }
    pad.select(5, 3);
    EXPECT_EQ(pad.selectedBytes(), "two");
    pad.select(2, 4);
    EXPECT_EQ(pad.selectedBytes(), "e\r\nt");
    pad.select(9, 100);
    EXPECT_EQ(pad.selectedBytes(), "six\r\rx") << "cut at the end";
    pad.select(100, 5);
    EXPECT_EQ(pad.selectionStart(), bytes.size());
    EXPECT_EQ(pad.selectionLength(), 0u);
    pad.select(4, 1);
    EXPECT_EQ(pad.selectionStart(), 3u);
}

TEST_F(PadEditTest, ReplacesTheSelectionByExactBytes) {
    pad.setBytes("one\r\ntwo");
    pad.select(1, 5);
    pad.replaceSelection("X\nY");
    EXPECT_EQ(pad.bytes(), "oX\nYwo");
    EXPECT_EQ(pad.selectionStart(), 4u);
    EXPECT_EQ(pad.selectionLength(), 0u);
}

TEST_F(PadEditTest, AppendingKeepsTheCaretAndTheBytes) {
    pad.setBytes("ab\r");
    caret(1);
    pad.append("\nc");
    EXPECT_EQ(pad.bytes(), "ab\r\nc");
    pad.select(1, 1);
    pad.append("d\r\n");
    EXPECT_EQ(pad.bytes(), "ab\r\ncd\r\n");
    EXPECT_EQ(pad.selectedBytes(), "b");
    pad.setBytes("abc");
    caret(3);
    pad.append("d");
    EXPECT_EQ(pad.selectionStart(), 3u);
}

TEST_F(PadEditTest, ACharacterThatTheCodePageLacksBecomesAQuestionMarkAtOnce) {
    QSignalSpy replaced(&pad, &PadEdit::characterReplaced);
    QTest::sendKeyEvent(QTest::Press, &pad, Qt::Key_unknown, QStringLiteral("\u0416"),
                        Qt::NoModifier);
    EXPECT_EQ(pad.bytes(), "?");
    EXPECT_EQ(replaced.count(), 1);
    QTest::sendKeyEvent(QTest::Press, &pad, Qt::Key_unknown, QStringLiteral("\u20AC\u00E9"),
                        Qt::NoModifier);
    EXPECT_EQ(pad.bytes(), "?\x80\xE9");
    EXPECT_EQ(replaced.count(), 1);

    QInputMethodEvent input;
    input.setCommitString(QStringLiteral("\U0001F600x"));
    QApplication::sendEvent(&pad, &input);
    EXPECT_EQ(pad.bytes(), "?\x80\xE9?x");
    EXPECT_EQ(replaced.count(), 2);
}

TEST_F(PadEditTest, PastedLinesEndInCrLfAndLackedCharactersInQuestionMarks) {
    QSignalSpy replaced(&pad, &PadEdit::characterReplaced);
    pad.setBytes("a\nb");
    caret(2);
    QApplication::clipboard()->setText(QStringLiteral("1\n2\r\n3\u0416\r4\u2029"));
    pad.paste();
    EXPECT_EQ(pad.bytes(), "a\n1\r\n2\r\n3?\r\n4\r\nb");
    EXPECT_EQ(replaced.count(), 1);
    pad.undo();
    EXPECT_EQ(pad.bytes(), "a\nb");
}

TEST_F(PadEditTest, CopiedLinesEndInLf) {
    pad.setBytes("a\xA0\r\nb\rc");
    pad.selectAll();
    pad.copy();
    EXPECT_EQ(QApplication::clipboard()->text(), QStringLiteral("a\u00A0\nb\nc"));
}

TEST_F(PadEditTest, TabTypesATabAndCtrlTabLeaves) {
    QWidget window;
    QVBoxLayout layout(&window);
    QLineEdit before;
    PadEdit inside(CodePage::western());
    QLineEdit behind;
    for (QWidget* widget : {static_cast<QWidget*>(&before), static_cast<QWidget*>(&inside),
                            static_cast<QWidget*>(&behind)})
        layout.addWidget(widget);
    window.show();
    window.activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
    inside.setFocus();
    QTest::keyClick(&inside, Qt::Key_Tab);
    EXPECT_EQ(inside.bytes(), "\t");
    EXPECT_TRUE(inside.hasFocus());
    QTest::keyClick(&inside, Qt::Key_Tab, Qt::ControlModifier);
    EXPECT_TRUE(behind.hasFocus());
    inside.setFocus();
    QTest::keyClick(&inside, Qt::Key_Backtab, Qt::ControlModifier | Qt::ShiftModifier);
    EXPECT_TRUE(before.hasFocus());
    EXPECT_EQ(inside.bytes(), "\t");
}

TEST_F(PadEditTest, LinesAreFourPixelsApartAndRowsFollowTheFont) {
    pad.setBytes("a\r\nb\r\nc");
    const int height = pad.caretRect({3}).top() - pad.caretRect({0}).top();
    EXPECT_EQ(height, qRound(QFontMetricsF(pad.font(), &pad).height()) + 4);
    QFont larger = pad.font();
    larger.setPointSizeF(20);
    pad.setFont(larger);
    EXPECT_EQ(pad.caretRect({3}).top() - pad.caretRect({0}).top(),
              qRound(QFontMetricsF(larger, &pad).height()) + 4);
}

TEST_F(PadEditTest, LinesAreWrappedAndNeverScrolledSideways) {
    std::string words;
    for (int i = 0; i < 60; ++i)
        words += "word ";
    for (const std::string& text : {words, std::string(300, 'm'), std::string(300, ' ')}) {
        pad.setBytes(text);
        for (const int width : {400, 150}) {
            pad.resize(width, 300);
            if (text.front() != ' ') {
                ASSERT_GT(pad.page().rows().count(), 2u);
            }
            for (std::size_t i = 0; i <= text.size(); ++i)
                ASSERT_LE(pad.caretRect({i, true}).right(), pad.viewport()->width());
            EXPECT_EQ(pad.horizontalScrollBar()->maximum(), 0);
            EXPECT_FALSE(pad.horizontalScrollBar()->isVisible());
        }
    }
}

TEST_F(PadEditTest, WhatIsTypedIsWrappedAsWhatIsLoaded) {
    const std::string text = "Wwwww mmmm iiii-lll JJ (555) 0199, ttt ";
    PadEdit loaded(CodePage::western());
    loaded.resize(pad.size());
    loaded.show();
    loaded.setBytes(text + text + text + text);
    for (int i = 0; i < 4; ++i)
        type(QString::fromLatin1(text.data(), static_cast<qsizetype>(text.size())));
    loaded.verticalScrollBar()->setValue(0);
    pad.verticalScrollBar()->setValue(0);
    ASSERT_EQ(pad.bytes(), loaded.bytes());
    for (int y = 5; y < pad.height(); y += 10)
        for (int x = 20; x < pad.width(); x += 20)
            EXPECT_EQ(pad.placeAt({x, y}).position, loaded.placeAt({x, y}).position)
                << x << ' ' << y;
}

TEST_F(PadEditTest, ATextThatIsHigherThanItsRoomScrollsToTheCaret) {
    std::string lines;
    for (int i = 0; i < 100; ++i)
        lines += "line\r\n";
    pad.setBytes(lines);
    EXPECT_EQ(pad.verticalScrollBar()->value(), 0);
    QTest::keyClick(&pad, Qt::Key_End, Qt::ControlModifier);
    EXPECT_EQ(pad.verticalScrollBar()->value(), pad.verticalScrollBar()->maximum());
    EXPECT_TRUE(pad.viewport()->rect().contains(pad.caretRect({lines.size()})));
    QTest::keyClick(&pad, Qt::Key_PageUp);
    EXPECT_TRUE(pad.viewport()->rect().contains(pad.caretRect(pad.caret().place())));
    EXPECT_LT(pad.selectionStart(), lines.size() - 30);
    QTest::keyClick(&pad, Qt::Key_Home, Qt::ControlModifier);
    EXPECT_EQ(pad.verticalScrollBar()->value(), 0);
    pad.verticalScrollBar()->setValue(50);
    pad.append("more\r\n");
    EXPECT_EQ(pad.verticalScrollBar()->value(), 50) << "what is appended leaves the view";
}

TEST_F(PadEditTest, TheCaretMovesByRowsOfAWrappedLine) {
    pad.setBytes(std::string(300, 'm') + "\r\nend");
    const std::size_t row = pad.page().rows().begin(1);
    QTest::keyClick(&pad, Qt::Key_End);
    EXPECT_EQ(pad.selectionStart(), row);
    EXPECT_EQ(pad.caretRect(pad.caret().place()).top(), 0) << "still on the first row";
    QTest::keyClick(&pad, Qt::Key_Home);
    EXPECT_EQ(pad.selectionStart(), 0u);
    caret(3);
    QTest::keyClick(&pad, Qt::Key_Down);
    EXPECT_EQ(pad.selectionStart(), row + 3);
    QTest::keyClick(&pad, Qt::Key_Up, Qt::ShiftModifier);
    EXPECT_EQ(pad.selectionStart(), 3u);
    EXPECT_EQ(pad.selectionLength(), row);
}

TEST_F(PadEditTest, TheCaretKeepsItsColumnOnItsWayThroughShortLines) {
    pad.setBytes("abcdef\r\na\r\nabcdef");
    caret(4);
    QTest::keyClick(&pad, Qt::Key_Down);
    EXPECT_EQ(pad.selectionStart(), 9u);
    QTest::keyClick(&pad, Qt::Key_Down);
    EXPECT_EQ(pad.selectionStart(), 15u);
}

TEST_F(PadEditTest, WordsAreSkippedSelectedAndErased) {
    pad.setBytes("one two three");
    caret(0);
    QTest::keyClick(&pad, Qt::Key_Right, Qt::ControlModifier);
    EXPECT_EQ(pad.selectionStart(), 4u);
    QTest::keyClick(&pad, Qt::Key_Right, Qt::ControlModifier | Qt::ShiftModifier);
    EXPECT_EQ(pad.selectedBytes(), "two ");
    QTest::keyClick(&pad, Qt::Key_Left);
    EXPECT_EQ(pad.selectionStart(), 4u);
    QTest::keyClick(&pad, Qt::Key_Delete, Qt::ControlModifier);
    EXPECT_EQ(pad.bytes(), "one three");
    QTest::keyClick(&pad, Qt::Key_Backspace, Qt::ControlModifier);
    EXPECT_EQ(pad.bytes(), "three");
}

TEST_F(PadEditTest, ADoubleClickSelectsAWordAndAThirdItsLine) {
    pad.setBytes("one two\r\nthree");
    const QPoint on = pad.caretRect({5}).center();
    QTest::mouseDClick(pad.viewport(), Qt::LeftButton, {}, on);
    EXPECT_EQ(pad.selectedBytes(), "two");
    QTest::mouseClick(pad.viewport(), Qt::LeftButton, {}, on);
    EXPECT_EQ(pad.selectedBytes(), "one two\r\n");
}

TEST_F(PadEditTest, TheMouseSelectsWhileItIsHeldDown) {
    pad.setBytes("one two\r\nthree");
    QTest::mousePress(pad.viewport(), Qt::LeftButton, {}, pad.caretRect({1}).center());
    QMouseEvent move(QEvent::MouseMove, pad.caretRect({11}).center(),
                     pad.viewport()->mapToGlobal(pad.caretRect({11}).center()), Qt::NoButton,
                     Qt::LeftButton, {});
    QApplication::sendEvent(pad.viewport(), &move);
    QTest::mouseRelease(pad.viewport(), Qt::LeftButton, {}, pad.caretRect({11}).center());
    EXPECT_EQ(pad.selectedBytes(), "ne two\r\nth");
    QTest::mouseClick(pad.viewport(), Qt::LeftButton, Qt::ShiftModifier,
                      pad.caretRect({4}).center());
    EXPECT_EQ(pad.selectedBytes(), "ne ");
}

TEST_F(PadEditTest, ALineInHebrewRunsFromTheRight) {
    const CodePage page = CodePage::numbered(1255);
    PadEdit hebrew(page);
    hebrew.resize(400, 300);
    hebrew.show();
    hebrew.setBytes("\xE0\xE1\xE2\r\nabc");
    EXPECT_GT(hebrew.caretRect({0}).left(), hebrew.caretRect({3}).left());
    EXPECT_GT(hebrew.caretRect({0}).left(), hebrew.viewport()->width() - 20);
    EXPECT_LT(hebrew.caretRect({5}).left(), hebrew.caretRect({8}).left());
    hebrew.select(0, 0);
    QTest::keyClick(&hebrew, Qt::Key_Left);
    EXPECT_EQ(hebrew.selectionStart(), 1u) << "the arrow points to where the caret goes";
    hebrew.select(0, 0);
    QTest::keyClicks(&hebrew, QStringLiteral("x"));
    EXPECT_LT(hebrew.caretRect({0}).left(), 20) << "a line begins as its first letter does";
}

TEST_F(PadEditTest, KeysOfTextsAreNotLeftToTheCommandsOfTheWindow) {
    const auto taken = [this](int key, Qt::KeyboardModifiers modifiers, const QString& text = {}) {
        QKeyEvent event(QEvent::ShortcutOverride, key, modifiers, text);
        event.ignore();
        QApplication::sendEvent(&pad, &event);
        return event.isAccepted();
    };
    EXPECT_TRUE(taken(Qt::Key_Delete, {}));
    EXPECT_TRUE(taken(Qt::Key_Y, Qt::ControlModifier));
    EXPECT_TRUE(taken(Qt::Key_C, Qt::ControlModifier));
    EXPECT_TRUE(taken(Qt::Key_A, {}, QStringLiteral("a")));
    EXPECT_FALSE(taken(Qt::Key_S, Qt::ControlModifier));
    EXPECT_FALSE(taken(Qt::Key_F5, {}));
    EXPECT_FALSE(taken(Qt::Key_P, Qt::AltModifier, QStringLiteral("p")));
}

TEST_F(PadEditTest, WhatAnInputMethodComposesIsShownButNoTextYet) {
    pad.setBytes("ab");
    caret(1);
    const int before = pad.caretRect(pad.caret().place()).left();
    QInputMethodEvent composing(QStringLiteral("xyz"), {});
    QApplication::sendEvent(&pad, &composing);
    EXPECT_EQ(pad.bytes(), "ab");
    EXPECT_GT(pad.caretRect(pad.caret().place()).left(), before);
    QInputMethodEvent done;
    done.setCommitString(QStringLiteral("z"));
    QApplication::sendEvent(&pad, &done);
    EXPECT_EQ(pad.bytes(), "azb");
    const QWidget& widget = pad;
    EXPECT_EQ(widget.inputMethodQuery(Qt::ImSurroundingText).toString(), QStringLiteral("azb"));
    EXPECT_EQ(widget.inputMethodQuery(Qt::ImCursorPosition).toInt(), 2);
}

TEST_F(PadEditTest, AssistiveToolsReadAndEditTheTextWithALineEndAsOneCharacter) {
    pad.setBytes("a\r\nb\nc\rd");
    QAccessibleInterface* tool = QAccessible::queryAccessibleInterface(&pad);
    ASSERT_TRUE(tool);
    QAccessibleTextInterface* text = tool->textInterface();
    ASSERT_TRUE(text);
    EXPECT_EQ(tool->role(), QAccessible::EditableText);
    EXPECT_TRUE(tool->state().editable && tool->state().multiLine && tool->state().focusable);
    EXPECT_EQ(text->characterCount(), 7);
    EXPECT_EQ(text->text(0, -1), QStringLiteral("a\nb\nc\nd"));
    EXPECT_EQ(text->text(2, 3), QStringLiteral("b"));
    text->setCursorPosition(2);
    EXPECT_EQ(pad.selectionStart(), 3u);
    EXPECT_EQ(text->cursorPosition(), 2);
    text->setSelection(0, 0, 2);
    EXPECT_EQ(pad.selectedBytes(), "a\r\n");
    EXPECT_EQ(text->offsetAtPoint(text->characterRect(4).topLeft()), 4);
    tool->editableTextInterface()->insertText(7, QStringLiteral("\ne"));
    EXPECT_EQ(pad.bytes(), "a\r\nb\nc\rd\r\ne");
}

TEST_F(PadEditTest, AClickBetweenTwoLinesLandsInTheLineOfThatRow) {
    pad.setBytes("abcdef\r\nabcdef\r\nabcdef");
    const QRect there = pad.caretRect({11});  // second line, before "d"
    for (const int y : {there.top(), there.center().y(), there.bottom()}) {
        QTest::mouseClick(pad.viewport(), Qt::LeftButton, {}, {there.left() + 1, y});
        EXPECT_EQ(pad.selectionStart(), 11u) << y - there.top();
    }
}

TEST_F(PadEditTest, AClickInTheMarginLandsInTheLineBesideIt) {
    pad.setTextMargins({56, 28, 56, 28});
    pad.setBytes("abcdef\r\nabcdef");
    const int y = pad.viewport()->mapTo(&pad, pad.caretRect({9}).center()).y();
    QTest::mouseClick(&pad, Qt::LeftButton, {}, {6, y});
    EXPECT_EQ(pad.selectionStart(), 8u);
}

TEST_F(PadEditTest, MarginsAreWiderWhenItFillsTheWindow) {
    const int frame = pad.frameWidth();
    pad.setTextMargins({16, 14, 16, 14});
    EXPECT_EQ(pad.viewport()->pos() - QPoint(frame, frame), QPoint(16, 14));
    pad.setTextMargins({56, 28, 56, 28});
    EXPECT_EQ(pad.viewport()->pos() - QPoint(frame, frame), QPoint(56, 28));
}

TEST_F(PadEditTest, AnEntryThatIsDroppedIsToldAndNotInserted) {
    pad.setBytes("text");
    QSignalSpy dropped(&pad, &PadEdit::entryDropped);
    QMimeData data;
    data.setData(QString::fromLatin1(kEntryFormat), QByteArray("M\xFCller, Eva"));
    data.setText(QStringLiteral("line"));
    QDragEnterEvent enter({5, 5}, Qt::CopyAction, &data, Qt::LeftButton, {});
    QApplication::sendEvent(pad.viewport(), &enter);
    EXPECT_TRUE(enter.isAccepted());
    QDropEvent drop({5, 5}, Qt::CopyAction, &data, Qt::LeftButton, {});
    QApplication::sendEvent(pad.viewport(), &drop);
    ASSERT_EQ(dropped.count(), 1);
    EXPECT_EQ(dropped.first().first().value<std::string>(), "M\xFCller, Eva");
    EXPECT_EQ(pad.bytes(), "text");
}

TEST_F(PadEditTest, ATaskThatIsDroppedIsToldAndNotInserted) {
    QSignalSpy dropped(&pad, &PadEdit::taskDropped);
    QSignalSpy entries(&pad, &PadEdit::entryDropped);
    QMimeData data;
    data.setData(QString::fromLatin1(kTaskFormat), QByteArray("Buy milk"));
    QDragEnterEvent enter({5, 5}, Qt::CopyAction, &data, Qt::LeftButton, {});
    QApplication::sendEvent(pad.viewport(), &enter);
    EXPECT_TRUE(enter.isAccepted());
    QDropEvent drop({5, 5}, Qt::CopyAction, &data, Qt::LeftButton, {});
    QApplication::sendEvent(pad.viewport(), &drop);
    ASSERT_EQ(dropped.count(), 1);
    EXPECT_EQ(dropped.first().first().value<std::string>(), "Buy milk");
    EXPECT_EQ(entries.count(), 0);
    EXPECT_TRUE(pad.isEmpty());
}

TEST_F(PadEditTest, TextThatIsDroppedIsInserted) {
    QMimeData data;
    data.setText(QStringLiteral("one\ntwo"));
    QDragEnterEvent enter({5, 5}, Qt::CopyAction, &data, Qt::LeftButton, {});
    QApplication::sendEvent(pad.viewport(), &enter);
    EXPECT_TRUE(enter.isAccepted());
    QDropEvent drop({5, 5}, Qt::CopyAction, &data, Qt::LeftButton, {});
    QApplication::sendEvent(pad.viewport(), &drop);
    EXPECT_EQ(pad.bytes(), "one\r\ntwo");
}

}  // namespace
}  // namespace velmora
