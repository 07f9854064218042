#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

#include "platform/CodePage.h"

namespace velmora {

enum class TextEncoding { CodePageBytes, Utf8, Utf16LeastFirst, Utf16MostFirst };

// The encoding that the mark at the begin of a text names, and how many bytes the mark has.
struct TextMark {
    TextEncoding encoding = TextEncoding::CodePageBytes;  // also without a mark
    std::size_t length = 0;
};
[[nodiscard]] TextMark markOf(std::string_view begin);

// Looks through a text, piece by piece, whether it is UTF-8.
class Utf8Check {
  public:
    // False once it is certain that the text is none.
    bool feed(std::string_view bytes);

    // Of all that was fed: sound UTF-8, with at least one character beyond ASCII.
    [[nodiscard]] bool isUtf8() const { return sound_ && beyondAscii_ && missing_ == 0; }

  private:
    void take(unsigned char byte);

    bool sound_ = true;
    bool beyondAscii_ = false;
    int missing_ = 0;             // bytes of the character under way
    unsigned char least_ = 0x80;  // for the next of them
    unsigned char most_ = 0xBF;
};

// Turns a text that comes piece by piece into code-page text. A character without a place in the
// page becomes "?", and so does each byte that belongs to none.
class TextDecoder {
  public:
    // `codePage` must outlive the decoder. The mark is not to be fed.
    TextDecoder(TextEncoding encoding, const CodePage& codePage)
        : encoding_(encoding), codePage_(codePage) {}

    // Puts what can be told by now behind `text`.
    void feed(std::string_view bytes, std::string& text);

    // The text has ended, perhaps in the middle of a character.
    void end(std::string& text);

    // So many characters became "?".
    [[nodiscard]] std::uint64_t replaced() const { return replaced_; }

  private:
    void feedUtf8(std::string_view bytes, std::string& text);
    void feedUtf16(std::string_view bytes, std::string& text);
    void put(char32_t character, std::string& text);
    void putUnknown(std::string& text);

    TextEncoding encoding_;
    const CodePage& codePage_;
    std::string held_;       // the begin of a character of UTF-8, or the first byte of a unit
    char32_t highHalf_ = 0;  // the first half of a character in two units of UTF-16
    std::uint64_t replaced_ = 0;
};

}  // namespace velmora
