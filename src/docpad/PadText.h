#pragma once

#include <cstddef>
#include <functional>
#include <string>

namespace velmora {

// DocPad's text control `Text4`, as the logic sees it: an exact run of bytes in the code page. A
// line end counts as the bytes it has, CR LF as two. Positions count bytes from 0.
class PadText {
  public:
    virtual ~PadText() = default;

    [[nodiscard]] virtual std::string bytes() const = 0;

    // Whether there is no byte; costs nothing, however long the text.
    [[nodiscard]] virtual bool empty() const = 0;

    // Replaces the whole text, as one step that the user can undo. An equal text is no change.
    virtual void setBytes(const std::string& bytes) = 0;

    // Empties the text and then puts `bytes` there: a change unless both are empty, even if they
    // are equal. Undoing ends here: what was there before belongs to another document.
    virtual void reload(const std::string& bytes) = 0;

    // Puts `bytes` behind the end; selection and view stay.
    virtual void append(const std::string& bytes) = 0;

    [[nodiscard]] virtual std::size_t selectionStart() const = 0;
    [[nodiscard]] virtual std::size_t selectionLength() const = 0;

    // What runs past the end of the text is cut off. The selection comes into view.
    virtual void select(std::size_t start, std::size_t length) = 0;

    // Puts `bytes` in place of the selection; the caret is then behind them.
    virtual void replaceSelection(const std::string& bytes) = 0;

    // Width of the control in twips, 15 to the pixel.
    [[nodiscard]] virtual int widthInTwips() const = 0;

    // Called after each change of the text, by the user or by the program; one listener.
    virtual void onChange(std::function<void()> listener) = 0;
};

}  // namespace velmora
