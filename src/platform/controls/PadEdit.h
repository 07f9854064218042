#pragma once

#include <QAbstractScrollArea>
#include <QBasicTimer>
#include <QColor>
#include <memory>
#include <optional>
#include <string>
#include <string_view>

#include "platform/controls/PadEditor.h"
#include "platform/controls/PadInputMethod.h"

namespace velmora {

class PadMouse;

// A text box over an exact run of bytes in the code page: what is loaded comes back byte for byte,
// whatever its line ends, NULs included. Lines are wrapped at the width of the box, which so never
// scrolls sideways; a key costs the same time however long the text and its lines.
//
// Tab types a tab, Ctrl+Tab and Ctrl+Shift+Tab leave the box. On the clipboard line ends are LF.
class PadEdit final : public QAbstractScrollArea, public PadEditor {
    Q_OBJECT

  public:
    explicit PadEdit(const CodePage& codePage, QWidget* parent = nullptr);
    ~PadEdit() override;

    // Nothing is the theme's own colour of text.
    [[nodiscard]] std::optional<QColor> ink() const { return ink_; }
    void setInk(const std::optional<QColor>& colour);

    // Between the frame and the text.
    void setTextMargins(const QMargins& margins);

    void copy() const;
    void cut();
    void paste();

    // The caret's place when it stands at `place`, in the viewport's coordinates.
    [[nodiscard]] QRect caretRect(const PadPage::Place& place) const;

    // The place in the text that is nearest to a point of the viewport.
    [[nodiscard]] PadPage::Place placeAt(const QPoint& point) const;

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
    void textWasChanged(const PadBuffer::Change& change, View view) override;
    void caretWasMoved(View view) override;
    void characterWasReplaced() override { emit characterReplaced(); }
    [[nodiscard]] int rowsOnShow() const override;

    void layPage();
    void fitRows();
    void follow(View view);
    void ensureCaretVisible();
    void blink();
    void tellDroppedLine(std::string_view format, const std::string& line);

    PadInputMethod inputMethod_{*this};
    std::unique_ptr<PadMouse> mouse_;
    std::optional<QColor> ink_;
    QBasicTimer blinking_;
    bool caretShown_ = false;
};

}  // namespace velmora
