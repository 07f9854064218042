#pragma once

#include <array>
#include <cstddef>

#include "platform/CodePage.h"
#include "platform/controls/models/PadBuffer.h"

namespace velmora {

// What the caret has to know of the characters of a code page.
class PadLetters {
  public:
    explicit PadLetters(const CodePage& codePage);

    // Letters, digits and the low line make words.
    [[nodiscard]] bool inWord(char byte) const { return word_[index(byte)]; }

    // A mark that belongs to the character before it; the caret never stands between the two.
    [[nodiscard]] bool joins(char byte) const { return joins_[index(byte)]; }
    [[nodiscard]] const std::array<bool, 256>& allThatJoin() const { return joins_; }

    // The neighbouring positions of a caret; at the ends of the text, that end.
    [[nodiscard]] std::size_t next(const PadBuffer& text, std::size_t position) const;
    [[nodiscard]] std::size_t previous(const PadBuffer& text, std::size_t position) const;

    // The next begin of a word or of other signs, not beyond the end of the line; and back.
    [[nodiscard]] std::size_t nextWord(const PadBuffer& text, std::size_t position) const;
    [[nodiscard]] std::size_t previousWord(const PadBuffer& text, std::size_t position) const;

    // The word around `position`, or the run of other signs, as a selection.
    [[nodiscard]] PadBuffer::Selection wordAt(const PadBuffer& text, std::size_t position) const;

  private:
    enum class Sort { Blank, LineEnd, Word, Other };

    static std::size_t index(char byte) { return static_cast<unsigned char>(byte); }
    [[nodiscard]] Sort sortOf(char byte) const;

    std::array<bool, 256> word_{};
    std::array<bool, 256> joins_{};
};

}  // namespace velmora
