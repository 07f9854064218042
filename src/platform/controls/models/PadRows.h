#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace velmora {

// How wide each byte's character is drawn, in 1/64 pixel.
struct PadWidths {
    std::array<std::int32_t, 256> of{};
    std::int32_t tab = 80 * 64;  // distance of the tab stops

    // Belongs to the character before it and is never parted from it.
    std::array<bool, 256> joins{};

    friend bool operator==(const PadWidths&, const PadWidths&) = default;
};

// The rows into which a text is wrapped: behind a blank or a hyphen where there is one, else where
// the row is full. Blanks at the end of a row hang over it. A line end belongs to its row; behind
// the last one there is an empty row. There is always one row at least.
//
// A change costs what lies between it and the next place where old and new rows begin alike: the
// rest of its line at most.
class PadRows {
  public:
    // Wraps all of `text`; rows are `width` wide, in 1/64 pixel.
    void wrap(std::string_view text, const PadWidths& widths, std::int32_t width);

    // The text has become `text` by a change: `removed` bytes at `position` gave way to `inserted`.
    void change(std::string_view text, std::size_t position, std::size_t removed,
                std::size_t inserted);

    // Widths that differ only for characters that are not in the text: its rows stay as they are.
    void learn(const PadWidths& widths) { widths_ = widths; }

    [[nodiscard]] std::size_t count() const { return begins_.size(); }

    // Where row `row` begins, in bytes of the text; behind the last one, the length of the text.
    [[nodiscard]] std::size_t begin(std::size_t row) const {
        return row < begins_.size() ? begins_[row] : length_;
    }

    // The row of the character at `position`.
    [[nodiscard]] std::size_t at(std::size_t position) const;

  private:
    // The end of the row that begins at `begin`.
    [[nodiscard]] std::size_t endOf(std::string_view text, std::size_t begin) const;

    std::vector<std::size_t> begins_{0};
    std::size_t length_ = 0;
    PadWidths widths_;
    std::int32_t width_ = 0;
};

}  // namespace velmora
