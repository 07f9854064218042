#include "platform/controls/PadEdit.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QClipboard>
#include <QDragEnterEvent>
#include <QDropEvent>
#include <QInputMethodEvent>
#include <QLineEdit>
#include <QMimeData>
#include <QSignalSpy>
#include <QTest>
#include <QTextBlock>
#include <QTextLayout>
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
    EXPECT_EQ(pad.document()->blockCount(), 3);
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
    pad.reload("loaded");
    EXPECT_EQ(pad.bytes(), "loaded");
    pad.undo();
    EXPECT_EQ(pad.bytes(), "set\nmore\r");
    pad.undo();
    EXPECT_EQ(pad.bytes(), "set\n");
    pad.undo();
    EXPECT_EQ(pad.bytes(), "typed");
    pad.undo();
    EXPECT_EQ(pad.bytes(), "");
    EXPECT_FALSE(pad.document()->isUndoAvailable());
}

TEST_F(PadEditTest, TellsRealChangesAndOnlyThose) {
    QSignalSpy changes(&pad, &QPlainTextEdit::textChanged);
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
    pad.setWideMargins(true);
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
    EXPECT_EQ(pad.toPlainText(), QStringLiteral("?"));
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
    const QTextBlock first = pad.document()->firstBlock();
    const int height =
        pad.cursorRect(QTextCursor(first.next())).top() - pad.cursorRect(QTextCursor(first)).top();
    EXPECT_EQ(height, qRound(first.layout()->lineAt(0).height()) + 4);
    type("x");
    EXPECT_EQ(
        pad.cursorRect(QTextCursor(first.next())).top() - pad.cursorRect(QTextCursor(first)).top(),
        height)
        << "also after the line was laid out anew";
}

TEST_F(PadEditTest, WrappedLinesHaveTheSameRoom) {
    std::string words;
    for (int i = 0; i < 60; ++i)
        words += "word ";
    pad.setBytes(words);
    const QTextBlock block = pad.document()->firstBlock();
    pad.cursorRect();
    ASSERT_GT(block.layout()->lineCount(), 2);
    const QTextLine one = block.layout()->lineAt(0);
    const QTextLine two = block.layout()->lineAt(1);
    EXPECT_EQ(two.y() - one.y(), one.height() + 4);
}

TEST_F(PadEditTest, AClickBetweenTwoLinesLandsInTheLineOfThatRow) {
    pad.setBytes("abcdef\r\nabcdef\r\nabcdef");
    QTextCursor target(pad.document());
    target.setPosition(10);  // second line, before "d"
    const QRect there = pad.cursorRect(target);
    for (const int y : {there.top() - 2, there.top(), there.bottom(), there.bottom() + 2}) {
        QTest::mouseClick(pad.viewport(), Qt::LeftButton, {}, {there.left() + 1, y});
        EXPECT_EQ(pad.textCursor().position(), 10) << y - there.top();
    }
}

TEST_F(PadEditTest, AClickInTheMarginLandsInTheLineBesideIt) {
    pad.setWideMargins(true);
    pad.setBytes("abcdef\r\nabcdef");
    QTextCursor target(pad.document());
    target.setPosition(9);
    const int y = pad.viewport()->mapTo(&pad, pad.cursorRect(target).center()).y();
    QTest::mouseClick(&pad, Qt::LeftButton, {}, {6, y});
    EXPECT_EQ(pad.textCursor().position(), 7);
}

TEST_F(PadEditTest, MarginsAreWiderWhenItFillsTheWindow) {
    const int frame = pad.frameWidth();
    pad.setWideMargins(false);
    EXPECT_EQ(pad.viewport()->pos() - QPoint(frame, frame), QPoint(16, 14));
    pad.setWideMargins(true);
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
