#pragma once

#include <QListView>
#include <QPixmap>
#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "platform/CodePage.h"
#include "platform/controls/EntryLines.h"
#include "platform/controls/FocusRing.h"

namespace velmora {

// The list of entries: one line of code-page text each, at most one selected. It keeps its lines in
// order by itself, and its selected line can be dragged unless setDragEnabled(false) is called. A
// line that is cut short tells its whole in a tool tip.
class EntryList final : public QListView {
    Q_OBJECT

  public:
    // `codePage` must outlive the list. Without an order lines stay as they are added.
    EntryList(const CodePage& codePage, EntryLines::Order order, QWidget* parent = nullptr);

    // In order of the upper-cased bytes of `codePage`.
    explicit EntryList(const CodePage& codePage, QWidget* parent = nullptr);

    // Where the text behind a tab begins, in pixels from the text before it.
    void setTabStop(int pixels);

    // Lines for which this is true are drawn semibold.
    void setStrongLines(std::function<bool(std::string_view)> strong);

    // Lines can be dragged, each as its bytes in this format of DragFormats.h.
    void setDragFormat(const char* format);
    // What the list says while it has no line; nothing at first. It is painted, and no line.
    void setEmptyText(const QString& text);
    [[nodiscard]] const QString& emptyText() const { return emptyText_; }

    // Replaces all lines; none is selected then, and the list shows its top.
    void setLines(std::vector<std::string> lines);

    // Adds lines at their places. The selected line stays selected.
    void addLines(std::vector<std::string> lines);

    void clearLines() { setLines({}); }

    [[nodiscard]] const std::vector<std::string>& lines() const { return lines_->lines(); }

    [[nodiscard]] bool hasSelection() const { return selectedRow() >= 0; }

    // The bytes of the selected line; empty when none is selected.
    [[nodiscard]] std::string selectedLine() const;

    // Selects and shows the first line of exactly these bytes; false, and none selected, when there
    // is none.
    bool selectLine(const std::string& line);

    void clearLineSelection();

    // What goes with the pointer while `line` is dragged.
    [[nodiscard]] QPixmap dragPixmap(const QString& line) const;

  signals:
    // Another line, or none, has become the selected one, whoever did it.
    void currentLineChanged();

    // The user chose a line with the mouse or the keyboard: once per choice, and once more for a
    // press on the line that is selected already.
    void lineClicked();

    // Enter or a double-click on the selected line.
    void lineActivated();

    // Del on the selected line, and Ctrl+C, after the line's own text has been copied.
    void removeWanted();
    void copyWanted();

    // The selected line begins to be dragged.
    void dragBegins();

    // A context menu of the selected line is wanted; a line that was not selected has been chosen
    // before. `place` is in coordinates of the screen.
    void menuWanted(const QPoint& place);

  protected:
    void startDrag(Qt::DropActions actions) override;
    void selectionChanged(const QItemSelection& selected,
                          const QItemSelection& deselected) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void contextMenuEvent(QContextMenuEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

  private:
    [[nodiscard]] int selectedRow() const;
    void selectRow(int row);
    void selectFocused();
    void actByKey(const QKeyEvent& event);
    void tellEmptiness();

    EntryLines* lines_;
    QString emptyText_;
    KeyboardFocus focus_;
    int choices_ = 0;            // selections made so far; tells a press whether it made one
    bool clickedTwice_ = false;  // and the button is still down
    bool byProgram_ = false;     // the selection is being changed by an operation of this class
};

}  // namespace velmora
