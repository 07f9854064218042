#include "docpad/LetterHead.h"

#include <array>

#include "platform/Text.h"

namespace velmora {
namespace {

constexpr const char* kLineEnd = "\r\n";

bool isDigit(char byte) {
    return byte >= '0' && byte <= '9';
}

// Steps over a sign, if there is one.
std::size_t behindSign(std::string_view text, std::size_t at) {
    return at < text.size() && (text[at] == '+' || text[at] == '-') ? at + 1 : at;
}

std::size_t behindDigits(std::string_view text, std::size_t at) {
    while (at < text.size() && isDigit(text[at]))
        ++at;
    return at;
}

bool standsOnAddressLine(std::string_view code) {
    return isNumber(code) || code.find('-') != std::string_view::npos;
}

}  // namespace

bool isNumber(std::string_view text) {
    text = trimBlanks(text);
    std::size_t at = behindSign(text, 0);
    std::size_t digits = 0;
    bool hasPoint = false;
    for (; at < text.size(); ++at) {
        const bool isComma = text[at] == ',' && digits > 0 && !hasPoint;
        const bool isPoint = text[at] == '.' && !hasPoint;
        if (isDigit(text[at]))
            ++digits;
        else if (isPoint)
            hasPoint = true;
        else if (!isComma)
            break;
    }
    if (digits == 0)
        return false;
    if (at == text.size())
        return true;
    constexpr std::string_view kExponents = "EeDd";
    if (kExponents.find(text[at]) == std::string_view::npos)
        return false;
    const std::size_t exponent = behindSign(text, at + 1);
    return exponent < text.size() && behindDigits(text, exponent) == text.size();
}

LetterStyle readLetterStyle(const SettingsStore& settings) {
    return {settings.read(keys::LetterTab), settings.read(keys::DefaultSalutation)};
}

std::string nameLine(RecordView entry) {
    std::string name(entry.text(Field::Title));
    for (const Field field : {Field::First, Field::Last}) {
        name += ' ';
        name += entry.text(field);
    }
    return std::string(trimBlanks(name));
}

std::string letterHead(RecordView entry, const LetterStyle& style) {
    const auto text = [&entry](Field field) { return std::string(entry.text(field)); };
    std::string head;
    if (!text(Field::Last).empty())
        head += nameLine(entry) + kLineEnd;
    for (const Field field : {Field::Position, Field::Company})
        if (!text(field).empty())
            head += text(field) + kLineEnd;
    head += text(Field::Address1);
    for (const Field field : {Field::Address2, Field::Address3, Field::Address4})
        if (!text(field).empty())
            head += kLineEnd + text(field);
    const std::string code = text(Field::PostalCode);
    if (!code.empty())
        head += (standsOnAddressLine(code) ? " " : kLineEnd) + code;
    head += kLineEnd;
    if (!text(Field::Country).empty())
        head += text(Field::Country) + kLineEnd;
    head += kLineEnd;
    if (style.tab)
        head += '\t';
    const std::string salutation = text(Field::Salutation);
    const std::string& greeting = salutation.empty() ? style.defaultSalutation : salutation;
    if (!greeting.empty())
        head += greeting + kLineEnd;
    return head;
}

}  // namespace velmora
