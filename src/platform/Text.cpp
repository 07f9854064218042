#include "platform/Text.h"

#include <charconv>
#include <cmath>
#include <cstdint>
#include <cstring>
#include <limits>

#include "platform/Failure.h"

namespace velmora {
namespace {

constexpr std::string_view kBlank = " ";

std::string replaceLineEnds(std::string_view text, std::string_view lineEnd) {
    std::string result;
    result.reserve(text.size() + text.size() / 16);
    for (std::size_t i = 0; i < text.size(); ++i) {
        if (text[i] != '\r' && text[i] != '\n') {
            result += text[i];
            continue;
        }
        if (text[i] == '\r' && i + 1 < text.size() && text[i + 1] == '\n')
            ++i;
        result += lineEnd;
    }
    return result;
}

bool isDigit(char c) {
    return c >= '0' && c <= '9';
}

std::size_t skipDigits(std::string_view text, std::size_t i) {
    while (i < text.size() && isDigit(text[i]))
        ++i;
    return i;
}

}  // namespace

std::string_view trimBlanks(std::string_view text) {
    const std::size_t first = text.find_first_not_of(kBlank);
    if (first == std::string_view::npos)
        return {};
    return text.substr(first, text.find_last_not_of(kBlank) - first + 1);
}

std::string_view fieldText(std::string_view rawField) {
    // The fields of a book are mostly padding, and whole books are read: no look at each byte.
    constexpr std::uint64_t kBlanks = 0x2020202020202020;
    std::size_t end = rawField.size();
    for (std::uint64_t word = 0; end >= sizeof word; end -= sizeof word) {
        std::memcpy(&word, rawField.data() + end - sizeof word, sizeof word);
        if (word != kBlanks && word != 0)
            break;
    }
    while (end > 0 && (rawField[end - 1] == ' ' || rawField[end - 1] == '\0'))
        --end;
    std::size_t begin = 0;
    while (begin < end && rawField[begin] == ' ')
        ++begin;
    return rawField.substr(begin, end - begin);
}

double readNumber(std::string_view text) {
    std::string digits;
    for (const char c : text) {
        if (c == ' ' || c == '\t' || c == '\n')
            continue;
        const bool part = isDigit(c) || c == '.' || c == '+' || c == '-' || c == 'e' || c == 'E' ||
                          c == 'd' || c == 'D';
        if (!part)
            break;
        digits += c == 'd' || c == 'D' ? 'e' : c;
    }
    const std::size_t sign = !digits.empty() && (digits[0] == '+' || digits[0] == '-') ? 1 : 0;
    const std::size_t whole = skipDigits(digits, sign);
    std::size_t end = whole;
    if (end < digits.size() && digits[end] == '.')
        end = skipDigits(digits, end + 1);
    const bool anyDigit = whole > sign || end > whole + 1;
    if (!anyDigit)
        return 0;
    if (end < digits.size() && (digits[end] == 'e' || digits[end] == 'E')) {
        std::size_t exponent = end + 1;
        if (exponent < digits.size() && (digits[exponent] == '+' || digits[exponent] == '-'))
            ++exponent;
        if (const std::size_t stop = skipDigits(digits, exponent); stop > exponent)
            end = stop;
    }
    double number = 0;
    const char* begin = digits.data() + (digits[0] == '+' ? 1 : 0);
    if (std::from_chars(begin, digits.data() + end, number).ec != std::errc())
        return 0;
    return number;
}

int roundToWhole(double number) {
    const double rounded = std::nearbyint(number);
    if (!(rounded >= std::numeric_limits<int>::min() && rounded <= std::numeric_limits<int>::max()))
        throw Failure("A number is too large.");
    return static_cast<int>(rounded);
}

int readWhole(std::string_view text) {
    const double number = std::trunc(readNumber(text));
    if (number >= std::numeric_limits<int>::max())
        return std::numeric_limits<int>::max();
    if (number <= std::numeric_limits<int>::min())
        return std::numeric_limits<int>::min();
    return static_cast<int>(number);
}

std::string numberWithLeadingBlank(int number) {
    return (number < 0 ? "" : " ") + std::to_string(number);
}

std::size_t findFrom(std::size_t start, std::string_view text, std::string_view what) {
    if (text.empty() || start < 1 || start > text.size())
        return 0;
    const std::size_t found = text.find(what, start - 1);
    return found == std::string_view::npos ? 0 : found + 1;
}

std::string_view middle(std::string_view text, std::size_t start, std::size_t count) {
    if (start < 1 || start > text.size())
        return {};
    return text.substr(start - 1, count);
}

std::string_view left(std::string_view text, std::size_t count) {
    return text.substr(0, count);
}

std::string withCrLf(std::string_view text) {
    return replaceLineEnds(text, "\r\n");
}

std::string withLf(std::string_view text) {
    return replaceLineEnds(text, "\n");
}

}  // namespace velmora
