#include "platform/controls/PadKeys.h"

#include <QKeyEvent>
#include <QKeySequence>
#include <algorithm>
#include <array>

#include "platform/controls/PadEdit.h"

namespace velmora {
namespace {

using Move = PadCaret::Move;

struct MoveKey {
    QKeySequence::StandardKey moves;
    QKeySequence::StandardKey selects;
    Move move;
};

constexpr std::array<MoveKey, 14> kMoves{{
    {QKeySequence::MoveToNextChar, QKeySequence::SelectNextChar, Move::NextCharacter},
    {QKeySequence::MoveToPreviousChar, QKeySequence::SelectPreviousChar, Move::PreviousCharacter},
    {QKeySequence::MoveToNextWord, QKeySequence::SelectNextWord, Move::NextWord},
    {QKeySequence::MoveToPreviousWord, QKeySequence::SelectPreviousWord, Move::PreviousWord},
    {QKeySequence::MoveToNextLine, QKeySequence::SelectNextLine, Move::NextRow},
    {QKeySequence::MoveToPreviousLine, QKeySequence::SelectPreviousLine, Move::PreviousRow},
    {QKeySequence::MoveToNextPage, QKeySequence::SelectNextPage, Move::NextPage},
    {QKeySequence::MoveToPreviousPage, QKeySequence::SelectPreviousPage, Move::PreviousPage},
    {QKeySequence::MoveToStartOfLine, QKeySequence::SelectStartOfLine, Move::RowBegin},
    {QKeySequence::MoveToEndOfLine, QKeySequence::SelectEndOfLine, Move::RowEnd},
    {QKeySequence::MoveToStartOfBlock, QKeySequence::SelectStartOfBlock, Move::LineBegin},
    {QKeySequence::MoveToEndOfBlock, QKeySequence::SelectEndOfBlock, Move::LineEnd},
    {QKeySequence::MoveToStartOfDocument, QKeySequence::SelectStartOfDocument, Move::TextBegin},
    {QKeySequence::MoveToEndOfDocument, QKeySequence::SelectEndOfDocument, Move::TextEnd},
}};

constexpr std::array kOthers{
    QKeySequence::Undo,
    QKeySequence::Redo,
    QKeySequence::Cut,
    QKeySequence::Copy,
    QKeySequence::Paste,
    QKeySequence::SelectAll,
    QKeySequence::Delete,
    QKeySequence::DeleteStartOfWord,
    QKeySequence::DeleteEndOfWord,
    QKeySequence::DeleteEndOfLine,
    QKeySequence::DeleteCompleteLine,
};

bool isRedo(const QKeyEvent& key) {
    return key.matches(QKeySequence::Redo) ||
           (key.key() == Qt::Key_Y && key.modifiers() == Qt::ControlModifier);
}

bool isBackspace(const QKeyEvent& key) {
    return key.key() == Qt::Key_Backspace &&
           (key.modifiers() & ~(Qt::ShiftModifier | Qt::KeypadModifier)) == Qt::NoModifier;
}

bool isNewLine(const QKeyEvent& key) {
    const auto modifiers = key.modifiers() & ~(Qt::KeypadModifier | Qt::ShiftModifier);
    return (key.key() == Qt::Key_Return || key.key() == Qt::Key_Enter) &&
           modifiers == Qt::NoModifier;
}

bool obeyMove(PadEditor& edit, const QKeyEvent& key) {
    for (const MoveKey& each : kMoves) {
        const bool extend = key.matches(each.selects);
        if (extend || key.matches(each.moves)) {
            edit.moveCaret(each.move, extend);
            return true;
        }
    }
    return false;
}

bool obeyErasing(PadEditor& edit, const QKeyEvent& key) {
    const PadBuffer& text = edit.page().text();
    const PadLetters& letters = edit.page().letters();
    const std::size_t at = edit.caret().selection().caret;
    if (isBackspace(key)) {
        // A mark goes without the letter that carries it.
        const std::size_t one =
            at > 0 && letters.joins(text.bytes()[at - 1]) ? at - 1 : letters.previous(text, at);
        edit.erase(one);
    } else if (key.matches(QKeySequence::Delete)) {
        edit.erase(letters.next(text, at));
    } else if (key.matches(QKeySequence::DeleteStartOfWord)) {
        edit.erase(letters.previousWord(text, at));
    } else if (key.matches(QKeySequence::DeleteEndOfWord)) {
        edit.erase(letters.nextWord(text, at));
    } else if (key.matches(QKeySequence::DeleteEndOfLine)) {
        const std::size_t end = text.lineEnd(at);
        edit.erase(end == at ? letters.next(text, at) : end);
    } else if (key.matches(QKeySequence::DeleteCompleteLine)) {
        edit.select({text.lineBegin(at), letters.next(text, text.lineEnd(at))});
        edit.erase(edit.caret().selection().caret);
    } else {
        return false;
    }
    return true;
}

bool obeyCommand(PadEdit& edit, const QKeyEvent& key) {
    if (key.matches(QKeySequence::Undo))
        edit.undo();
    else if (isRedo(key))
        edit.redo();
    else if (key.matches(QKeySequence::Cut))
        edit.cut();
    else if (key.matches(QKeySequence::Copy))
        edit.copy();
    else if (key.matches(QKeySequence::Paste))
        edit.paste();
    else if (key.matches(QKeySequence::SelectAll))
        edit.selectAll();
    else if (isNewLine(key))
        edit.replaceSelection("\r\n");
    else
        return false;
    return true;
}

}  // namespace

bool obeyKey(PadEdit& edit, const QKeyEvent& key) {
    return obeyMove(edit, key) || obeyErasing(edit, key) || obeyCommand(edit, key);
}

bool isKeyOfTexts(const QKeyEvent& key) {
    if (typesText(key) || isBackspace(key) || isNewLine(key) || isRedo(key))
        return true;
    const auto matches = [&key](QKeySequence::StandardKey standard) {
        return key.matches(standard);
    };
    return std::any_of(kOthers.begin(), kOthers.end(), matches) ||
           std::any_of(kMoves.begin(), kMoves.end(), [&](const MoveKey& each) {
               return matches(each.moves) || matches(each.selects);
           });
}

bool typesText(const QKeyEvent& key) {
    const auto modifiers = key.modifiers() & ~(Qt::ShiftModifier | Qt::KeypadModifier);
    const QString text = key.text();
    if (text.isEmpty() || modifiers == Qt::ControlModifier || modifiers == Qt::AltModifier ||
        key.key() == Qt::Key_Backtab)
        return false;
    return std::all_of(text.begin(), text.end(), [](QChar c) {
        return c == u'\t' || c.isPrint() || c.isSurrogate() ||
               c.category() == QChar::Other_PrivateUse || c.category() == QChar::Other_Format;
    });
}

}  // namespace velmora
