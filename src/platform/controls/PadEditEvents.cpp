#include <QAction>
#include <QApplication>
#include <QClipboard>
#include <QContextMenuEvent>
#include <QDropEvent>
#include <QInputMethodEvent>
#include <QKeyEvent>
#include <QMenu>
#include <QMimeData>
#include <QMouseEvent>
#include <QPainter>
#include <QScrollBar>
#include <QTimerEvent>
#include <algorithm>
#include <string_view>

#include "platform/controls/DragFormats.h"
#include "platform/controls/PadEdit.h"
#include "platform/controls/PadKeys.h"
#include "platform/controls/PadMouse.h"

namespace velmora {
namespace {

bool leaves(const QKeyEvent& event) {
    return (event.key() == Qt::Key_Tab || event.key() == Qt::Key_Backtab) &&
           event.modifiers().testFlag(Qt::ControlModifier);
}

// In which of our own formats the data hold a line; nothing for other data.
const char* formatOfLine(const QMimeData& data) {
    for (const char* format : {kEntryFormat, kTaskFormat})
        if (data.hasFormat(QLatin1String(format)))
            return format;
    return nullptr;
}

// Passes a mouse event on; false for events of other kinds.
bool sendToMouse(PadMouse& mouse, QEvent& event, QPoint offset) {
    const auto type = event.type();
    if (type != QEvent::MouseButtonPress && type != QEvent::MouseButtonDblClick &&
        type != QEvent::MouseMove && type != QEvent::MouseButtonRelease)
        return false;
    const auto& at = static_cast<QMouseEvent&>(event);
    const QPoint position = at.position().toPoint() - offset;
    if (type == QEvent::MouseButtonPress)
        mouse.press(at, position);
    else if (type == QEvent::MouseButtonDblClick)
        mouse.doublePress(at, position);
    else if (type == QEvent::MouseMove)
        mouse.move(at, position);
    else
        mouse.release(at, position);
    return true;
}

}  // namespace

bool PadEdit::event(QEvent* event) {
    if (event->type() == QEvent::ShortcutOverride &&
        isKeyOfTexts(static_cast<QKeyEvent&>(*event))) {
        event->accept();
        return true;
    }
    // A press in the margins means the line beside it.
    if (sendToMouse(*mouse_, *event, viewport()->pos())) {
        event->accept();
        return true;
    }
    const bool result = QAbstractScrollArea::event(event);
    if (event->type() == QEvent::FocusIn || event->type() == QEvent::FocusOut)
        blink();
    return result;
}

bool PadEdit::viewportEvent(QEvent* event) {
    if (sendToMouse(*mouse_, *event, {})) {
        event->accept();
        return true;
    }
    const bool ends = event->type() == QEvent::Drop;
    if (event->type() == QEvent::DragLeave)
        mouse_->dragLeft();
    if (!ends && event->type() != QEvent::DragEnter && event->type() != QEvent::DragMove)
        return QAbstractScrollArea::viewportEvent(event);
    auto& drop = static_cast<QDropEvent&>(*event);
    const char* format = formatOfLine(*drop.mimeData());
    if (format == nullptr && !drop.mimeData()->hasText()) {
        event->ignore();
        return true;
    }
    if (format != nullptr || !ends)
        drop.acceptProposedAction();
    if (format != nullptr && ends)
        tellDroppedLine(format, drop.mimeData()->data(QLatin1String(format)).toStdString());
    else if (ends)
        mouse_->drop(drop);
    else if (format == nullptr)
        mouse_->dragOver(drop.position().toPoint());
    return true;
}

void PadEdit::tellDroppedLine(std::string_view format, const std::string& line) {
    if (format == kTaskFormat)
        emit taskDropped(line);
    else
        emit entryDropped(line);
}

void PadEdit::keyPressEvent(QKeyEvent* event) {
    if (leaves(*event)) {
        const bool back = event->modifiers().testFlag(Qt::ShiftModifier);
        QAbstractScrollArea::focusNextPrevChild(!back);
        return;
    }
    if (typesText(*event))
        type(event->text());
    else if (!obeyKey(*this, *event))
        event->ignore();
}

// Tab types a tab.
bool PadEdit::focusNextPrevChild(bool) {
    return false;
}

void PadEdit::inputMethodEvent(QInputMethodEvent* event) {
    inputMethod_.obey(*event);
    viewport()->update();
    updateMicroFocus();
}

QVariant PadEdit::inputMethodQuery(Qt::InputMethodQuery query) const {
    if (query == Qt::ImEnabled)
        return isEnabled();
    if (query == Qt::ImCursorRectangle)
        return caretRect(caret().place()).translated(viewport()->pos());
    if (query == Qt::ImFont)
        return font();
    const std::optional<QVariant> answer = inputMethod_.answer(query);
    return answer ? *answer : QAbstractScrollArea::inputMethodQuery(query);
}

void PadEdit::paintEvent(QPaintEvent* event) {
    QPainter painter(viewport());
    const auto group = !isEnabled() ? QPalette::Disabled
                       : hasFocus() ? QPalette::Active
                                    : QPalette::Inactive;
    PadPage::Ink ink{palette().color(group, QPalette::Text),
                     palette().color(group, QPalette::HighlightedText),
                     palette().color(group, QPalette::Highlight), caret().selection(), nullptr};
    const int height = page().rowHeight();
    const auto top = static_cast<std::size_t>(verticalScrollBar()->value());
    const auto first = top + static_cast<std::size_t>(event->rect().top() / height);
    const auto last = top + static_cast<std::size_t>(event->rect().bottom() / height);
    const std::size_t caretRow = caret().row();
    for (std::size_t row = first; row <= last && row < page().rows().count(); ++row) {
        ink.preedit = row == caretRow ? inputMethod_.composed() : nullptr;
        page().draw(painter, row, QPointF(0, static_cast<int>(row - top) * height), ink,
                    caret().selection().caret);
    }
    if (caretShown_)
        painter.fillRect(caretRect(caret().place()).adjusted(0, 1, 0, -1), ink.text);
    if (const PadPage::Place* drop = mouse_->dropPlace())
        painter.fillRect(caretRect(*drop), ink.text);
}

void PadEdit::blink() {
    const int time = QApplication::cursorFlashTime();
    caretShown_ = hasFocus() && isEnabled();
    if (caretShown_ && time >= 2)
        blinking_.start(time / 2, this);
    else
        blinking_.stop();
    viewport()->update(caretRect(caret().place()));
}

void PadEdit::timerEvent(QTimerEvent* event) {
    if (event->timerId() == blinking_.timerId()) {
        caretShown_ = !caretShown_;
        viewport()->update(caretRect(caret().place()));
    } else if (!mouse_->timer(*event)) {
        QAbstractScrollArea::timerEvent(event);
    }
}

void PadEdit::contextMenuEvent(QContextMenuEvent* event) {
    QMenu menu(this);
    const auto add = [&](const char* text, QKeySequence::StandardKey key, bool enabled,
                         const auto& work) {
        QAction* action = menu.addAction(tr(text), this, work);
        action->setShortcut(QKeySequence(key));
        action->setEnabled(enabled);
    };
    const bool selected = selectionLength() > 0;
    const QMimeData* clip = QApplication::clipboard()->mimeData();
    add("&Undo", QKeySequence::Undo, page().text().canUndo(), [this] { undo(); });
    add("&Redo", QKeySequence::Redo, page().text().canRedo(), [this] { redo(); });
    menu.addSeparator();
    add("Cu&t", QKeySequence::Cut, selected, [this] { cut(); });
    add("&Copy", QKeySequence::Copy, selected, [this] { copy(); });
    add("&Paste", QKeySequence::Paste, clip && clip->hasText(), [this] { paste(); });
    add("&Delete", QKeySequence::Delete, selected, [this] { replaceSelection({}); });
    menu.addSeparator();
    add("Select &All", QKeySequence::SelectAll, !isEmpty(), [this] { selectAll(); });
    const bool byKey = event->reason() == QContextMenuEvent::Keyboard;
    menu.exec(byKey ? viewport()->mapToGlobal(caretRect(caret().place()).bottomLeft())
                    : event->globalPos());
}

}  // namespace velmora
