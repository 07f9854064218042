#include <QApplication>
#include <QClipboard>
#include <QContextMenuEvent>
#include <QInputMethodEvent>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QScrollBar>
#include <QWheelEvent>
#include <algorithm>
#include <numeric>

#include "platform/Text.h"
#include "platform/controls/CalendarAccessibility.h"
#include "platform/controls/DayEditor.h"
#include "platform/controls/SSDay.h"
#include "platform/qt/QtText.h"

// Keys and pointer of the day view.
namespace velmora {
namespace {

using namespace std::chrono;

constexpr int kBarZone = 7;

bool inBarZone(int y, int edge) {
    return y >= edge - kBarZone / 2 && y <= edge + kBarZone / 2;
}

}  // namespace

// --- Selection ---

// The lower edge of a block wins over the upper edge of the one below it, and both over the inside.
SSDay::Hit SSDay::hitAt(QPoint point) const {
    const DayGeometry geometry = geometryNow();
    Hit hit;
    if (!geometry.paper.contains(point))
        return hit;
    bool upper = false;
    for (int i = static_cast<int>(blocks().size()) - 1; i >= 0; --i) {
        const QRect rect = geometry.blockRect(blocks_[static_cast<std::size_t>(i)].shown.place);
        if (point.x() < rect.left() || point.x() > rect.right())
            continue;
        if (inBarZone(point.y(), rect.bottom()))
            return {i, Grip::End};
        if (!upper && inBarZone(point.y(), rect.top())) {
            hit = {i, Grip::Begin};
            upper = true;
        } else if (hit.index < 0 && rect.contains(point)) {
            hit = {i, Grip::Whole};
        }
    }
    return hit;
}

void SSDay::select(int index) {
    const bool valid = index >= 0 && index < tasks_.Count();
    updateBlock(SelectedIndex());
    updateSlot();
    selected_ = valid ? std::optional(tasks_.idOf(index)) : std::nullopt;
    updateBlock(index);
    if (valid)
        announceCaret();
}

// Selects the next or the former block in time; from a slot, the nearest one in that direction.
void SSDay::selectBeside(int direction) {
    std::vector<int> order(blocks().size());
    std::iota(order.begin(), order.end(), 0);
    std::stable_sort(order.begin(), order.end(), [this](int a, int b) {
        return blocks_[static_cast<std::size_t>(a)].span.begin <
               blocks_[static_cast<std::size_t>(b)].span.begin;
    });
    if (direction < 0)
        std::reverse(order.begin(), order.end());
    const int selected = SelectedIndex();
    const auto here = std::find(order.begin(), order.end(), selected);
    auto next = here == order.end() ? here : here + 1;
    if (selected < 0)
        next = std::find_if(order.begin(), order.end(), [&](int i) {
            const minutes begin = blocks_[static_cast<std::size_t>(i)].span.begin;
            return direction > 0 ? begin >= slot_ : begin < slot_ + kSlot;
        });
    if (next == order.end())
        return;
    const TimeSpan span = blocks_[static_cast<std::size_t>(*next)].span;
    select(*next);
    slot_ = span.begin - span.begin % kSlot;
    makeVisible(span);
}

void SSDay::moveSlot(minutes to) {
    select(-1);
    slot_ = std::clamp(to, shown_.begin, shown_.end - kSlot);
    updateSlot();
    makeVisible({slot_, slot_ + kSlot});
    announceCaret();
}

// Tells assistive tools of the selected block or, without one, of the slot.
void SSDay::announceCaret() {
    const int selected = SelectedIndex();
    if (hasFocus() && !readOnly_)
        announceFocusedPart(*this, selected >= 0 ? selected : tasks_.Count());
}

void SSDay::setHovered(int index) {
    if (index == hovered_)
        return;
    updateBlock(hovered_);
    hovered_ = index;
    updateBlock(hovered_);
}

void SSDay::showPointer(QPoint point) {
    if (readOnly_)
        return;
    const Hit hit = hitAt(point);
    setHovered(hit.index);
    const bool onBar = hit.index >= 0 && hit.grip != Grip::Whole;
    setCursor(onBar ? Qt::SizeVerCursor : Qt::ArrowCursor);
}

// --- Keys ---

void SSDay::keyPressEvent(QKeyEvent* event) {
    (void)blocks();
    if (drag_ && drag_->begun) {
        if (event->key() == Qt::Key_Escape)
            dropDrag();
        else if (drag_->byKey)
            (void)dragByKey(*event);
        return;
    }
    const bool done = readOnly_ ? scrollByKey(*event)
                                : dragByKey(*event) || moveByKey(*event) || actByKey(*event);
    if (!done)
        QWidget::keyPressEvent(event);
}

// Alt with Up or Down moves the selected block by five minutes, Alt and Shift move its end. It is
// one drag for as long as the key is held, so it is stored once.
bool SSDay::dragByKey(const QKeyEvent& event) {
    const int selected = SelectedIndex();
    const bool arrow = event.key() == Qt::Key_Up || event.key() == Qt::Key_Down;
    if (!arrow || !event.modifiers().testFlag(Qt::AltModifier) || selected < 0)
        return false;
    const Grip grip = event.modifiers().testFlag(Qt::ShiftModifier) ? Grip::End : Grip::Whole;
    if (drag_ && drag_->grip != grip)
        finishDrag();
    if (!drag_) {
        const TimeSpan span = blocks().at(static_cast<std::size_t>(selected)).span;
        drag_ = Drag{tasks_.idOf(selected), grip, {}, 0, span, span, false, true};
        if (!beginDrag())
            return true;
    }
    const minutes by = event.key() == Qt::Key_Up ? -kDragStep : kDragStep;
    showDragged(dragged(drag_->now, grip, by, shown_));
    makeVisible(drag_->now);
    return true;
}

void SSDay::keyReleaseEvent(QKeyEvent* event) {
    if (drag_ && drag_->byKey && !event->isAutoRepeat()) {
        finishDrag();
        announceCaret();
    }
    QWidget::keyReleaseEvent(event);
}

bool SSDay::scrollByKey(const QKeyEvent& event) {
    const int page = geometryNow().paper.height() - slotHeight();
    switch (event.key()) {
        case Qt::Key_Up:
            scrollBy(-slotHeight());
            return true;
        case Qt::Key_Down:
            scrollBy(slotHeight());
            return true;
        case Qt::Key_PageUp:
            scrollBy(-page);
            return true;
        case Qt::Key_PageDown:
            scrollBy(page);
            return true;
        case Qt::Key_Home:
            scroll_->setValue(0);
            return true;
        case Qt::Key_End:
            scroll_->setValue(scroll_->maximum());
            return true;
        default:
            return false;
    }
}

bool SSDay::moveByKey(const QKeyEvent& event) {
    const bool control = event.modifiers().testFlag(Qt::ControlModifier);
    const int slotsOfPage = std::max(1, geometryNow().paper.height() / slotHeight() - 1);
    switch (event.key()) {
        case Qt::Key_Up:
            control ? selectBeside(-1) : moveSlot(slot_ - kSlot);
            return true;
        case Qt::Key_Down:
            control ? selectBeside(1) : moveSlot(slot_ + kSlot);
            return true;
        case Qt::Key_PageUp:
            moveSlot(slot_ - slotsOfPage * kSlot);
            return true;
        case Qt::Key_PageDown:
            moveSlot(slot_ + slotsOfPage * kSlot);
            return true;
        case Qt::Key_Home:
            moveSlot(shown_.begin);
            return true;
        case Qt::Key_End:
            moveSlot(shown_.end);
            return true;
        default:
            return false;
    }
}

bool SSDay::isUserTyping(const QKeyEvent& event) const {
    const bool command =
        event.modifiers().testAnyFlags(Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier);
    return !command && !event.text().isEmpty() && event.text().front().isPrint();
}

bool SSDay::actByKey(const QKeyEvent& event) {
    const int selected = SelectedIndex();
    const bool enter = event.key() == Qt::Key_Return || event.key() == Qt::Key_Enter;
    if (event.key() == Qt::Key_Delete && event.modifiers() == Qt::NoModifier) {
        removeSelected();
    } else if (event.matches(QKeySequence::Undo)) {
        emit undoWanted();
    } else if (event.matches(QKeySequence::Copy)) {
        copySelected();
    } else if (event.key() == Qt::Key_Escape && (selected >= 0 || range_)) {
        range_.reset();
        select(-1);
        announceCaret();
        update();
    } else if ((event.key() == Qt::Key_F2 || enter) && selected >= 0) {
        editTask(selected);
    } else if (enter) {
        createTask({slot_, slot_ + kSlot}, QString());
    } else if (isUserTyping(event)) {
        if (selected >= 0)
            editTask(selected, event.text());
        else
            createTask({slot_, slot_ + kSlot}, event.text());
    } else {
        return false;
    }
    return true;
}

void SSDay::inputMethodEvent(QInputMethodEvent* event) {
    const QString typed = event->commitString();
    if (readOnly_ || typed.isEmpty())
        return QWidget::inputMethodEvent(event);
    event->accept();
    if (const int selected = SelectedIndex(); selected >= 0)
        editTask(selected, typed);
    else
        createTask({slot_, slot_ + kSlot}, typed);
}

// --- Pointer ---

void SSDay::mousePressEvent(QMouseEvent* event) {
    const QPoint point = event->position().toPoint();
    const DayGeometry geometry = geometryNow();
    if (event->button() != Qt::LeftButton || readOnly_ || !geometry.paper.contains(point))
        return;
    finishDrag();  // one by keys
    saveEditor();
    const Hit hit = hitAt(point);
    select(hit.index);
    slot_ = geometry.slotAt(point.y());
    updateSlot();
    if (hit.index >= 0) {
        const Block& block = blocks_[static_cast<std::size_t>(hit.index)];
        drag_ = Drag{block.id, hit.grip, point, scroll_->value(), block.span, block.span, false};
    } else {
        range_ = Range{point, slot_, slot_, false};
    }
}

void SSDay::mouseMoveEvent(QMouseEvent* event) {
    const QPoint point = event->position().toPoint();
    emit pointerMoved();
    if (drag_ && !drag_->byKey)
        dragTo(point);
    else if (range_)
        dragRangeTo(point);
    else
        showPointer(point);
}

void SSDay::mouseReleaseEvent(QMouseEvent* event) {
    if (event->button() != Qt::LeftButton)
        return;
    if (drag_ && !drag_->byKey)
        finishDrag();
    else if (range_)
        finishRange();
    showPointer(event->position().toPoint());
}

void SSDay::mouseDoubleClickEvent(QMouseEvent* event) {
    const QPoint point = event->position().toPoint();
    const DayGeometry geometry = geometryNow();
    if (event->button() != Qt::LeftButton || readOnly_ || !geometry.paper.contains(point))
        return;
    const Hit hit = hitAt(point);
    const minutes slot = geometry.slotAt(point.y());
    if (hit.index >= 0)
        editTask(hit.index);
    else
        createTask({slot, slot + kSlot}, QString());
}

void SSDay::wheelEvent(QWheelEvent* event) {
    QApplication::sendEvent(scroll_, event);
    event->accept();
}

void SSDay::enterEvent(QEnterEvent* event) {
    QWidget::enterEvent(event);
    placeScrollBar();
}

void SSDay::leaveEvent(QEvent* event) {
    QWidget::leaveEvent(event);
    setHovered(-1);
    if (readOnly_)
        scroll_->hide();
}

void SSDay::focusInEvent(QFocusEvent* event) {
    QWidget::focusInEvent(event);
    updateSlot();
    announceCaret();
}

void SSDay::focusOutEvent(QFocusEvent* event) {
    QWidget::focusOutEvent(event);
    updateSlot();
    range_.reset();
    if (drag_ && drag_->begun)
        drag_->byKey ? finishDrag() : dropDrag();
}

void SSDay::contextMenuEvent(QContextMenuEvent* event) {
    if (readOnly_)
        return QWidget::contextMenuEvent(event);
    const bool byKey = event->reason() == QContextMenuEvent::Keyboard;
    const int index = byKey ? SelectedIndex() : hitAt(event->pos()).index;
    if (index < 0)
        return;
    finishDrag();
    saveEditor();
    select(index);
    if (SelectedIndex() < 0)
        return;
    if (byKey)
        makeVisible(blocks().at(static_cast<std::size_t>(SelectedIndex())).span);
    emit menuWanted(byKey ? mapToGlobal(blockRect(SelectedIndex()).center()) : event->globalPos());
}

// --- What a menu of the block does ---

void SSDay::editSelected() {
    if (const int selected = SelectedIndex(); selected >= 0 && !readOnly_)
        editTask(selected);
}

void SSDay::copySelected() const {
    if (const int selected = SelectedIndex(); selected >= 0)
        QApplication::clipboard()->setText(toQt(withLf(tasks_.Item(selected).text), codePage_));
}

}  // namespace velmora
