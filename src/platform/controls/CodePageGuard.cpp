#include "platform/controls/CodePageGuard.h"

#include <QComboBox>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QScopedValueRollback>
#include <QTextBlock>
#include <QTextDocument>
#include <algorithm>

#include "platform/qt/QtText.h"

namespace velmora {
namespace {

bool isLineBreak(QChar c) {
    return c == QChar::ParagraphSeparator || c == QChar::LineSeparator || c == QLatin1Char('\n') ||
           c == QLatin1Char('\r');
}

// Without the mark that ends every document.
int lengthOf(const QTextDocument& document) {
    return document.characterCount() - 1;
}

}  // namespace

CodePageGuard::CodePageGuard(QLineEdit& edit, const CodePage& codePage, int mostBytes)
    : QObject(&edit), bytes_(codePage) {
    if (mostBytes > 0) {
        edit.setMaxLength(mostBytes);
        connect(&edit, &QLineEdit::inputRejected, this, &CodePageGuard::cut);
    }
    connect(&edit, &QLineEdit::textChanged, this, [this, &edit] { keepLine(edit); });
    connect(&edit, &QLineEdit::textEdited, this, [this, &edit] { breaksToBlanks(edit); });
}

CodePageGuard::CodePageGuard(QComboBox& box, const CodePage& codePage)
    : CodePageGuard(*box.lineEdit(), codePage) {}

CodePageGuard::CodePageGuard(QPlainTextEdit& edit, const CodePage& codePage, int mostBytes)
    : QObject(&edit), bytes_(codePage) {
    connect(edit.document(), &QTextDocument::contentsChange, this,
            [this](int position, int, int added) {
                if (busy_)
                    return;
                changedAt_ = position;
                added_ = added;
            });
    connect(&edit, &QPlainTextEdit::textChanged, this,
            [this, &edit, mostBytes] { keepText(edit, mostBytes); });
}

void CodePageGuard::keepLine(QLineEdit& edit) {
    const QString text = edit.text();
    const QString kept = keepToCodePage(text, bytes_.codePage());
    if (kept == text)
        return;
    const int caret = static_cast<int>(
        keepToCodePage(text.left(edit.cursorPosition()), bytes_.codePage()).size());
    edit.setText(kept);
    edit.setCursorPosition(caret);
    emit replaced();
}

void CodePageGuard::breaksToBlanks(QLineEdit& edit) {
    QString text = edit.text();
    if (std::none_of(text.cbegin(), text.cend(), isLineBreak))
        return;
    const int caret = edit.cursorPosition();
    std::replace_if(text.begin(), text.end(), isLineBreak, QLatin1Char(' '));
    edit.setText(text);
    edit.setCursorPosition(caret);
}

void CodePageGuard::keepText(QPlainTextEdit& edit, int mostBytes) {
    if (busy_ || added_ == 0)
        return;
    const QScopedValueRollback<bool> guard(busy_, true);
    const bool anyReplaced = replaceIn(*edit.document());
    const bool anyCut = mostBytes > 0 && cutBefore(edit, mostBytes);
    added_ = 0;
    if (anyReplaced)
        emit replaced();
    if (anyCut)
        emit cut();
}

// Looks at what came in only. The correction joins the change itself, so that one Undo takes both
// back.
bool CodePageGuard::replaceIn(QTextDocument& document) {
    bool any = false;
    for (int at = std::min(changedAt_ + added_, lengthOf(document)) - 1; at >= changedAt_; --at) {
        const QChar c = document.characterAt(at);
        if (isLineBreak(c) || bytes_.codePage().fromUnicode(c.unicode()))
            continue;
        const bool pair =
            c.isLowSurrogate() && at > changedAt_ && document.characterAt(at - 1).isHighSurrogate();
        at -= pair ? 1 : 0;
        added_ -= pair ? 1 : 0;
        QTextCursor cursor(&document);
        cursor.joinPreviousEditBlock();
        cursor.setPosition(at);
        cursor.setPosition(at + (pair ? 2 : 1), QTextCursor::KeepAnchor);
        cursor.insertText(QStringLiteral("?"));
        cursor.endEditBlock();
        any = true;
    }
    return any;
}

// What the user put in ends at the caret; the document may report more than that as changed.
bool CodePageGuard::cutBefore(QPlainTextEdit& edit, int mostBytes) const {
    QTextDocument& document = *edit.document();
    const int caret = edit.textCursor().position();
    int end = std::min(changedAt_ + added_, lengthOf(document));
    if (caret > changedAt_ && caret < end)
        end = caret;
    const auto isTooLong = [&] {
        return bytes_.size(document) > static_cast<std::size_t>(mostBytes);
    };
    const int endBefore = end;
    while (end > changedAt_ && isTooLong()) {
        QTextCursor cursor(&document);
        cursor.joinPreviousEditBlock();
        cursor.setPosition(end--);
        cursor.deletePreviousChar();
        cursor.endEditBlock();
    }
    return end != endBefore;
}

}  // namespace velmora
