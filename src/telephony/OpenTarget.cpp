#include "telephony/OpenTarget.h"

#include <algorithm>

#include "platform/Text.h"

namespace velmora {
namespace {

// A single letter in front of a colon is a drive.
constexpr std::size_t kShortestScheme = 2;

bool isLetter(char c) {
    return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z');
}

bool isDigit(char c) {
    return c >= '0' && c <= '9';
}

std::string_view withoutEdges(std::string_view text) {
    const auto isEdge = [](char c) { return c == ' ' || c == '\0'; };
    while (!text.empty() && isEdge(text.front()))
        text.remove_prefix(1);
    while (!text.empty() && isEdge(text.back()))
        text.remove_suffix(1);
    return text;
}

std::string lowerScheme(std::string_view text) {
    std::string scheme(text.substr(0, text.find(':')));
    std::ranges::transform(scheme, scheme.begin(), [](char c) {
        return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c;
    });
    return scheme;
}

}  // namespace

bool hasScheme(std::string_view text) {
    const std::size_t colon = text.find(':');
    if (colon == std::string_view::npos || colon < kShortestScheme || !isLetter(text.front()))
        return false;
    const std::string_view scheme = text.substr(0, colon), rest = text.substr(colon + 1);
    const bool isName = std::ranges::all_of(
        scheme, [](char c) { return isLetter(c) || isDigit(c) || c == '+' || c == '-'; });
    return isName && (rest.empty() || !isDigit(rest.front()));
}

std::string webTarget(std::string_view webPage) {
    const std::string_view text = withoutEdges(webPage);
    if (text.empty())
        return {};
    if (!hasScheme(text))
        return "http://" + std::string(text);
    return lowerScheme(text) == "file" ? std::string() : std::string(text);
}

std::string attachmentTarget(std::string_view attachment, std::string_view folder) {
    const std::string_view text = withoutEdges(attachment);
    if (text.empty() || text.front() == '/' || hasScheme(text))
        return std::string(text);
    return std::string(folder) + "/" + std::string(text);
}

}  // namespace velmora
