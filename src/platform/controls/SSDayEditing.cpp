#include <QApplication>
#include <QScrollBar>
#include <algorithm>
#include <cstdlib>

#include "platform/controls/DayEditor.h"
#include "platform/controls/SSDay.h"

// Editor, drags and removal of the day view. Signals are emitted last or followed by a check of
// what their listener left.
namespace velmora {

using namespace std::chrono;

void SSDay::watchFocus() {
    connect(qApp, &QApplication::focusChanged, this, [this](QWidget*, QWidget* now) {
        const bool elsewhere = now != nullptr && now != editor_ && now->window() == window();
        if (elsewhere && editor_ && editor_->isVisible())
            saveEditor();
    });
}

void SSDay::commitEditor() {
    finishDrag();
    range_.reset();
    saveEditor();
}

// --- Beginning ---

void SSDay::createTask(TimeSpan span, const QString& typed) {
    saveEditor();
    emit beforeEdit();
    tasks_.Add(writeTime(span.begin), writeTime(span.end), std::string());
    const int index = tasks_.Count() - 1;
    const DayTasks::Id id = tasks_.idOf(index);
    makeEditor();
    edit_ = Edit{id, true};
    select(index);
    emit OnTaskEditBegin(index, false);
    if (edit_ && edit_->id == id)
        openEditor(tasks_.indexOf(id), typed);
}

void SSDay::editTask(int index, const QString& typed) {
    saveEditor();
    drag_.reset();
    emit beforeEdit();
    if (index >= tasks_.Count())
        return;
    const DayTasks::Id id = tasks_.idOf(index);
    makeEditor();
    edit_ = Edit{id, false};
    select(index);
    emit OnTaskEditBegin(index, !tasks_.Item(index).TagVariant.empty());
    if (edit_ && edit_->id == id)
        openEditor(tasks_.indexOf(id), typed);
}

void SSDay::makeEditor() {
    if (editor_)
        return;
    editor_ = new DayEditor(codePage_, this);
    editor_->hide();
    connect(editor_, &DayEditor::saved, this, &SSDay::saveEditor);
    connect(editor_, &DayEditor::escaped, this, &SSDay::dropEditor);
    connect(editor_, &DayEditor::characterReplaced, this, &SSDay::characterReplaced);
    connect(editor_, &DayEditor::textChanged, this, &SSDay::placeEditor);
}

void SSDay::openEditor(int index, const QString& typed) {
    makeVisible(blocks().at(static_cast<std::size_t>(index)).shown.place.drawn);
    editor_->setFont(blockFont());
    editor_->setText(tasks_.Item(index).text);
    editor_->show();
    placeEditor();
    editor_->setFocus();
    if (!typed.isEmpty())
        editor_->insertPlainText(typed);
}

// Over its block, right of the accent's bar; as high as its text wants, within the view.
void SSDay::placeEditor() {
    if (!edit_ || tasks_.indexOf(edit_->id) < 0)
        return;
    const auto index = static_cast<std::size_t>(tasks_.indexOf(edit_->id));
    const DayGeometry geometry = geometryNow();
    QRect rect = geometry.blockRect(blocks().at(index).shown.place).adjusted(4, 0, 0, 0);
    if (editor_->width() != rect.width())
        editor_->resize(rect.width(), editor_->height());  // the text wraps before it is measured
    const int wanted = std::max(rect.height(), editor_->wantedHeight());
    const int grown = std::min(wanted, geometry.paper.height());
    rect.setTop(
        std::min(rect.top(), std::max(geometry.paper.top(), geometry.paper.bottom() + 1 - grown)));
    rect.setHeight(grown);
    editor_->setGeometry(rect);
    editor_->setVisible(rect.intersects(geometry.paper) || editor_->hasFocus());
}

void SSDay::closeEditor() {
    const bool hadFocus = editor_->hasFocus();
    if (hadFocus)
        setFocus();
    editor_->hide();
    update();
}

// --- Ending ---

void SSDay::saveEditor() {
    if (!edit_)
        return;
    const Edit edit = *edit_;
    const std::string text = editor_->text();
    if (edit.isNew && text.empty())
        return dropEditor();
    edit_.reset();
    const bool changed = editor_->isChanged();
    closeEditor();
    const int index = tasks_.indexOf(edit.id);
    if (changed)
        tasks_.setText(index, text);
    emit OnTaskEditEnd(index, false, true);
}

void SSDay::dropEditor() {
    if (!edit_)
        return;
    const Edit edit = *edit_;
    edit_.reset();
    closeEditor();
    if (!edit.isNew) {
        emit OnTaskEditEnd(tasks_.indexOf(edit.id), false, false);
        return;
    }
    emit OnTaskEditEnd(-1, false, false);
    if (const int index = tasks_.indexOf(edit.id); index >= 0)
        tasks_.Remove(index);
}

void SSDay::removeSelected() {
    const int index = SelectedIndex();
    if (index < 0 || readOnly_)
        return;
    const bool editsThis = edit_ && edit_->id == *selected_;
    if (editsThis && edit_->isNew)
        return dropEditor();
    editsThis ? dropEditor() : saveEditor();
    emit beforeEdit();
    if (index >= tasks_.Count())
        return;
    const DayTasks::Id id = tasks_.idOf(index);
    select(index);
    if (!tasks_.Item(index).TagVariant.empty())
        emit OnTaskRemove();
    if (const int left = tasks_.indexOf(id); left >= 0)
        tasks_.Remove(left);
    select(-1);
}

// --- Dragging ---

void SSDay::dragTo(QPoint point) {
    const int threshold = drag_->grip == Grip::Whole ? QApplication::startDragDistance() : 1;
    if (!drag_->begun && (point - drag_->from).manhattanLength() < threshold)
        return;
    scrollWhere(point);
    const int pixels = point.y() - drag_->from.y() + scroll_->value() - drag_->scrollFrom;
    const minutes by(pixels * kSlot.count() / slotHeight());
    const bool moved = std::abs(by.count()) >= 3;  // nearer to the first five minutes than to none
    if (!drag_->begun && (!moved || !beginDrag()))
        return;
    showDragged(moved ? dragged(drag_->original, drag_->grip, by, shown_) : drag_->original);
}

void SSDay::showDragged(TimeSpan to) {
    if (to == drag_->now)
        return;
    const auto touched = [this] {
        const DayGeometry geometry = geometryNow();
        update(reachOf(geometry, draggedPlace()));
        for (const minutes edge : {drag_->now.begin, drag_->now.end})
            update(DayPainter::gutterTimeRect(geometry, edge));
    };
    touched();
    drag_->now = to;
    touched();
}

// Tells the listener, which may load the day anew: the block then is the one of the same index.
bool SSDay::beginDrag() {
    Drag held = *drag_;
    const int index = tasks_.indexOf(held.id);
    drag_.reset();
    emit beforeEdit();
    if (index >= tasks_.Count())
        return false;
    held.id = tasks_.idOf(index);
    held.original = held.now = blocks().at(static_cast<std::size_t>(index)).span;
    held.begun = true;
    drag_ = held;
    select(index);
    emit OnTaskEditBegin(index, !tasks_.Item(index).TagVariant.empty());
    return drag_.has_value();
}

void SSDay::finishDrag() {
    if (!drag_)
        return;
    const Drag drag = *drag_;
    drag_.reset();
    if (!drag.begun)
        return;
    const int index = tasks_.indexOf(drag.id);
    const bool changed = drag.now != drag.original;
    if (changed && drag.grip != Grip::End)
        tasks_.setBeginTime(index, writeTime(drag.now.begin));
    if (changed && drag.grip != Grip::Begin)
        tasks_.setEndTime(index, writeTime(drag.now.end));
    update();
    emit OnTaskEditEnd(index, false, changed);
}

void SSDay::dropDrag() {
    const DayTasks::Id id = drag_->id;
    drag_.reset();
    update();
    emit OnTaskEditEnd(tasks_.indexOf(id), false, false);
}

TimeSpan SSDay::Range::span() const {
    return {std::min(first, last), std::max(first, last) + kSlot};
}

void SSDay::dragRangeTo(QPoint point) {
    const bool far = (point - range_->from).manhattanLength() >= QApplication::startDragDistance();
    if (!range_->begun && !far)
        return;
    scrollWhere(point);
    const DayGeometry geometry = geometryNow();
    const QRect before = geometry.spanRect(range_->span());
    range_->begun = true;
    range_->last = geometry.slotAt(point.y());
    update((before | geometry.spanRect(range_->span())).adjusted(-1, -1, 1, 1));
    updateSlot();
}

void SSDay::finishRange() {
    const Range range = *range_;
    range_.reset();
    if (!range.begun)
        return;
    update();
    createTask(range.span(), QString());
}

// A drag beyond the upper or lower edge scrolls.
void SSDay::scrollWhere(QPoint point) {
    const QRect paper = geometryNow().paper;
    if (point.y() < paper.top())
        scrollBy(-slotHeight() / 2);
    else if (point.y() > paper.bottom())
        scrollBy(slotHeight() / 2);
}

}  // namespace velmora
