#pragma once

#include <QString>
#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

#include "platform/controls/PadCaret.h"
#include "platform/controls/PadPage.h"

class QMimeData;

namespace velmora {

// A text of bytes in the code page, the caret in it, and all that is done to both: loading, typing,
// pasting, erasing, selecting, undoing. It needs no window; whoever shows it derives from it and is
// told what looks otherwise.
//
// A new line that is typed or pasted ends in CR LF. A character that the code page lacks becomes
// "?" at once. Changes by the program can be undone like those of the user. Positions count bytes
// from 0; a line end counts the bytes it has.
class PadEditor {
  public:
    // `codePage` must outlive the editor.
    explicit PadEditor(const CodePage& codePage) : page_(codePage) {}
    PadEditor(const PadEditor&) = delete;
    PadEditor& operator=(const PadEditor&) = delete;
    virtual ~PadEditor() = default;

    [[nodiscard]] const PadPage& page() const { return page_; }
    [[nodiscard]] const PadCaret& caret() const { return caret_; }
    [[nodiscard]] const std::string& bytes() const { return page_.text().bytes(); }
    [[nodiscard]] bool isEmpty() const { return bytes().empty(); }

    // Replaces the whole text and puts the caret before it. setBytes() is one step to undo, and
    // does nothing when the text is equal. reload() counts as a change even then, unless both are
    // empty; what was before it can not be brought back by undoing.
    void setBytes(std::string_view bytes);
    void reload(std::string_view bytes);

    // Puts bytes behind the end; caret, selection and view stay.
    void append(std::string_view bytes);

    [[nodiscard]] std::size_t selectionStart() const { return caret_.selection().first(); }
    [[nodiscard]] std::size_t selectionLength() const { return caret_.selection().length(); }

    // What runs past the end is cut off. Brings the selection into view, unlike selectAll().
    void select(std::size_t start, std::size_t length);
    void select(const PadBuffer::Selection& selection);
    void selectAll();

    // Moves the caret for the user, and brings it into view; the selection grows when it is to be
    // extended, else it ends.
    void putCaret(const PadPage::Place& place, bool extend);
    void moveCaret(PadCaret::Move move, bool extend);

    // The bytes that are selected, and the text as the clipboard holds it, with line feeds.
    [[nodiscard]] std::string selectedBytes() const;
    [[nodiscard]] QString selectedText() const;

    // Puts something in place of the selection: these bytes, what was pasted or dropped (text
    // only), or what was typed, which is undone a word at a time.
    void replaceSelection(std::string_view bytes);
    void insert(const QMimeData& what);
    void type(const QString& text);

    // Erases the selection, or from the caret to `position` when nothing is selected.
    void erase(std::size_t position);

    void undo();
    void redo();

  protected:
    // Whether what is shown scrolls to the caret.
    enum class View { Follows, Stays };

    // Fits rows into `width` pixels, as `widget` draws them in its font.
    void fitPage(const QWidget& widget, int width) { page_.fit(widget, width); }

  private:
    // After each change of the text, by the user or by the program; page and caret are those behind
    // it.
    virtual void textWasChanged(const PadBuffer::Change& change, View view) = 0;
    // The caret has moved, or the selection, and the text has not.
    virtual void caretWasMoved(View view) = 0;
    // A character without a place in the code page has become "?".
    virtual void characterWasReplaced() = 0;
    // How many rows a page has that the caret is moved by, 1 at least.
    [[nodiscard]] virtual int rowsOnShow() const = 0;

    [[nodiscard]] QString kept(const QString& text);
    void change(std::size_t position, std::size_t length, std::string_view with,
                PadBuffer::Kind kind);
    void replay(const std::optional<PadBuffer::Replay>& replay);

    PadPage page_;
    PadCaret caret_{page_};
};

}  // namespace velmora
