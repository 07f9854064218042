#include "platform/controls/DayEditor.h"

#include <QKeyEvent>
#include <QTextBlock>
#include <QTextCursor>
#include <QTextDocument>

#include "platform/Text.h"
#include "platform/qt/QtText.h"

namespace velmora {
namespace {

constexpr int kFrame = 2;
constexpr int kDocumentMargin = 2;
constexpr int kLeftMargin = 4;

bool isLineEnd(QChar character) {
    return character == QChar::ParagraphSeparator || character == QChar::LineSeparator;
}

}  // namespace

DayEditor::DayEditor(const CodePage& codePage, QWidget* parent)
    : QPlainTextEdit(parent), codePage_(codePage) {
    setTabChangesFocus(true);
    setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    document()->setDocumentMargin(kDocumentMargin);
    setViewportMargins(kLeftMargin, 0, 0, 0);
    setAccessibleName(QStringLiteral("Task text"));
    connect(this, &QPlainTextEdit::textChanged, this, &DayEditor::keepToPage);
}

void DayEditor::setText(const std::string& text) {
    setPlainText(toQt(withLf(text), codePage_));
    document()->setModified(false);
    moveCursor(QTextCursor::End);
}

std::string DayEditor::text() const {
    // The raw text, since the plain one has a blank for each non-breaking blank.
    std::string result;
    for (const QChar character : document()->toRawText())
        result +=
            isLineEnd(character) ? std::string("\r\n") : fromQt(QString(character), codePage_);
    return result;
}

int DayEditor::wantedHeight() const {
    int lines = 0;
    for (QTextBlock block = document()->begin(); block.isValid(); block = block.next())
        lines += std::max(1, block.lineCount());
    return lines * fontMetrics().lineSpacing() + 2 * (kFrame + kDocumentMargin);
}

void DayEditor::keepToPage() {
    if (keeping_)
        return;
    keeping_ = true;
    const QString raw = document()->toRawText();
    bool replaced = false;
    for (qsizetype i = raw.size() - 1; i >= 0; --i) {
        if (isLineEnd(raw[i]) || codePage_.fromUnicode(raw[i].unicode()))
            continue;
        const bool pair = raw[i].isLowSurrogate() && i > 0 && raw[i - 1].isHighSurrogate();
        QTextCursor cursor(document());
        cursor.setPosition(static_cast<int>(i) + 1);
        cursor.setPosition(static_cast<int>(pair ? --i : i), QTextCursor::KeepAnchor);
        cursor.insertText(QStringLiteral("?"));
        replaced = true;
    }
    keeping_ = false;
    if (replaced)
        emit characterReplaced();
}

void DayEditor::keyPressEvent(QKeyEvent* event) {
    const bool enter = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
    if (enter && event->modifiers().testAnyFlags(Qt::ShiftModifier | Qt::ControlModifier))
        textCursor().insertBlock();
    else if (enter)
        emit saved();
    else if (event->key() == Qt::Key_Escape)
        emit escaped();
    else
        QPlainTextEdit::keyPressEvent(event);
}

}  // namespace velmora
