#pragma once

#include <QPixmap>
#include <QPoint>
#include <QWidget>
#include <chrono>
#include <optional>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

#include "platform/CodePage.h"
#include "platform/controls/AccessibleParts.h"
#include "platform/controls/DayGeometry.h"
#include "platform/controls/DayPainter.h"
#include "platform/calendar/DayTasks.h"
#include "platform/calendar/TimeColumn.h"

class QHelpEvent;
class QScrollBar;

namespace velmora {

class DayEditor;

// A day as a column of time slots with task blocks in it. Blocks are created by typing into a slot,
// dragging over slots or a double-click, edited in place, and moved by dragging them or their
// divider bars. What is done is told by the signals below; each names a block by its index in
// Tasks(), and the listener may change Tasks() inside any of them.
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
class SSDay final : public QWidget, public AccessibleParts {
    Q_OBJECT

  public:
    explicit SSDay(const CodePage& codePage, QWidget* parent = nullptr);
    ~SSDay() override;

    [[nodiscard]] DayTasks& Tasks() { return tasks_; }
    [[nodiscard]] const DayTasks& Tasks() const { return tasks_; }

    // -1 while no block is selected.
    [[nodiscard]] int SelectedIndex() const;
    void setSelectedIndex(int index);

    // First and last time of the column; see TimeColumn. Blocks outside widen it.
    void setFirstTime(std::string_view time);
    void setLastTime(std::string_view time);

    // Lays out and paints anew when the event loop comes to it.
    void Refresh();

    // The colour of block texts; an invalid one stands for the theme's. Font: setFont().
    void setTextColor(const QColor& color);
    [[nodiscard]] QColor textColor() const { return textColor_; }

    // Where the line of the present time goes; none on other days than today.
    void setNow(std::optional<std::chrono::minutes> timeOfDay);

    // A view to look at: no selection, editor, drag or removal, smaller type, narrower gutter.
    void setReadOnly(bool readOnly);

    // What an empty day says, in the second slot in view; nothing while it is empty.
    void setEmptyText(const QString& text);

    // A caption above the column, in code-page text; none while it is empty.
    void setCaption(std::string_view caption);
    void setCaptionFont(const QFont& font);

    // Saves an open editor and ends a drag. Call it before the date changes, before the tasks are
    // loaded anew, and before the window closes.
    void commitEditor();
    [[nodiscard]] bool isEditing() const { return edit_.has_value(); }

    // Scrolls to one slot before the first block, else to 7:30 AM. Happens by itself when the view
    // shows for the first time.
    void scrollToStart();

    // The same, as if the first block began at `begin`; without one as if there were no blocks.
    void scrollToTask(std::optional<std::chrono::minutes> begin);

    // When the first block by time begins; nothing without blocks.
    [[nodiscard]] std::optional<std::chrono::minutes> firstBegin() const;

    // Places for tests and drops: empty while out of sight.
    [[nodiscard]] QRect blockRect(int index) const;
    [[nodiscard]] QRect slotRect(std::chrono::minutes slot) const;

    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QSize minimumSizeHint() const override;

    // Opens the editor in the selected block, copies its text, or takes it away. Nothing happens
    // while none is selected.
    void editSelected();
    void copySelected() const;
    void removeSelected();

