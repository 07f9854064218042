#include "telephony/TelephoneLink.h"

#include <cstddef>

namespace velmora {
namespace {

constexpr std::size_t kLongest = 40;
constexpr std::string_view kScheme = "tel:";

bool isTelephoneLink(std::string_view link) {
    if (link.size() < kScheme.size())
        return false;
    for (std::size_t i = 0; i < kScheme.size(); ++i)
        if ((link[i] | 0x20) != (kScheme[i] | 0x20))
            return false;
    return true;
}

int digitOf(char c) {
    constexpr std::string_view digits = "0123456789abcdef";
    const std::size_t place = digits.find(c >= 'A' && c <= 'F' ? static_cast<char>(c | 0x20) : c);
    return place == std::string_view::npos ? -1 : static_cast<int>(place);
}

// Takes the next character away, which may be written as "%2B".
char next(std::string_view& text) {
    const bool coded =
        text.size() >= 3 && text[0] == '%' && digitOf(text[1]) >= 0 && digitOf(text[2]) >= 0;
    const char c = coded ? static_cast<char>(digitOf(text[1]) * 16 + digitOf(text[2])) : text[0];
    text.remove_prefix(coded ? 3 : 1);
    return c;
}

bool isKey(char c) {
    return (c >= '0' && c <= '9') || c == '*' || c == '#' || c == ',';
}

}  // namespace

std::string numberOfLink(std::string_view link) {
    std::string number;
    if (!isTelephoneLink(link))
        return number;
    link.remove_prefix(kScheme.size());
    while (!link.empty() && number.size() < kLongest) {
        const char c = next(link);
        if (c == ';' || c == '?')
            break;
        if (isKey(c) || (c == '+' && number.empty()))
            number += c;
    }
    return number == "+" ? std::string() : number;
}

std::string numberOfLinks(const std::vector<std::string>& links) {
    for (const std::string& link : links)
        if (std::string number = numberOfLink(link); !number.empty())
            return number;
    return {};
}

}  // namespace velmora
