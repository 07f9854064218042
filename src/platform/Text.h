#pragma once

#include <cstddef>
#include <string>
#include <string_view>

// The few idioms of single-byte text that the whole program shares.
namespace velmora {

// Cuts blanks (0x20) at both ends; tabs, line ends and NULs stay.
[[nodiscard]] std::string_view trimBlanks(std::string_view text);

// What a reader sees of a fixed-width field: trailing blanks and NULs off, then leading blanks.
[[nodiscard]] std::string_view fieldText(std::string_view rawField);

// Lenient reading of a number: blanks, tabs and line feeds are passed over anywhere; optional
// sign, digits, optional "." and digits, optional exponent (E or D). The longest valid beginning
// counts, otherwise 0. The decimal point is "." in every locale.
[[nodiscard]] double readNumber(std::string_view text);

// Rounds half to even. Throws Failure outside the range of 32 bits.
[[nodiscard]] int roundToWhole(double number);

// readNumber() cut to its integer part and held within 32 bits.
[[nodiscard]] int readWhole(std::string_view text);

// Plain decimal with a leading blank for 0 and above.
[[nodiscard]] std::string numberWithLeadingBlank(int number);

// Position of `what` in `text` at or behind `start`; positions count from 1, 0 is "not found". An
// empty `what` is found at `start`; an empty `text` holds nothing. `start` is at least 1.
[[nodiscard]] std::size_t findFrom(std::size_t start, std::string_view text, std::string_view what);

// Up to `count` characters from position `start` (from 1); what is there, or nothing.
[[nodiscard]] std::string_view middle(std::string_view text, std::size_t start,
                                      std::size_t count = std::string_view::npos);
[[nodiscard]] std::string_view left(std::string_view text, std::size_t count);

// Line ends as controls hold them (LF) and as Velmora stores them (CR LF). A lone CR or LF and a
// CR LF each count as one line end.
[[nodiscard]] std::string withCrLf(std::string_view text);
[[nodiscard]] std::string withLf(std::string_view text);

}  // namespace velmora
