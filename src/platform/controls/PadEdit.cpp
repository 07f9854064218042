#include "platform/controls/PadEdit.h"

#include <QDropEvent>
#include <QInputMethodEvent>
#include <QKeyEvent>
#include <QMimeData>
#include <QMouseEvent>
#include <QPainter>
#include <QTextBlock>
#include <QTextLayout>

#include "platform/controls/DragFormats.h"
#include "platform/controls/PadLayout.h"
#include "platform/qt/QtText.h"

namespace velmora {
namespace {

constexpr QMargins kMargins(16, 14, 16, 14);
constexpr QMargins kWideMargins(56, 28, 56, 28);

bool isMouse(const QEvent& event) {
    return event.type() == QEvent::MouseButtonPress || event.type() == QEvent::MouseMove ||
           event.type() == QEvent::MouseButtonDblClick ||
           event.type() == QEvent::MouseButtonRelease;
}

bool isNewLine(const QKeyEvent& event) {
    const auto modifiers = event.modifiers() & ~(Qt::KeypadModifier | Qt::ShiftModifier);
    return (event.key() == Qt::Key_Return || event.key() == Qt::Key_Enter) &&
           modifiers == Qt::NoModifier;
}

bool leaves(const QKeyEvent& event) {
    return (event.key() == Qt::Key_Tab || event.key() == Qt::Key_Backtab) &&
           event.modifiers().testFlag(Qt::ControlModifier);
}

QString withLineFeeds(QString text) {
    text.replace(QStringLiteral("\r\n"), QStringLiteral("\n"));
    for (const QChar end :
         {QChar(u'\r'), QChar(QChar::ParagraphSeparator), QChar(QChar::LineSeparator)})
        text.replace(end, u'\n');
    return text;
}

}  // namespace

PadEdit::PadEdit(const CodePage& codePage, QWidget* parent)
    : QPlainTextEdit(parent), bytes_(codePage) {
    auto* document = new QTextDocument(this);
    document->setUndoRedoEnabled(false);
    document->setDocumentLayout(new PadLayout(document));
    document->setDefaultFont(font());
    document->setDocumentMargin(0);
    document->setUndoRedoEnabled(true);
    setDocument(document);
    setViewportMargins(kMargins);
    setTabChangesFocus(false);
    setProperty("role", "paper");
}

std::string PadEdit::bytes() const {
    return bytes_.all(*document());
}

bool PadEdit::isEmpty() const {
    return document()->isEmpty();
}

void PadEdit::setBytes(std::string_view bytes) {
    if (this->bytes() != bytes)
        replaceAll(bytes);
}

void PadEdit::reload(std::string_view bytes) {
    if (!isEmpty() || !bytes.empty())
        replaceAll(bytes);
}

void PadEdit::replaceAll(std::string_view bytes) {
    QTextCursor cursor(document());
    cursor.select(QTextCursor::Document);
    bytes_.insert(cursor, bytes);
    moveCursor(QTextCursor::Start);
}

void PadEdit::append(std::string_view bytes) {
    if (bytes.empty())
        return;
    const std::string before = bytes.front() == '\n' ? this->bytes() : std::string();
    if (!before.empty() && before.back() == '\r') {
        // The two become one line end.
        setBytes(before + std::string(bytes));
        return;
    }
    QTextCursor own = textCursor();
    const int anchor = own.anchor();
    const int position = own.position();
    QTextCursor cursor(document());
    cursor.movePosition(QTextCursor::End);
    bytes_.insert(cursor, bytes);
    own.setPosition(anchor);
    own.setPosition(position, QTextCursor::KeepAnchor);
    setTextCursor(own);
}

std::size_t PadEdit::selectionStart() const {
    return bytes_.toBytes(*document(), textCursor().selectionStart());
}

std::size_t PadEdit::selectionLength() const {
    return bytes_.toBytes(*document(), textCursor().selectionEnd()) - selectionStart();
}

void PadEdit::select(std::size_t start, std::size_t length) {
    QTextCursor cursor = textCursor();
    const int first = bytes_.toDocument(*document(), start);
    cursor.setPosition(first);
    cursor.setPosition(length == 0 ? first : bytes_.toDocument(*document(), start + length),
                       QTextCursor::KeepAnchor);
    setTextCursor(cursor);
    ensureCursorVisible();
}

std::string PadEdit::selectedBytes() const {
    const std::size_t start = selectionStart();
    return bytes().substr(start, selectionLength());
}

void PadEdit::replaceSelection(std::string_view bytes) {
    QTextCursor cursor = textCursor();
    if (bytes.empty() && !cursor.hasSelection())
        return;
    bytes_.insert(cursor, bytes);
    setTextCursor(cursor);
    ensureCursorVisible();
}

void PadEdit::setInk(const std::optional<QColor>& colour) {
    ink_ = colour;
    // A style sheet of the application wins over the palette, so the colour goes the same way.
    // Setting one takes the font away that the box was given.
    const QFont given = font();
    setStyleSheet(colour ? QStringLiteral("QPlainTextEdit { color: %1 }").arg(colour->name())
                         : QString());
    setFont(given);
}

void PadEdit::setWideMargins(bool wide) {
    setViewportMargins(wide ? kWideMargins : kMargins);
}

QString PadEdit::kept(const QString& text) {
    QString result = keepToCodePage(text, bytes_.codePage());
    if (result != text)
        emit characterReplaced();
    return result;
}

void PadEdit::insertNewLine() {
    QTextCursor cursor = textCursor();
    cursor.beginEditBlock();
    cursor.removeSelectedText();
    // Plain formats: the new line end is CR LF, whatever the line before has.
    cursor.insertBlock(QTextBlockFormat(), QTextCharFormat());
    cursor.endEditBlock();
    setTextCursor(cursor);
    ensureCursorVisible();
}

void PadEdit::keyPressEvent(QKeyEvent* event) {
    if (leaves(*event)) {
        const bool back = event->modifiers().testFlag(Qt::ShiftModifier);
        // The base class itself keeps the focus, as Tab types a tab there.
        // NOLINTNEXTLINE(bugprone-parent-virtual-call)
        QAbstractScrollArea::focusNextPrevChild(!back);
        return;
    }
    if (isNewLine(*event)) {
        insertNewLine();
        return;
    }
    QKeyEvent key(event->type(), event->key(), event->modifiers(), kept(event->text()),
                  event->isAutoRepeat(), static_cast<quint16>(event->count()));
    QPlainTextEdit::keyPressEvent(&key);
    event->setAccepted(key.isAccepted());
}

void PadEdit::inputMethodEvent(QInputMethodEvent* event) {
    QInputMethodEvent input(event->preeditString(), event->attributes());
    input.setCommitString(kept(event->commitString()), event->replacementStart(),
                          event->replacementLength());
    QPlainTextEdit::inputMethodEvent(&input);
    event->setAccepted(input.isAccepted());
}

// The room between the lines belongs to the line whose row it is.
QPointF PadEdit::onLine(QPointF position) const {
    for (QTextBlock block = firstVisibleBlock(); block.isValid(); block = block.next()) {
        const QRectF area = blockBoundingGeometry(block).translated(contentOffset());
        if (area.top() > position.y())
            break;
        for (int i = 0; i < block.layout()->lineCount(); ++i) {
            const QTextLine line = block.layout()->lineAt(i);
            const QRectF row = PadLayout::rowOf(line).translated(0, area.top());
            if (position.y() < row.top() || position.y() >= row.bottom())
                continue;
            const qreal top = area.top() + line.y();
            return {position.x(), qBound(top, position.y(), top + line.height() - 1)};
        }
    }
    return position;
}

bool PadEdit::sendToText(QMouseEvent& event, QPointF position) {
    QMouseEvent moved(event.type(), onLine(position), event.scenePosition(), event.globalPosition(),
                      event.button(), event.buttons(), event.modifiers(), event.pointingDevice());
    moved.setTimestamp(event.timestamp());
    const bool result = QPlainTextEdit::viewportEvent(&moved);
    event.setAccepted(moved.isAccepted());
    return result;
}

bool PadEdit::event(QEvent* event) {
    // A press in the margins means the line beside it.
    if (isMouse(*event)) {
        auto& mouse = static_cast<QMouseEvent&>(*event);
        return sendToText(mouse, viewport()->mapFrom(this, mouse.position().toPoint()));
    }
    return QPlainTextEdit::event(event);
}

bool PadEdit::viewportEvent(QEvent* event) {
    if (!isMouse(*event))
        return QPlainTextEdit::viewportEvent(event);
    auto& mouse = static_cast<QMouseEvent&>(*event);
    return sendToText(mouse, mouse.position());
}

// The toolkit fills only the lines of a selection; the room between them is filled before.
void PadEdit::fillSelectedRows(const QTextBlock& block, QPainter& painter,
                               const QBrush& fill) const {
    const QRectF area = blockBoundingGeometry(block).translated(contentOffset());
    const int first = textCursor().selectionStart() - block.position();
    const int last = textCursor().selectionEnd() - block.position();
    for (int i = 0; i < block.layout()->lineCount(); ++i) {
        const QTextLine line = block.layout()->lineAt(i);
        const int end = line.textStart() + line.textLength();
        if (last <= line.textStart() || first > end)
            continue;
        const QRectF row = PadLayout::rowOf(line).translated(area.topLeft());
        const qreal left = first > line.textStart() ? line.cursorToX(first) : 0;
        const qreal right = last <= end ? line.cursorToX(last) : viewport()->width();
        painter.fillRect(QRectF(left, row.top(), right - left, row.height()), fill);
    }
}

void PadEdit::paintEvent(QPaintEvent* event) {
    if (textCursor().hasSelection()) {
        QPainter painter(viewport());
        const auto group = hasFocus() ? QPalette::Active : QPalette::Inactive;
        const QBrush fill = palette().brush(group, QPalette::Highlight);
        for (QTextBlock block = firstVisibleBlock(); block.isValid(); block = block.next()) {
            if (blockBoundingGeometry(block).translated(contentOffset()).top() >
                viewport()->height())
                break;
            fillSelectedRows(block, painter, fill);
        }
    }
    QPlainTextEdit::paintEvent(event);
}

void PadEdit::dragEnterEvent(QDragEnterEvent* event) {
    if (event->mimeData()->hasFormat(QString::fromLatin1(kEntryFormat)))
        event->acceptProposedAction();
    else
        QPlainTextEdit::dragEnterEvent(event);
}

void PadEdit::dragMoveEvent(QDragMoveEvent* event) {
    if (event->mimeData()->hasFormat(QString::fromLatin1(kEntryFormat)))
        event->acceptProposedAction();
    else
        QPlainTextEdit::dragMoveEvent(event);
}

void PadEdit::dropEvent(QDropEvent* event) {
    if (!event->mimeData()->hasFormat(QString::fromLatin1(kEntryFormat))) {
        QPlainTextEdit::dropEvent(event);
        return;
    }
    event->acceptProposedAction();
    emit entryDropped(event->mimeData()->data(QString::fromLatin1(kEntryFormat)).toStdString());
}

bool PadEdit::canInsertFromMimeData(const QMimeData* source) const {
    return source->hasText();
}

void PadEdit::insertFromMimeData(const QMimeData* source) {
    QTextCursor cursor = textCursor();
    cursor.insertText(kept(withLineFeeds(source->text())), QTextCharFormat());
    setTextCursor(cursor);
    ensureCursorVisible();
}

QMimeData* PadEdit::createMimeDataFromSelection() const {
    auto* selected = new QMimeData;
    selected->setText(withLineFeeds(textCursor().selectedText()));
    return selected;
}

}  // namespace velmora
