#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace velmora {

// A text of bytes with the history of its changes. Positions count bytes from 0. A line ends in
// CR LF, LF or CR, each as it was given; a caret never stands between CR and LF.
class PadBuffer {
  public:
    // What the user did. Letters that are typed one behind the other, and letters that are erased
    // so, are undone together, a word at a time; everything else is a step of its own.
    enum class Kind { Typing, Erasing, Other };

    // `removed` at `position` gave way to so many `inserted` bytes.
    struct Change {
        std::size_t position = 0;
        std::string removed;
        std::size_t inserted = 0;
    };

    // Where the caret stands and where the selection began; both the same without a selection.
    struct Selection {
        std::size_t anchor = 0;
        std::size_t caret = 0;

        [[nodiscard]] std::size_t first() const { return anchor < caret ? anchor : caret; }
        [[nodiscard]] std::size_t length() const {
            return anchor < caret ? caret - anchor : anchor - caret;
        }
        friend bool operator==(const Selection&, const Selection&) = default;
    };

    // A change with the selection that belongs behind it.
    struct Replay {
        Change change;
        Selection selection;
    };

    [[nodiscard]] const std::string& bytes() const { return bytes_; }
    [[nodiscard]] std::size_t size() const { return bytes_.size(); }

    // Puts `with` in place of `length` bytes at `position`, as one step to undo; `before` is the
    // selection that undoing brings back. A lone CR and a lone LF that would come to stand side by
    // side stay two line ends: the CR becomes CR LF.
    Change replace(std::size_t position, std::size_t length, std::string_view with, Kind kind,
                   Selection before);

    // Puts exactly these bytes behind the end, as one step to undo.
    Change append(std::string_view bytes, Selection before);

    // What is typed from here on is undone by itself.
    void endStep() { open_ = false; }

    // Nothing when there is nothing to undo or redo.
    [[nodiscard]] std::optional<Replay> undo();
    [[nodiscard]] std::optional<Replay> redo();
    [[nodiscard]] bool canUndo() const { return done_ > 0; }
    [[nodiscard]] bool canRedo() const { return done_ < steps_.size(); }
    void forgetHistory();

    // `position` where a caret may stand: not behind the end and not between CR and LF.
    [[nodiscard]] std::size_t snapped(std::size_t position) const;

    // Whether `position` is that of a CR with its LF behind it.
    [[nodiscard]] bool isPair(std::size_t position) const;

    // Begin and end of the line around `position`; its line end lies behind.
    [[nodiscard]] std::size_t lineBegin(std::size_t position) const;
    [[nodiscard]] std::size_t lineEnd(std::size_t position) const;

  private:
    struct Step {
        std::size_t position = 0;
        std::string removed;
        std::string inserted;
        Selection before;
        Kind kind = Kind::Other;
    };

    Change apply(std::size_t position, std::size_t length, std::string_view with, Kind kind,
                 Selection before);
    bool joinsLast(const Step& step);
    void record(Step step);

    std::string bytes_;
    std::vector<Step> steps_;
    std::size_t done_ = 0;  // so many steps are in the text; those behind can be redone
    std::size_t kept_ = 0;  // bytes that the steps hold
    bool open_ = false;     // the last step may go on
};

}  // namespace velmora
