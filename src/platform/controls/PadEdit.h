#pragma once

#include <QAbstractScrollArea>
#include <QBasicTimer>
#include <QColor>
#include <memory>
#include <optional>
#include <string>
#include <string_view>

#include "platform/controls/PadCaret.h"
#include "platform/controls/PadPage.h"

class QMimeData;

namespace velmora {

class PadMouse;

// A text box over an exact run of bytes in the code page: what is loaded comes back byte for byte,
// whatever its line ends, NULs included. A new line that is typed or pasted ends in CR LF. A
// character that the code page lacks becomes "?" at once. Changes by the program can be undone like
// those of the user. Lines are wrapped at the width of the box, which so never scrolls sideways; a
// key costs the same time however long the text and its lines.
//
// Tab types a tab, Ctrl+Tab and Ctrl+Shift+Tab leave the box. On the clipboard line ends are LF.
class PadEdit final : public QAbstractScrollArea {
    Q_OBJECT

  public:
    explicit PadEdit(const CodePage& codePage, QWidget* parent = nullptr);
    ~PadEdit() override;

    [[nodiscard]] const std::string& bytes() const { return page_.text().bytes(); }
    [[nodiscard]] bool isEmpty() const { return bytes().empty(); }

    // Replaces the whole text and puts the caret before it. setBytes() is one step to undo, and
    // does nothing when the text is equal. reload() counts as a change even then, unless both are
    // empty; what was before it can not be brought back by undoing.
    void setBytes(std::string_view bytes);
    void reload(std::string_view bytes);

    // Puts bytes behind the end; caret, selection and view stay.
    void append(std::string_view bytes);

    // Positions count bytes from 0; a line end counts the bytes it has.
    [[nodiscard]] std::size_t selectionStart() const { return caret_.selection().first(); }
    [[nodiscard]] std::size_t selectionLength() const { return caret_.selection().length(); }

    // What runs past the end is cut off. Brings the selection into view.
    void select(std::size_t start, std::size_t length);
    void select(const PadBuffer::Selection& selection);

    [[nodiscard]] std::string selectedBytes() const;
    void replaceSelection(std::string_view bytes);

    // The text as the clipboard holds it, with line feeds.
    [[nodiscard]] QString selectedText() const;

    // Nothing is the theme's own colour of text.
    [[nodiscard]] std::optional<QColor> ink() const { return ink_; }
    void setInk(const std::optional<QColor>& colour);

    // Between the frame and the text.
    void setTextMargins(const QMargins& margins);

    void undo();
    void redo();
    void copy() const;
    void cut();
    void paste();
    void selectAll();

    [[nodiscard]] const PadPage& page() const { return page_; }
    [[nodiscard]] const PadCaret& caret() const { return caret_; }

    // The caret's place when it stands at `place`, in the viewport's coordinates.
    [[nodiscard]] QRect caretRect(const PadPage::Place& place) const;

    // The place in the text that is nearest to a point of the viewport.
    [[nodiscard]] PadPage::Place placeAt(const QPoint& point) const;

    // Moves the caret for the user, and brings it into view.
    void putCaret(const PadPage::Place& place, bool extend);
    void moveCaret(PadCaret::Move move, bool extend);

    // Puts what was pasted or dropped in place of the selection. Takes text only.
    void insert(const QMimeData& what);

    // Erases the selection, or from the caret to `position` when nothing is selected.
    void erase(std::size_t position);

  signals:
    // After each change of the text, by the user or by the program.
    void textChanged();

    // A character without a place in the code page has become "?".
    void characterReplaced();

    // A line of the entry list, in its bytes, was dropped here; nothing has been inserted.
    void entryDropped(const std::string& line);

    // The same of a line of the to-do list.
    void taskDropped(const std::string& task);

  protected:
    bool event(QEvent* event) override;
    bool viewportEvent(QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void inputMethodEvent(QInputMethodEvent* event) override;
    [[nodiscard]] QVariant inputMethodQuery(Qt::InputMethodQuery query) const override;
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void changeEvent(QEvent* event) override;
    void timerEvent(QTimerEvent* event) override;
    void contextMenuEvent(QContextMenuEvent* event) override;
    void scrollContentsBy(int dx, int dy) override;
    bool focusNextPrevChild(bool next) override;

  private:
    [[nodiscard]] QString kept(const QString& text);
    void insertTyped(const QString& text);
    void change(std::size_t position, std::size_t length, std::string_view with,
                PadBuffer::Kind kind);
    void replay(const std::optional<PadBuffer::Replay>& replay);
    void changed(const PadBuffer::Change& change);
    void caretMoved();
    void fitRows();
    void ensureCaretVisible();
    void blink();
    void tellDroppedLine(std::string_view format, const std::string& line);
    void layPage();

    PadPage page_;
    PadCaret caret_{page_};
    PadPage::Preedit preedit_;
    std::unique_ptr<PadMouse> mouse_;
    std::optional<QColor> ink_;
    QBasicTimer blinking_;
    bool caretShown_ = false;
};

}  // namespace velmora
