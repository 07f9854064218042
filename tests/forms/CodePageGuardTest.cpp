#include "platform/controls/CodePageGuard.h"

#include <gtest/gtest.h>

#include <QClipboard>
#include <QComboBox>
#include <QGuiApplication>
#include <QInputMethodEvent>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QSignalSpy>

#include "forms/Widgets.h"

namespace velmora {
namespace {

void paste(QWidget& widget, const char* utf8) {
    QGuiApplication::clipboard()->setText(QString::fromUtf8(utf8));
    QTest::keyClick(&widget, Qt::Key_V, Qt::ControlModifier);
}

void commit(QWidget& widget, const char* utf8) {
    QInputMethodEvent event;
    event.setCommitString(QString::fromUtf8(utf8));
    QCoreApplication::sendEvent(&widget, &event);
}

TEST(CodePageGuard, ReplacesWhatALineCanNotStore) {
    QLineEdit line;
    auto* guard = new CodePageGuard(line, CodePage::western());
    QSignalSpy replaced(guard, &CodePageGuard::replaced);
    commit(line, "Zoë");
    EXPECT_EQ(QString::fromUtf8("Zoë"), line.text());
    EXPECT_EQ(0, replaced.count());
    commit(line, "Ω");
    EXPECT_EQ(QString::fromUtf8("Zoë?"), line.text());
    EXPECT_EQ(1, replaced.count());
    line.setCursorPosition(1);
    paste(line, "a😀ł€b");
    EXPECT_EQ(QString::fromUtf8("Za??€boë?"), line.text());
    EXPECT_EQ(6, line.cursorPosition());
    EXPECT_EQ(2, replaced.count());
}

TEST(CodePageGuard, TurnsPastedLineBreaksInALineIntoBlanks) {
    QLineEdit line;
    auto* guard = new CodePageGuard(line, CodePage::western());
    QSignalSpy replaced(guard, &CodePageGuard::replaced);
    paste(line, "one\ntwo");
    EXPECT_EQ(QStringLiteral("one two"), line.text());
    EXPECT_EQ(0, replaced.count());
}

TEST(CodePageGuard, ReplacesInAComboBox) {
    QComboBox box;
    box.setEditable(true);
    auto* guard = new CodePageGuard(box, CodePage::western());
    QSignalSpy replaced(guard, &CodePageGuard::replaced);
    commit(*box.lineEdit(), "Ω1");
    EXPECT_EQ(QStringLiteral("?1"), box.currentText());
    EXPECT_EQ(1, replaced.count());
}

TEST(CodePageGuard, KnowsTheCodePageItWasGiven) {
    const CodePage greek = CodePage::numbered(1253);
    QLineEdit line;
    new CodePageGuard(line, greek);
    commit(line, "Ωë");
    EXPECT_EQ(QString::fromUtf8("Ω?"), line.text());
}

TEST(CodePageGuard, ReplacesInATextAndLetsOneUndoTakeItBack) {
    QPlainTextEdit edit;
    auto* guard = new CodePageGuard(edit, CodePage::western());
    QSignalSpy replaced(guard, &CodePageGuard::replaced);
    QTest::keyClicks(&edit, QStringLiteral("ab"));
    edit.moveCursor(QTextCursor::Left);
    paste(edit, "Ω😀\nü");
    EXPECT_EQ(QString::fromUtf8("a??\nüb"), edit.toPlainText());
    EXPECT_EQ(1, replaced.count());
    edit.undo();
    EXPECT_EQ(QStringLiteral("ab"), edit.toPlainText());
    edit.redo();
    EXPECT_EQ(QString::fromUtf8("a??\nüb"), edit.toPlainText());
}

TEST(CodePageGuard, HoldsATextToItsMostBytesWithLineBreaksCountingTwo) {
    QPlainTextEdit edit;
    new CodePageGuard(edit, CodePage::western(), 10);
    QTest::keyClicks(&edit, QStringLiteral("12345678"));
    QTest::keyClick(&edit, Qt::Key_Return);
    EXPECT_EQ(QStringLiteral("12345678\n"), edit.toPlainText());
    QTest::keyClicks(&edit, QStringLiteral("9"));
    EXPECT_EQ(QStringLiteral("12345678\n"), edit.toPlainText());
    edit.setPlainText(QStringLiteral("123456789"));
    edit.moveCursor(QTextCursor::End);
    QTest::keyClick(&edit, Qt::Key_Return);
    EXPECT_EQ(QStringLiteral("123456789"), edit.toPlainText());
    edit.moveCursor(QTextCursor::Start);
    paste(edit, "abc");
    EXPECT_EQ(QStringLiteral("a123456789"), edit.toPlainText());
}

TEST(CodePageGuard, HoldsALineToItsMostBytesAndTellsWhatItCut) {
    QLineEdit line;
    auto* guard = new CodePageGuard(line, CodePage::western(), 5);
    QSignalSpy cut(guard, &CodePageGuard::cut);
    QTest::keyClicks(&line, QStringLiteral("1234"));
    line.setCursorPosition(2);
    EXPECT_EQ(0, cut.count());
    paste(line, "ab");
    EXPECT_EQ(QStringLiteral("12a34"), line.text());
    EXPECT_EQ(1, cut.count());
    QTest::keyClicks(&line, QStringLiteral("x"));
    EXPECT_EQ(QStringLiteral("12a34"), line.text());
    EXPECT_EQ(2, cut.count());
}

TEST(CodePageGuard, TellsThatATextWasCut) {
    QPlainTextEdit edit;
    auto* guard = new CodePageGuard(edit, CodePage::western(), 4);
    QSignalSpy cut(guard, &CodePageGuard::cut);
    paste(edit, "abcd");
    EXPECT_EQ(0, cut.count());
    paste(edit, "e");
    EXPECT_EQ(QStringLiteral("abcd"), edit.toPlainText());
    EXPECT_EQ(1, cut.count());
}

}  // namespace
}  // namespace velmora
