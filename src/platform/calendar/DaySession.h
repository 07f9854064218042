#pragma once

#include <chrono>
#include <optional>
#include <string>

#include "platform/calendar/DayBlocks.h"

namespace velmora {

// What shows a session: it is told what happens, and it has the one editor. Whoever listens behind
// it may change the tasks inside any of the first four.
class DaySessionView {
  public:
    virtual ~DaySessionView() = default;

    // An edit, a creation or a removal is about to begin. The day may be loaded anew here: what is
    // meant is then the block of the same index.
    virtual void editComing() = 0;
    // `exists`: the block carries a TagVariant.
    virtual void editBegun(int index, bool exists) = 0;
    // `index` is -1 for a new block that was dropped; `save`: the block has values to be stored.
    virtual void editEnded(int index, bool save) = 0;
    // The selected block, which carries a TagVariant, is about to go.
    virtual void removalComing() = 0;

    // The editor for the text of a block, and what stands in it: nothing while that is unchanged.
    virtual void openEditor(int index) = 0;
    virtual void closeEditor() = 0;
    [[nodiscard]] virtual std::optional<std::string> editedText() const = 0;

    // What looks otherwise now: one block, the slot, or the day.
    virtual void blockChanged(int index) = 0;
    virtual void slotChanged(std::chrono::minutes slot) = 0;
    virtual void dayChanged() = 0;
    // What is dragged is about to leave that stretch of time, or has come to it.
    virtual void dragChanged(TimeSpan span) = 0;
};

// What is done with a day, without pixels: which block is selected, which slot the keys are on, and
// what is being edited, dragged or drawn over. It keeps the order that SSDay promises: one end for
// each begin, and no word of a block that the listener has taken away in between.
//
// Operations on an edit, a drag or a range do nothing while there is none.
class DaySession {
  public:
    // A block or one of its edges is held; `begun` once it has moved.
    struct Drag {
        DayTasks::Id id;
        Grip grip;
        TimeSpan original;
        TimeSpan now;
        bool begun = false;
    };

    // `view` must outlive the session.
    explicit DaySession(DaySessionView& view);

    [[nodiscard]] DayBlocks& blocks() { return blocks_; }
    [[nodiscard]] const DayBlocks& blocks() const { return blocks_; }
    [[nodiscard]] DayTasks& tasks() { return blocks_.tasks(); }
    [[nodiscard]] const DayTasks& tasks() const { return blocks_.tasks(); }

    // Makes a day to look at: no selection, edit, drag or removal.
    void setReadOnly(bool readOnly);
    [[nodiscard]] bool isReadOnly() const { return readOnly_; }

    // -1 while no block is selected. An index without a block selects none.
    [[nodiscard]] int selected() const;
    void select(int index);
    // Selects the next block in time (1) or the former one (-1), and its slot; from a slot, the
    // nearest block in that direction. False where none is.
    bool selectBeside(int direction);

    // The slot that the keys are on, within the times shown.
    [[nodiscard]] std::chrono::minutes slot() const { return slot_; }
    void setSlot(std::chrono::minutes slot);

    [[nodiscard]] bool isEditing() const { return edit_.has_value(); }
    // Whether a block has no tag, as one whose row could not be stored. The one that is being made
    // has none either, but nobody would expect it to be stored.
    [[nodiscard]] bool isUnstored(int index) const;

    // -1 while none is edited.
    [[nodiscard]] int edited() const;
    // Appends a block and edits it. One that is left empty is dropped.
    void create(TimeSpan span);
    void edit(int index);
    void saveEdit();
    void dropEdit();
    void removeSelected();

    // Ends what is under way: an edit and a drag are saved, a range is dropped.
    void commit();

    // Takes hold of a block. dragBy() moves it, to so far from where it was held; what is nearer to
    // none than to a step of a drag begins none.
    void hold(int index, Grip grip);
    void dragBy(std::chrono::minutes by);
    // Moves the selected block by so much more, for as long as it is held so.
    void nudge(Grip grip, std::chrono::minutes by);
    void finishDrag();
    void dropDrag();
    [[nodiscard]] bool holdsEdge() const { return drag_ && drag_->grip != Grip::Whole; }
    // Null until the drag has begun.
    [[nodiscard]] const Drag* drag() const { return drag_ && drag_->begun ? &*drag_ : nullptr; }

    // Slots are drawn over, from one to another; at the end they become a block. Where none was
    // drawn over nothing does.
    void beginRange(std::chrono::minutes slot);
    void rangeTo(std::chrono::minutes slot);
    void finishRange();
    void dropRange();
    [[nodiscard]] bool rangeBegun() const { return range_.has_value(); }
    // Nothing before the first rangeTo().
    [[nodiscard]] std::optional<TimeSpan> range() const;

  private:
    struct Edit {
        DayTasks::Id id;
        bool isNew;
        bool open = false;  // the editor is
    };
    struct Range {
        std::chrono::minutes first;
        std::chrono::minutes last;
        bool drawn = false;
    };

    void tasksChanged();
    void beginEdit(int index, bool isNew);
    [[nodiscard]] bool beginDrag();
    void moveDrag(TimeSpan to);

    DaySessionView& view_;
    DayBlocks blocks_;
    bool readOnly_ = false;
    std::optional<DayTasks::Id> selected_;
    std::chrono::minutes slot_{8 * 60};
    std::optional<Edit> edit_;
    std::optional<Drag> drag_;
    std::optional<Range> range_;
};

}  // namespace velmora
