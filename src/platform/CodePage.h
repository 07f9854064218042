#pragma once

#include <array>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace velmora {

// The single-byte code page of all text that Velmora stores: one byte is one character. All 256
// bytes survive the road to Unicode and back; a byte that the page leaves undefined stands for the
// control character of the same number.
class CodePage {
  public:
    // Windows-1252, for Western languages and all that are not known. Always there.
    static const CodePage& western();

    // The page for a locale name such as "pl_PL.UTF-8"; western() for unknown ones, and where the
    // system lacks the converter.
    static CodePage forLocale(std::string_view localeName);

    // The page of a number: 874 or 1250 to 1258. western() for others.
    static CodePage numbered(int number);

    [[nodiscard]] int number() const { return number_; }

    [[nodiscard]] char32_t toUnicode(char byte) const { return unicode_[index(byte)]; }
    [[nodiscard]] std::optional<char> fromUnicode(char32_t character) const;

    // Only pairs of letters that are both in the page change case.
    [[nodiscard]] char upper(char byte) const { return upper_[index(byte)]; }
    [[nodiscard]] char lower(char byte) const { return lower_[index(byte)]; }
    [[nodiscard]] std::string upper(std::string_view text) const;
    [[nodiscard]] std::string lower(std::string_view text) const;

    [[nodiscard]] bool equalIgnoringCase(std::string_view a, std::string_view b) const;

    // Order of the upper-cased bytes, compared as unsigned numbers: negative, 0 or positive.
    [[nodiscard]] int compareIgnoringCase(std::string_view a, std::string_view b) const;

    [[nodiscard]] std::string toUtf8(std::string_view text) const;

    // A character without a place in the page, and each byte that is no UTF-8, becomes "?".
    [[nodiscard]] std::string fromUtf8(std::string_view utf8) const;

  private:
    CodePage(int number, const std::array<char32_t, 256>& unicode);

    static std::size_t index(char byte) { return static_cast<unsigned char>(byte); }

    int number_;
    std::array<char32_t, 256> unicode_{};
    std::array<char, 256> upper_{};
    std::array<char, 256> lower_{};
};

}  // namespace velmora
