#include "platform/controls/models/PadLetters.h"

namespace velmora {
namespace {

bool isAsciiWord(char32_t c) {
    return (c >= '0' && c <= '9') || (c >= 'A' && c <= 'Z') || (c >= 'a' && c <= 'z') || c == '_';
}

// Signs beyond ASCII that the code pages hold, with those of the punctuation block.
bool isSign(char32_t c) {
    return c < 0xAA || c == 0xAB || (c > 0xAB && c < 0xB5) || (c > 0xB5 && c < 0xBA) ||
           (c > 0xBA && c < 0xC0) || c == 0xD7 || c == 0xF7 || (c >= 0x2000 && c <= 0x20CF) ||
           (c >= 0x2100 && c <= 0x2BFF) || c == 0x060C || c == 0x061B || c == 0x061F ||
           (c >= 0x02C6 && c <= 0x02DD) || c == 0x0E3F;
}

bool isMark(char32_t c) {
    return (c >= 0x0300 && c <= 0x036F) || (c >= 0x05B0 && c <= 0x05BD) || c == 0x05BF ||
           c == 0x05C1 || c == 0x05C2 || (c >= 0x064B && c <= 0x0652) || c == 0x0E31 ||
           (c >= 0x0E34 && c <= 0x0E3A) || (c >= 0x0E47 && c <= 0x0E4E);
}

}  // namespace

PadLetters::PadLetters(const CodePage& codePage) {
    for (int i = 0; i < 256; ++i) {
        const char byte = static_cast<char>(i);
        const char32_t c = codePage.toUnicode(byte);
        joins_[index(byte)] = isMark(c);
        word_[index(byte)] = c < 0x80 ? isAsciiWord(c) : !isSign(c);
    }
}

PadLetters::Sort PadLetters::sortOf(char byte) const {
    if (byte == '\r' || byte == '\n')
        return Sort::LineEnd;
    if (byte == ' ' || byte == '\t')
        return Sort::Blank;
    return inWord(byte) ? Sort::Word : Sort::Other;
}

std::size_t PadLetters::next(const PadBuffer& text, std::size_t position) const {
    if (position >= text.size())
        return text.size();
    if (text.isPair(position))
        return position + 2;
    const bool endsLine = sortOf(text.bytes()[position]) == Sort::LineEnd;
    ++position;
    while (!endsLine && position < text.size() && joins(text.bytes()[position]))
        ++position;
    return position;
}

std::size_t PadLetters::previous(const PadBuffer& text, std::size_t position) const {
    if (position == 0)
        return 0;
    --position;
    if (position > 0 && text.isPair(position - 1))
        return position - 1;
    while (position > 0 && joins(text.bytes()[position]) &&
           sortOf(text.bytes()[position - 1]) != Sort::LineEnd)
        --position;
    return position;
}

std::size_t PadLetters::nextWord(const PadBuffer& text, std::size_t position) const {
    if (position >= text.size())
        return text.size();
    const std::string& bytes = text.bytes();
    const Sort sort = sortOf(bytes[position]);
    if (sort == Sort::LineEnd)
        return next(text, position);
    while (position < bytes.size() && sortOf(bytes[position]) == sort)
        ++position;
    while (position < bytes.size() && sortOf(bytes[position]) == Sort::Blank)
        ++position;
    return position;
}

std::size_t PadLetters::previousWord(const PadBuffer& text, std::size_t position) const {
    if (position == 0)
        return 0;
    const std::string& bytes = text.bytes();
    if (sortOf(bytes[position - 1]) == Sort::LineEnd)
        return previous(text, position);
    while (position > 0 && sortOf(bytes[position - 1]) == Sort::Blank)
        --position;
    if (position == 0 || sortOf(bytes[position - 1]) == Sort::LineEnd)
        return position;
    const Sort sort = sortOf(bytes[position - 1]);
    while (position > 0 && sortOf(bytes[position - 1]) == sort)
        --position;
    return position;
}

PadBuffer::Selection PadLetters::wordAt(const PadBuffer& text, std::size_t position) const {
    const std::string& bytes = text.bytes();
    const bool atEnd = position >= bytes.size() || sortOf(bytes[position]) == Sort::LineEnd;
    if (atEnd && (position == 0 || sortOf(bytes[position - 1]) == Sort::LineEnd))
        return {position, position};
    const Sort sort = sortOf(bytes[atEnd ? position - 1 : position]);
    std::size_t begin = position;
    while (begin > 0 && sortOf(bytes[begin - 1]) == sort)
        --begin;
    std::size_t end = position;
    while (end < bytes.size() && sortOf(bytes[end]) == sort)
        ++end;
    return {begin, end};
}

}  // namespace velmora
