#pragma once

#include <QColor>
#include <QPlainTextEdit>
#include <optional>
#include <string>
#include <string_view>

#include "platform/controls/PadBytes.h"

namespace velmora {

// A text box over an exact run of bytes in the code page: what is loaded comes back byte for byte,
// whatever its line ends, NULs included. A new line that is typed or pasted ends in CR LF. A
// character that the code page lacks becomes "?" at once. Changes by the program can be undone like
// those of the user.
//
// Tab types a tab, Ctrl+Tab and Ctrl+Shift+Tab leave the box. On the clipboard line ends are LF.
class PadEdit final : public QPlainTextEdit {
    Q_OBJECT

  public:
    explicit PadEdit(const CodePage& codePage, QWidget* parent = nullptr);

    // Made anew at each call, in time that grows with the text: not for every key.
    [[nodiscard]] std::string bytes() const;

    // Costs nothing, however long the text.
    [[nodiscard]] bool isEmpty() const;

    // Replaces the whole text in one step to undo and puts the caret before it. setBytes() does
    // nothing when the text is equal; reload() then counts as a change, unless both are empty.
    void setBytes(std::string_view bytes);
    void reload(std::string_view bytes);

    // Puts bytes behind the end; caret, selection and view stay.
    void append(std::string_view bytes);

    // Positions count bytes from 0; a line end counts the bytes it has.
    [[nodiscard]] std::size_t selectionStart() const;
    [[nodiscard]] std::size_t selectionLength() const;

    // What runs past the end is cut off. Brings the selection into view.
    void select(std::size_t start, std::size_t length);

    [[nodiscard]] std::string selectedBytes() const;
    void replaceSelection(std::string_view bytes);

    // Nothing is the theme's own colour of text.
    [[nodiscard]] std::optional<QColor> ink() const { return ink_; }
    void setInk(const std::optional<QColor>& colour);

    // Wide margins, for the time when the box fills the window.
    void setWideMargins(bool wide);

  signals:
    // A character without a place in the code page has become "?".
    void characterReplaced();

    // A line of the entry list, in its bytes, was dropped here; nothing has been inserted.
    void entryDropped(const std::string& line);

  protected:
    bool event(QEvent* event) override;
    bool viewportEvent(QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void inputMethodEvent(QInputMethodEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void dragEnterEvent(QDragEnterEvent* event) override;
    void dragMoveEvent(QDragMoveEvent* event) override;
    void dropEvent(QDropEvent* event) override;
    bool canInsertFromMimeData(const QMimeData* source) const override;
    void insertFromMimeData(const QMimeData* source) override;
    QMimeData* createMimeDataFromSelection() const override;

  private:
    void replaceAll(std::string_view bytes);
    void insertNewLine();
    [[nodiscard]] QString kept(const QString& text);
    [[nodiscard]] QPointF onLine(QPointF position) const;
    bool sendToText(QMouseEvent& event, QPointF position);

    PadBytes bytes_;
    std::optional<QColor> ink_;
};

}  // namespace velmora
