#include "platform/controls/PadMouse.h"

#include <QApplication>
#include <QClipboard>
#include <QDrag>
#include <QDropEvent>
#include <QMimeData>
#include <QMouseEvent>
#include <QPointer>
#include <QScrollBar>
#include <QTimerEvent>
#include <algorithm>

#include "platform/controls/PadEdit.h"

namespace velmora {
namespace {

constexpr int kScrollPause = 50;  // milliseconds

bool near(QPoint a, QPoint b) {
    return (a - b).manhattanLength() < QApplication::startDragDistance();
}

}  // namespace

void PadMouse::press(const QMouseEvent& event, QPoint position) {
    const PadPage::Place place = edit_.placeAt(position);
    if (event.button() == Qt::MiddleButton && QApplication::clipboard()->supportsSelection()) {
        edit_.putCaret(place, false);
        if (const QMimeData* data = QApplication::clipboard()->mimeData(QClipboard::Selection))
            edit_.insert(*data);
        return;
    }
    if (event.button() != Qt::LeftButton)
        return;
    pressedAt_ = lastAt_ = position;
    if (sinceDouble_.isValid() && sinceDouble_.elapsed() < QApplication::doubleClickInterval()) {
        sinceDouble_.invalidate();
        selectBy(By::Lines, place.position);
        return;
    }
    const bool extend = event.modifiers().testFlag(Qt::ShiftModifier);
    const std::size_t start = edit_.selectionStart();
    if (!extend && edit_.selectionLength() > 0 && place.position >= start &&
        place.position < start + edit_.selectionLength()) {
        mayDrag_ = true;
        return;
    }
    by_ = By::Characters;
    selecting_ = true;
    edit_.putCaret(place, extend);
}

void PadMouse::doublePress(const QMouseEvent& event, QPoint position) {
    if (event.button() != Qt::LeftButton)
        return;
    mayDrag_ = false;
    pressedAt_ = lastAt_ = position;
    selectBy(By::Words, edit_.placeAt(position).position);
    sinceDouble_.start();
}

void PadMouse::selectBy(By by, std::size_t position) {
    const PadBuffer& text = edit_.page().text();
    by_ = by;
    selecting_ = true;
    unit_ = by == By::Words
                ? edit_.page().letters().wordAt(text, position)
                : PadBuffer::Selection{text.lineBegin(position),
                                       edit_.page().letters().next(text, text.lineEnd(position))};
    edit_.select(unit_);
}

void PadMouse::move(const QMouseEvent& event, QPoint position) {
    if (!event.buttons().testFlag(Qt::LeftButton))
        return;
    if (mayDrag_) {
        if (!near(position, pressedAt_))
            drag();
        return;
    }
    if (!selecting_ || position == lastAt_)
        return;
    lastAt_ = position;
    extendTo(edit_.placeAt(position));
    const bool outside = position.y() < 0 || position.y() >= edit_.viewport()->height();
    if (outside && !scrolling_.isActive())
        scrolling_.start(kScrollPause, &edit_);
    else if (!outside)
        scrolling_.stop();
}

void PadMouse::extendTo(const PadPage::Place& place) {
    if (by_ == By::Characters) {
        edit_.putCaret(place, true);
        return;
    }
    const PadBuffer& text = edit_.page().text();
    const std::size_t at = place.position;
    const PadBuffer::Selection unit =
        by_ == By::Words ? edit_.page().letters().wordAt(text, at)
                         : PadBuffer::Selection{text.lineBegin(at), edit_.page().letters().next(
                                                                        text, text.lineEnd(at))};
    if (at < unit_.first())
        edit_.select({unit_.first() + unit_.length(), unit.first()});
    else
        edit_.select({unit_.first(),
                      std::max(unit_.first() + unit_.length(), unit.first() + unit.length())});
}

void PadMouse::release(const QMouseEvent& event, QPoint position) {
    if (event.button() != Qt::LeftButton)
        return;
    if (mayDrag_)
        edit_.putCaret(edit_.placeAt(position), false);
    mayDrag_ = false;
    scrolling_.stop();
    if (selecting_ && edit_.selectionLength() > 0 && QApplication::clipboard()->supportsSelection())
        QApplication::clipboard()->setText(edit_.selectedText(), QClipboard::Selection);
    selecting_ = false;
}

bool PadMouse::timer(const QTimerEvent& event) {
    if (event.timerId() != scrolling_.timerId())
        return false;
    QScrollBar* bar = edit_.verticalScrollBar();
    bar->setValue(bar->value() + (lastAt_.y() < 0 ? -1 : 1));
    extendTo(edit_.placeAt(lastAt_));
    return true;
}

void PadMouse::drag() {
    mayDrag_ = false;
    auto* data = new QMimeData;
    data->setText(edit_.selectedText());
    auto* drag = new QDrag(edit_.viewport());
    drag->setMimeData(data);
    const PadBuffer::Selection dragged = edit_.caret().selection();
    const QPointer<PadEdit> guard(&edit_);
    dragging_ = true;
    droppedHere_ = false;
    const Qt::DropAction action = drag->exec(Qt::MoveAction | Qt::CopyAction, Qt::MoveAction);
    if (!guard)
        return;
    dragging_ = false;
    // What moved within the box was taken away by its drop.
    if (action == Qt::MoveAction && !droppedHere_ && edit_.caret().selection() == dragged)
        edit_.erase(dragged.caret);
}

void PadMouse::dragOver(QPoint position) {
    dropAt_ = edit_.placeAt(position);
    over_ = true;
    edit_.viewport()->update();
}

void PadMouse::dragLeft() {
    over_ = false;
    edit_.viewport()->update();
}

void PadMouse::drop(QDropEvent& event) {
    dragLeft();
    if (!event.mimeData()->hasText())
        return;
    PadPage::Place place = edit_.placeAt(event.position().toPoint());
    const std::size_t start = edit_.selectionStart();
    const std::size_t length = edit_.selectionLength();
    event.acceptProposedAction();
    if (dragging_) {
        droppedHere_ = true;
        if (place.position >= start && place.position <= start + length)
            return;
        if (event.dropAction() == Qt::MoveAction) {
            const std::size_t before = edit_.bytes().size();
            edit_.erase(start);
            if (place.position > start)
                place.position -= before - edit_.bytes().size();
        }
    }
    edit_.putCaret({edit_.page().text().snapped(place.position)}, false);
    edit_.insert(*event.mimeData());
    edit_.setFocus(Qt::MouseFocusReason);
}

}  // namespace velmora
