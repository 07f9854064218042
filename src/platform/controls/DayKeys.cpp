#include "platform/controls/DayKeys.h"

#include <QKeyEvent>
#include <algorithm>

#include "platform/controls/SSDay.h"

namespace velmora {
namespace {

using namespace std::chrono;

// What a key that moves the slot leads to; nothing for other keys.
std::optional<minutes> slotAfter(const QKeyEvent& event, minutes slot, TimeSpan shown, int page) {
    switch (event.key()) {
        case Qt::Key_Up:
            return slot - kSlot;
        case Qt::Key_Down:
            return slot + kSlot;
        case Qt::Key_PageUp:
            return slot - page * kSlot;
        case Qt::Key_PageDown:
            return slot + page * kSlot;
        case Qt::Key_Home:
            return shown.begin;
        case Qt::Key_End:
            return shown.end;
        default:
            return std::nullopt;
    }
}

// What a key does to the scroll bar of a view that is only looked at.
QAbstractSlider::SliderAction scrollAction(int key) {
    switch (key) {
        case Qt::Key_Up:
            return QAbstractSlider::SliderSingleStepSub;
        case Qt::Key_Down:
            return QAbstractSlider::SliderSingleStepAdd;
        case Qt::Key_PageUp:
            return QAbstractSlider::SliderPageStepSub;
        case Qt::Key_PageDown:
            return QAbstractSlider::SliderPageStepAdd;
        case Qt::Key_Home:
            return QAbstractSlider::SliderToMinimum;
        case Qt::Key_End:
            return QAbstractSlider::SliderToMaximum;
        default:
            return QAbstractSlider::SliderNoAction;
    }
}

bool isArrow(const QKeyEvent& event) {
    return event.key() == Qt::Key_Up || event.key() == Qt::Key_Down;
}

bool isUserTyping(const QKeyEvent& event) {
    const bool command =
        event.modifiers().testAnyFlags(Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier);
    return !command && !event.text().isEmpty() && event.text().front().isPrint();
}

}  // namespace

bool DayKeys::press(const QKeyEvent& event) const {
    const DaySession& session = day_.session();
    if (session.drag() != nullptr) {
        if (event.key() == Qt::Key_Escape)
            day_.session().dropDrag();
        else if (!day_.held_)
            (void)nudge(event);
        return true;
    }
    if (session.isReadOnly())
        return scroll(event);
    return nudge(event) || move(event) || act(event);
}

bool DayKeys::scroll(const QKeyEvent& event) const {
    const auto action = scrollAction(event.key());
    day_.scroll().triggerAction(action);
    return action != QAbstractSlider::SliderNoAction;
}

// Alt with Up or Down moves the selected block by five minutes, Alt and Shift move its end. It is
// one drag for as long as the key is held, so it is stored once.
bool DayKeys::nudge(const QKeyEvent& event) const {
    const bool alt = event.modifiers().testFlag(Qt::AltModifier);
    if (!alt || !isArrow(event) || day_.SelectedIndex() < 0)
        return false;
    const bool shift = event.modifiers().testFlag(Qt::ShiftModifier);
    day_.session().nudge(shift ? Grip::End : Grip::Whole,
                         event.key() == Qt::Key_Up ? -kDragStep : kDragStep);
    if (const DaySession::Drag* drag = day_.session().drag())
        day_.scroll().bringIntoView(drag->now, day_.geometry());
    return true;
}

void DayKeys::release(const QKeyEvent& event) const {
    if (day_.held_ || day_.session().drag() == nullptr || event.isAutoRepeat())
        return;
    day_.session().finishDrag();
    day_.announceCaret();
}

bool DayKeys::move(const QKeyEvent& event) const {
    DaySession& session = day_.session();
    const DayGeometry places = day_.geometry();
    const int page = std::max(1, places.paper.height() / places.slotHeight - 1);
    if (isArrow(event) && event.modifiers().testFlag(Qt::ControlModifier)) {
        if (session.selectBeside(event.key() == Qt::Key_Up ? -1 : 1))
            day_.scroll().bringIntoView(session.blocks().at(session.selected()).span,
                                        day_.geometry());
    } else if (const auto to = slotAfter(event, session.slot(), places.shown, page)) {
        session.select(-1);
        session.setSlot(*to);
        day_.scroll().bringIntoView({session.slot(), session.slot() + kSlot}, day_.geometry());
    } else {
        return false;
    }
    day_.announceCaret();
    return true;
}

bool DayKeys::act(const QKeyEvent& event) const {
    const bool enter = event.key() == Qt::Key_Return || event.key() == Qt::Key_Enter;
    const bool selected = day_.SelectedIndex() >= 0;
    const bool escapes = selected || day_.session().rangeBegun();
    if (event.key() == Qt::Key_Delete && event.modifiers() == Qt::NoModifier) {
        day_.removeSelected();
    } else if (event.matches(QKeySequence::Undo)) {
        emit day_.undoWanted();
    } else if (event.matches(QKeySequence::Copy)) {
        day_.copySelected();
    } else if (event.key() == Qt::Key_Escape && escapes) {
        day_.session().dropRange();
        day_.setSelectedIndex(-1);
    } else if (event.key() == Qt::Key_F2 && selected) {
        day_.editSelected();
    } else if (enter || isUserTyping(event)) {
        day_.type(enter ? QString() : event.text());
    } else {
        return false;
    }
    return true;
}

}  // namespace velmora
