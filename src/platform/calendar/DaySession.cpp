#include "platform/calendar/DaySession.h"

#include <algorithm>
#include <cstdlib>

namespace velmora {

using namespace std::chrono;

DaySession::DaySession(DaySessionView& view) : view_(view), blocks_([this] { tasksChanged(); }) {}

// Whatever belonged to a block that is gone ends without a word.
void DaySession::tasksChanged() {
    if (selected_ && tasks().indexOf(*selected_) < 0)
        selected_.reset();
    if (drag_ && tasks().indexOf(drag_->id) < 0)
        drag_.reset();
    if (edit_ && tasks().indexOf(edit_->id) < 0) {
        edit_.reset();
        view_.closeEditor();
    }
    view_.dayChanged();
}

void DaySession::setReadOnly(bool readOnly) {
    commit();
    select(-1);
    readOnly_ = readOnly;
    view_.dayChanged();
}

// --- Selection and slot ---

int DaySession::selected() const {
    return selected_ ? tasks().indexOf(*selected_) : -1;
}

void DaySession::select(int index) {
    const bool valid = !readOnly_ && index >= 0 && index < tasks().Count();
    view_.blockChanged(selected());
    view_.slotChanged(slot_);
    selected_ = valid ? std::optional(tasks().idOf(index)) : std::nullopt;
    view_.blockChanged(selected());
}

bool DaySession::selectBeside(int direction) {
    std::vector<int> order = blocks_.inTime();
    if (direction < 0)
        std::reverse(order.begin(), order.end());
    const auto here = std::find(order.begin(), order.end(), selected());
    auto next = here == order.end() ? here : here + 1;
    if (selected() < 0)
        next = std::find_if(order.begin(), order.end(), [&](int i) {
            const minutes begin = blocks_.at(i).span.begin;
            return direction > 0 ? begin >= slot_ : begin < slot_ + kSlot;
        });
    if (next == order.end())
        return false;
    const minutes begin = blocks_.at(*next).span.begin;
    select(*next);
    slot_ = begin - begin % kSlot;
    return true;
}

void DaySession::setSlot(minutes slot) {
    const TimeSpan shown = blocks_.shown();
    view_.slotChanged(slot_);
    slot_ = std::clamp(slot, shown.begin, shown.end - kSlot);
    view_.slotChanged(slot_);
}

// --- Edits. Words to the listener come last, or are followed by a look at what it left. ---

bool DaySession::isUnstored(int index) const {
    return !readOnly_ && tasks().Item(index).TagVariant.empty() && index != edited();
}

int DaySession::edited() const {
    return edit_ ? tasks().indexOf(edit_->id) : -1;
}

void DaySession::create(TimeSpan span) {
    if (readOnly_)
        return;
    commit();
    view_.editComing();
    // The block comes with its edit, so that nobody sees it without.
    tasks().Add(writeTime(span.begin), writeTime(span.end), std::string());
    beginEdit(tasks().Count() - 1, true);
}

void DaySession::edit(int index) {
    if (readOnly_ || index < 0)
        return;
    commit();
    view_.editComing();
    if (index < tasks().Count())
        beginEdit(index, false);
}

void DaySession::beginEdit(int index, bool isNew) {
    const DayTasks::Id id = tasks().idOf(index);
    edit_ = Edit{id, isNew};
    select(index);
    view_.editBegun(index, !tasks().Item(index).TagVariant.empty());
    if (!edit_ || edit_->id != id)
        return;
    edit_->open = true;
    view_.openEditor(tasks().indexOf(id));
}

void DaySession::saveEdit() {
    if (!edit_)
        return;
    const Edit edit = *edit_;
    const std::optional<std::string> text = edit.open ? view_.editedText() : std::nullopt;
    if (edit.isNew && text.value_or(std::string()).empty())
        return dropEdit();
    edit_.reset();
    view_.closeEditor();
    const int index = tasks().indexOf(edit.id);
    if (text)
        tasks().setText(index, *text);
    view_.editEnded(index, true);
}

void DaySession::dropEdit() {
    if (!edit_)
        return;
    const Edit edit = *edit_;
    edit_.reset();
    view_.closeEditor();
    if (!edit.isNew)
        return view_.editEnded(tasks().indexOf(edit.id), false);
    view_.editEnded(-1, false);
    if (const int index = tasks().indexOf(edit.id); index >= 0)
        tasks().Remove(index);
}

void DaySession::removeSelected() {
    const int index = selected();
    if (index < 0)
        return;
    finishDrag();
    const bool editsThis = edit_ && edit_->id == *selected_;
    if (editsThis && edit_->isNew)
        return dropEdit();
    editsThis ? dropEdit() : saveEdit();
    view_.editComing();
    if (index >= tasks().Count())
        return;
    const DayTasks::Id id = tasks().idOf(index);
    select(index);
    if (!tasks().Item(index).TagVariant.empty())
        view_.removalComing();
    if (const int left = tasks().indexOf(id); left >= 0)
        tasks().Remove(left);
    select(-1);
}

void DaySession::commit() {
    finishDrag();
    dropRange();
    saveEdit();
}

// --- Drags ---

void DaySession::hold(int index, Grip grip) {
    if (readOnly_)
        return;
    const TimeSpan span = blocks_.at(index).span;
    drag_ = Drag{tasks().idOf(index), grip, span, span};
}

void DaySession::dragBy(minutes by) {
    if (!drag_)
        return;
    const bool moved = std::abs(by.count()) * 2 > kDragStep.count();
    if (!drag_->begun && (!moved || !beginDrag()))
        return;
    moveDrag(moved ? dragged(drag_->original, drag_->grip, by, blocks_.shown()) : drag_->original);
}

void DaySession::nudge(Grip grip, minutes by) {
    if (selected() < 0)
        return;
    if (drag_ && (drag_->grip != grip || !drag_->begun))
        finishDrag();
    if (!drag_) {
        hold(selected(), grip);
        if (!beginDrag())
            return;
    }
    moveDrag(dragged(drag_->now, grip, by, blocks_.shown()));
}

// The listener may load the day anew: the block then is the one of the same index.
bool DaySession::beginDrag() {
    Drag held = *drag_;
    const int index = tasks().indexOf(held.id);
    drag_.reset();
    view_.editComing();
    if (index >= tasks().Count())
        return false;
    held.id = tasks().idOf(index);
    held.original = held.now = blocks_.at(index).span;
    held.begun = true;
    drag_ = held;
    select(index);
    view_.editBegun(index, !tasks().Item(index).TagVariant.empty());
    return drag_.has_value();
}

void DaySession::moveDrag(TimeSpan to) {
    if (to == drag_->now)
        return;
    view_.dragChanged(drag_->now);
    drag_->now = to;
    view_.dragChanged(to);
}

void DaySession::finishDrag() {
    if (!drag_)
        return;
    const Drag drag = *drag_;
    drag_.reset();
    if (!drag.begun)
        return;
    const int index = tasks().indexOf(drag.id);
    const bool changed = drag.now != drag.original;
    if (changed && drag.grip != Grip::End)
        tasks().setBeginTime(index, writeTime(drag.now.begin));
    if (changed && drag.grip != Grip::Begin)
        tasks().setEndTime(index, writeTime(drag.now.end));
    view_.dayChanged();
    view_.editEnded(index, changed);
}

void DaySession::dropDrag() {
    if (!drag_)
        return;
    const Drag drag = *drag_;
    drag_.reset();
    view_.dayChanged();
    if (drag.begun)
        view_.editEnded(tasks().indexOf(drag.id), false);
}

// --- Ranges ---

void DaySession::beginRange(minutes slot) {
    if (!readOnly_)
        range_ = Range{slot, slot};
}

void DaySession::rangeTo(minutes slot) {
    if (!range_)
        return;
    if (range_->drawn)
        view_.dragChanged(*range());
    range_->last = slot;
    range_->drawn = true;
    view_.dragChanged(*range());
}

void DaySession::finishRange() {
    const std::optional<TimeSpan> drawn = range();
    dropRange();
    if (drawn)
        create(*drawn);
}

void DaySession::dropRange() {
    if (!range_)
        return;
    const bool drawn = range_->drawn;
    range_.reset();
    if (drawn)
        view_.dayChanged();
}

std::optional<TimeSpan> DaySession::range() const {
    if (!range_ || !range_->drawn)
        return std::nullopt;
    return TimeSpan{std::min(range_->first, range_->last),
                    std::max(range_->first, range_->last) + kSlot};
}

}  // namespace velmora
