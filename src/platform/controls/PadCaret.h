#pragma once

#include <cstddef>
#include <optional>

#include "platform/controls/PadPage.h"

namespace velmora {

// Where the caret stands on a page and what is selected.
class PadCaret {
  public:
    enum class Move {
        NextCharacter,
        PreviousCharacter,
        NextWord,
        PreviousWord,
        NextRow,
        PreviousRow,
        NextPage,
        PreviousPage,
        RowBegin,
        RowEnd,
        LineBegin,
        LineEnd,
        TextBegin,
        TextEnd,
    };

    // `page` must outlive the caret.
    explicit PadCaret(const PadPage& page) : page_(page) {}

    [[nodiscard]] const PadBuffer::Selection& selection() const { return selection_; }
    [[nodiscard]] PadPage::Place place() const { return {selection_.caret, atRowEnd_}; }
    [[nodiscard]] std::size_t row() const { return page_.rowOf(place()); }

    // Moves the caret; the selection grows when it is to be extended, else it ends. A page has
    // `pageRows` rows.
    void move(Move move, bool extend, int pageRows);
    void put(const PadPage::Place& place, bool extend);

    void set(const PadBuffer::Selection& selection);
    void set(std::size_t position) { set({position, position}); }

  private:
    [[nodiscard]] PadPage::Place target(Move move) const;
    [[nodiscard]] PadPage::Place rowEnd() const;
    void moveRows(std::ptrdiff_t rows, bool extend);

    const PadPage& page_;
    PadBuffer::Selection selection_;
    bool atRowEnd_ = false;
    std::optional<qreal> goal_;  // where the caret stood before it went up and down
};

}  // namespace velmora
