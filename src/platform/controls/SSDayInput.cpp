#include <QApplication>
#include <QContextMenuEvent>
#include <QInputMethodEvent>
#include <QKeyEvent>
#include <QMouseEvent>

#include "platform/controls/DayEditor.h"
#include "platform/controls/DayKeys.h"
#include "platform/controls/SSDay.h"

// Keys and pointer of the day view.
namespace velmora {
using namespace std::chrono;

// --- Keys ---

void SSDay::keyPressEvent(QKeyEvent* event) {
    if (!DayKeys(*this).press(*event))
        DayCanvas::keyPressEvent(event);
}

void SSDay::keyReleaseEvent(QKeyEvent* event) {
    DayKeys(*this).release(*event);
    DayCanvas::keyReleaseEvent(event);
}

void SSDay::type(const QString& text) {
    if (SelectedIndex() >= 0)
        editSelected();
    else
        session().create({session().slot(), session().slot() + kSlot});
    if (isEditing() && !text.isEmpty())
        editor_->insertPlainText(text);
}

void SSDay::inputMethodEvent(QInputMethodEvent* event) {
    const QString typed = event->commitString();
    if (session().isReadOnly() || typed.isEmpty())
        return DayCanvas::inputMethodEvent(event);
    event->accept();
    type(typed);
}

// --- Pointer ---

void SSDay::mousePressEvent(QMouseEvent* event) {
    const QPoint point = event->position().toPoint();
    if (event->button() != Qt::LeftButton || session().isReadOnly() ||
        !geometry().paper.contains(point))
        return;
    commitEditor();
    const DayHit hit = hitAt(point);
    const minutes slot = geometry().slotAt(point.y());
    session().select(hit.index);
    session().setSlot(slot);
    announceCaret();
    held_ = Held{point, geometry().scroll};
    if (hit.index >= 0)
        session().hold(hit.index, hit.grip);
    else
        session().beginRange(slot);
}

void SSDay::mouseMoveEvent(QMouseEvent* event) {
    const QPoint point = event->position().toPoint();
    emit pointerMoved();
    if (!held_)
        return showPointer(point);
    // A bar is taken at once, a block or a slot after the way of a drag.
    const int threshold = session().holdsEdge() ? 1 : QApplication::startDragDistance();
    const bool begun = session().drag() != nullptr || session().range();
    if (!begun && (point - held_->from).manhattanLength() < threshold)
        return;
    scroll().scrollTowards(point, geometry());
    const DayGeometry places = geometry();
    const int pixels = point.y() - held_->from.y() + places.scroll - held_->scrollFrom;
    session().dragBy(minutes(pixels * kSlot.count() / places.slotHeight));
    session().rangeTo(places.slotAt(point.y()));
}

void SSDay::mouseReleaseEvent(QMouseEvent* event) {
    if (event->button() != Qt::LeftButton)
        return;
    if (held_) {
        held_.reset();
        session().finishDrag();
        session().finishRange();
    }
    showPointer(event->position().toPoint());
}

void SSDay::mouseDoubleClickEvent(QMouseEvent* event) {
    const QPoint point = event->position().toPoint();
    if (event->button() != Qt::LeftButton || session().isReadOnly() ||
        !geometry().paper.contains(point))
        return;
    held_.reset();
    const DayHit hit = hitAt(point);
    const minutes slot = geometry().slotAt(point.y());
    if (hit.index >= 0)
        session().edit(hit.index);
    else
        session().create({slot, slot + kSlot});
}

void SSDay::contextMenuEvent(QContextMenuEvent* event) {
    if (session().isReadOnly())
        return DayCanvas::contextMenuEvent(event);
    const bool byKey = event->reason() == QContextMenuEvent::Keyboard;
    const int index = byKey ? SelectedIndex() : hitAt(event->pos()).index;
    if (index < 0)
        return;
    commitEditor();
    setSelectedIndex(index);
    if (SelectedIndex() >= 0)
        emit menuWanted(byKey ? mapToGlobal(blockRect(SelectedIndex()).center())
                              : event->globalPos());
}

}  // namespace velmora
