#pragma once

#include <QPoint>
#include <QString>
#include <optional>
#include <string>

#include "platform/controls/AccessibleParts.h"
#include "platform/controls/DayCanvas.h"

namespace velmora {

class DayEditor;

// A day as a column of time slots with task blocks in it. Blocks are created by typing into a slot,
// dragging over slots or a double-click, edited in place, and moved by dragging them or their
// divider bars, or by keys. What is done is told by the signals below; each names a block by its
// index in Tasks(), and the listener may change Tasks() inside any of them.
//
// What the listener sees, in this order:
//   creation  beforeEdit, (the block is appended), OnTaskEditBegin(index, false), then
//             saved: (the block takes its text), OnTaskEditEnd(index, false, true)
//             dropped, or left empty: OnTaskEditEnd(-1, false, false), (the block goes)
//   edit      beforeEdit, OnTaskEditBegin(index, exists), then
//             saved: (the block takes its text or times), OnTaskEditEnd(index, false, true)
//             dropped, or a drag back to where it began: OnTaskEditEnd(index, false, false)
//   removal   beforeEdit, (an open editor of the block is dropped), OnTaskRemove() with the block
//             still selected, (the block goes). A block without a TagVariant goes silently.
// There is exactly one end for each begin, unless the listener takes the block away in between:
// then the editor or the drag is dropped without another word.
//
// An editor is saved when the focus goes elsewhere in the window or the view is hidden, and stays
// open while another window is active.
class SSDay final : public DayCanvas, public AccessibleParts {
    Q_OBJECT

  public:
    explicit SSDay(const CodePage& codePage, QWidget* parent = nullptr);
    ~SSDay() override;

    [[nodiscard]] DayTasks& Tasks() { return session().tasks(); }
    [[nodiscard]] const DayTasks& Tasks() const { return session().tasks(); }

    // -1 while no block is selected. A block that is selected comes into view.
    [[nodiscard]] int SelectedIndex() const { return session().selected(); }
    void setSelectedIndex(int index);

    // A view to look at: no selection, editor, drag or removal, smaller type, narrower gutter.
    void setReadOnly(bool readOnly);

    // Saves an open editor and ends a drag. Call it before the date changes, before the tasks are
    // loaded anew, and before the window closes.
    void commitEditor() { session().commit(); }
    [[nodiscard]] bool isEditing() const { return session().isEditing(); }

    // Opens the editor in the selected block, copies its text, or takes it away. Nothing happens
    // while none is selected.
    void editSelected() { session().edit(SelectedIndex()); }
    void copySelected() const;
    void removeSelected() { session().removeSelected(); }

    // The blocks, and behind them the slot that the keys are on; a read-only view has no such slot.
    [[nodiscard]] int partCount() const override;
    [[nodiscard]] AccessiblePart part(int index) const override;
    void pressPart(int index) override;

  signals:
    // The user is about to edit, create or remove. A listener that has to load the day anew first
    // can do it here: what is edited is then the block of the same index.
    void beforeEdit();
    // `exists` is true when the block carries a TagVariant.
    void OnTaskEditBegin(int index, bool exists);
    // `index` is -1 for a new block that was dropped. `keepRefresh`: the view paints by itself.
    // `save`: the block has values to be stored.
    void OnTaskEditEnd(int index, bool keepRefresh, bool save);
    // The selected block is about to go.
    void OnTaskRemove();
    void pointerMoved();
    // The user wants the appointment back that was removed last.
    void undoWanted();
    // A context menu of the selected block is wanted, at a place on the screen.
    void menuWanted(const QPoint& place);
    // A character that the code page lacks became "?" in the editor.
    void characterReplaced();

  protected:
    void hideEvent(QHideEvent* event) override;
    void changeEvent(QEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void keyReleaseEvent(QKeyEvent* event) override;
    void inputMethodEvent(QInputMethodEvent* event) override;
    void contextMenuEvent(QContextMenuEvent* event) override;

    void editComing() override { emit beforeEdit(); }
    void editBegun(int index, bool exists) override { emit OnTaskEditBegin(index, exists); }
    void editEnded(int index, bool save) override { emit OnTaskEditEnd(index, false, save); }
    void removalComing() override { emit OnTaskRemove(); }
    void openEditor(int index) override;
    void closeEditor() override;
    [[nodiscard]] std::optional<std::string> editedText() const override;

  private:
    friend class DayKeys;

    // Where the pointer took hold of something.
    struct Held {
        QPoint from;
        int scrollFrom = 0;
    };

    // Into the selected block, or into a new one at the slot.
    void type(const QString& text);
    void announceCaret();
    void placeEditor();

    DayEditor* editor_ = nullptr;  // nullptr until something is edited for the first time
    std::optional<Held> held_;     // by the pointer
};

}  // namespace velmora