    // The blocks, and behind them the slot that the keys are on; a read-only view has no such slot.
    [[nodiscard]] int partCount() const override { return tasks_.Count() + (readOnly_ ? 0 : 1); }
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
    bool event(QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void showEvent(QShowEvent* event) override;
    void hideEvent(QHideEvent* event) override;
    void changeEvent(QEvent* event) override;
    void enterEvent(QEnterEvent* event) override;
    void leaveEvent(QEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void keyReleaseEvent(QKeyEvent* event) override;
    void inputMethodEvent(QInputMethodEvent* event) override;
    void contextMenuEvent(QContextMenuEvent* event) override;

  private:
    // The editor is open in a block.
    struct Edit {
        DayTasks::Id id;
        bool isNew;
    };
    // A block or one of its edges is held by the pointer or by keys; `begun` once it has moved.
    struct Drag {
        DayTasks::Id id;
        Grip grip;
        QPoint from;
        int scrollFrom;
        TimeSpan original;
        TimeSpan now;
        bool begun;
        bool byKey = false;
    };
    // Slots from the one pressed to the one under the pointer.
    struct Range {
        QPoint from;
        std::chrono::minutes first;
        std::chrono::minutes last;
        bool begun;

        [[nodiscard]] TimeSpan span() const;
    };
    struct Block {
        DayTasks::Id id;
        TimeSpan span;
        ShownBlock shown;
    };
    // A block drawn before, good as long as it would look the same.
    struct Drawn {
        QPixmap pixmap;
        QPointF fraction;  // of a pixel, at which the block begins in it
        ShownBlock shown;
    };
    struct Hit {
        int index = -1;
        Grip grip = Grip::Whole;
    };

    // Layout.
    void tasksChanged();
    void layOut() const;
    [[nodiscard]] const std::vector<Block>& blocks() const;
    [[nodiscard]] DayGeometry geometryNow() const;
    [[nodiscard]] int captionHeight() const;
    [[nodiscard]] int gutterWidth() const;
    [[nodiscard]] QFont blockFont() const;
    [[nodiscard]] int slotHeight() const;
    [[nodiscard]] std::chrono::minutes shortestDrawn() const;
    [[nodiscard]] QString shownTimes(const DayTask& task) const;
    [[nodiscard]] QString shownTime(std::chrono::minutes time) const;
    // Where a block paints, its bars included.
    [[nodiscard]] static QRect reachOf(const DayGeometry& geometry, const PlacedBlock& place);
    [[nodiscard]] PlacedBlock draggedPlace() const;
    void placeScrollBar();
    void updateBlock(int index);
    void updateSlot();
    void updateNowLine();

    // Painting.
    [[nodiscard]] DayPainter::Look look() const;
    void paintFrame(QPainter& painter) const;
    void paintPaper(QPainter& painter, const QRect& area) const;
    void paintBlocks(QPainter& painter, const DayPainter& paint, const DayGeometry& geometry,
                     const QRect& area) const;
    void paintBlock(QPainter& painter, const DayPainter& paint, const QRect& rect, DayTasks::Id id,
                    const ShownBlock& block) const;
    void paintOverlays(const DayPainter& paint) const;
    [[nodiscard]] std::chrono::minutes secondSlotInView() const;
    [[nodiscard]] bool saysEmpty() const;
    void tellEmptiness();
    void showToolTip(const QHelpEvent& event);

    // Scrolling.
    void scrollBy(int pixels);
    void scrollWhere(QPoint point);
    void makeVisible(TimeSpan span);

    // Selection and keys.
    [[nodiscard]] Hit hitAt(QPoint point) const;
    [[nodiscard]] bool isUserTyping(const QKeyEvent& event) const;
    void select(int index);
    void selectBeside(int direction);
    void moveSlot(std::chrono::minutes to);
    [[nodiscard]] bool moveByKey(const QKeyEvent& event);
    [[nodiscard]] bool actByKey(const QKeyEvent& event);
    [[nodiscard]] bool dragByKey(const QKeyEvent& event);
    void announceCaret();
    [[nodiscard]] AccessiblePart slotPart() const;
    [[nodiscard]] bool scrollByKey(const QKeyEvent& event);
    void setHovered(int index);
    void showPointer(QPoint point);

    // Editing.
    void watchFocus();
    void createTask(TimeSpan span, const QString& typed);
    void editTask(int index, const QString& typed = QString());
    void makeEditor();  // when there is none yet
    void openEditor(int index, const QString& typed);
    void placeEditor();
    void closeEditor();
    void saveEditor();
    void dropEditor();

    // Dragging.
    void dragTo(QPoint point);
    void showDragged(TimeSpan to);
    [[nodiscard]] bool beginDrag();
    void finishDrag();
    void dropDrag();
    void dragRangeTo(QPoint point);
    void finishRange();

    CodePage codePage_;
    DayTasks tasks_;
    TimeColumn column_;
    bool readOnly_ = false;
    std::string caption_;
    QFont captionFont_;
    bool captionFontSet_ = false;
    QColor textColor_;
    std::optional<std::chrono::minutes> now_;

    // Laid out when first asked for after a change.
    mutable bool stale_ = true;
    mutable TimeSpan shown_{std::chrono::minutes(0), kDay};
    mutable std::vector<Block> blocks_;
    mutable std::unordered_map<DayTasks::Id, Drawn> drawn_;

    std::optional<DayTasks::Id> selected_;
    std::chrono::minutes slot_{8 * 60};
    int hovered_ = -1;
    std::optional<Edit> edit_;
    std::optional<Drag> drag_;
    std::optional<Range> range_;
    bool started_ = false;

    QScrollBar* scroll_ = nullptr;
    DayEditor* editor_ = nullptr;  // nullptr until something is edited for the first time
    QString emptyText_;
};

}  // namespace velmora
