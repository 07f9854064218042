#include "platform/NumberText.h"

#include <array>
#include <charconv>
#include <cmath>
#include <cstdlib>

namespace velmora {
namespace {

constexpr int kDigits = 15;

struct Scientific {
    std::string digits;  // without zeros at the end, at least one
    int exponent = 0;    // of the first digit
};

// `number` is finite and above 0.
Scientific scientific(double number) {
    std::array<char, 32> buffer{};
    const auto end = std::to_chars(buffer.data(), buffer.data() + buffer.size(), number,
                                   std::chars_format::scientific, kDigits - 1);
    const std::string text(buffer.data(), end.ptr);
    const std::size_t e = text.find('e');
    Scientific result{text.substr(0, 1) + text.substr(2, e - 2), std::atoi(text.c_str() + e + 1)};
    result.digits.erase(result.digits.find_last_not_of('0') + 1);
    return result;
}

std::string withExponent(const Scientific& number) {
    std::string text = number.digits.substr(0, 1);
    if (number.digits.size() > 1)
        text += "." + number.digits.substr(1);
    const std::string power = std::to_string(std::abs(number.exponent));
    text += number.exponent < 0 ? "E-" : "E+";
    return text + (power.size() < 2 ? "0" : "") + power;
}

std::string plain(const Scientific& number) {
    if (number.exponent < 0)
        return "0." + std::string(static_cast<std::size_t>(-number.exponent - 1), '0') +
               number.digits;
    const auto whole = static_cast<std::size_t>(number.exponent) + 1;
    if (number.digits.size() <= whole)
        return number.digits + std::string(whole - number.digits.size(), '0');
    return number.digits.substr(0, whole) + "." + number.digits.substr(whole);
}

}  // namespace

std::string numberText(double number) {
    if (number == 0)
        return "0";
    const Scientific parts = scientific(std::fabs(number));
    const int decimals = static_cast<int>(parts.digits.size()) - 1 - parts.exponent;
    const bool large = parts.exponent >= kDigits;
    const bool small = parts.exponent < 0 && decimals > kDigits;
    return (number < 0 ? "-" : "") + (large || small ? withExponent(parts) : plain(parts));
}

}  // namespace velmora
