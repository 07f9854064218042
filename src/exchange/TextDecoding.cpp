#include "exchange/TextDecoding.h"

#include <algorithm>

namespace velmora {
namespace {

constexpr std::string_view kUtf8Mark = "\xEF\xBB\xBF";
constexpr std::string_view kLeastFirstMark = "\xFF\xFE";
constexpr std::string_view kMostFirstMark = "\xFE\xFF";

constexpr char32_t kHighHalves = 0xD800;
constexpr char32_t kLowHalves = 0xDC00;
constexpr char32_t kBehindHalves = 0xE000;

bool isAscii(char byte) {
    return static_cast<unsigned char>(byte) < 0x80;
}

// How many bytes the character has that begins so; 0 for what begins none.
std::size_t lengthOf(unsigned char first) {
    if (first < 0x80)
        return 1;
    if (first >= 0xC2 && first <= 0xDF)
        return 2;
    if (first >= 0xE0 && first <= 0xEF)
        return 3;
    return first >= 0xF0 && first <= 0xF4 ? 4 : 0;
}

// The character of sound bytes.
char32_t characterOf(std::string_view bytes) {
    constexpr unsigned char kBits[] = {0, 0x7F, 0x1F, 0x0F, 0x07};
    char32_t character = static_cast<unsigned char>(bytes[0]) & kBits[bytes.size()];
    for (const char byte : bytes.substr(1))
        character = character << 6 | (static_cast<unsigned char>(byte) & 0x3F);
    return character;
}

}  // namespace

TextMark markOf(std::string_view begin) {
    if (begin.starts_with(kUtf8Mark))
        return {TextEncoding::Utf8, kUtf8Mark.size()};
    if (begin.starts_with(kLeastFirstMark))
        return {TextEncoding::Utf16LeastFirst, kLeastFirstMark.size()};
    if (begin.starts_with(kMostFirstMark))
        return {TextEncoding::Utf16MostFirst, kMostFirstMark.size()};
    return {};
}

bool Utf8Check::feed(std::string_view bytes) {
    while (sound_ && !bytes.empty()) {
        if (missing_ == 0) {
            const auto special = std::find_if_not(bytes.begin(), bytes.end(), isAscii);
            bytes.remove_prefix(static_cast<std::size_t>(special - bytes.begin()));
            if (bytes.empty())
                break;
        }
        take(static_cast<unsigned char>(bytes.front()));
        bytes.remove_prefix(1);
    }
    return sound_;
}

// The second byte is held within closer limits where a shorter form, half a character of UTF-16 or
// a number beyond the last character would come out.
void Utf8Check::take(unsigned char byte) {
    if (missing_ > 0) {
        sound_ = byte >= least_ && byte <= most_;
        --missing_;
        least_ = 0x80;
        most_ = 0xBF;
        return;
    }
    const std::size_t length = lengthOf(byte);
    sound_ = length > 1;
    beyondAscii_ = true;
    missing_ = static_cast<int>(length) - 1;
    least_ = byte == 0xE0 ? 0xA0 : byte == 0xF0 ? 0x90 : 0x80;
    most_ = byte == 0xED ? 0x9F : byte == 0xF4 ? 0x8F : 0xBF;
}

void TextDecoder::feed(std::string_view bytes, std::string& text) {
    if (encoding_ == TextEncoding::CodePageBytes)
        text += bytes;
    else if (encoding_ == TextEncoding::Utf8)
        feedUtf8(bytes, text);
    else
        feedUtf16(bytes, text);
}

void TextDecoder::end(std::string& text) {
    if (highHalf_ != 0)
        putUnknown(text);
    highHalf_ = 0;
    for (std::size_t i = 0; i < held_.size(); ++i)
        putUnknown(text);
    held_.clear();
}

void TextDecoder::feedUtf8(std::string_view bytes, std::string& text) {
    for (const char byte : bytes) {
        if (held_.empty() && isAscii(byte)) {
            text += byte;
            continue;
        }
        held_ += byte;
        Utf8Check check;
        if (check.feed(held_)) {
            if (!check.isUtf8())
                continue;  // more bytes of it are to come
            put(characterOf(held_), text);
            held_.clear();
            continue;
        }
        // What was held is no character; the last byte may begin one.
        held_.pop_back();
        const bool alone = held_.empty();
        for (std::size_t i = 0; i < held_.size(); ++i)
            putUnknown(text);
        held_.clear();
        if (isAscii(byte))
            text += byte;
        else if (!alone && lengthOf(static_cast<unsigned char>(byte)) > 1)
            held_ = byte;
        else
            putUnknown(text);
    }
}

void TextDecoder::feedUtf16(std::string_view bytes, std::string& text) {
    for (const char byte : bytes) {
        if (held_.empty()) {
            held_ = byte;
            continue;
        }
        const auto first = static_cast<unsigned char>(held_[0]);
        const auto second = static_cast<unsigned char>(byte);
        held_.clear();
        const char32_t unit = encoding_ == TextEncoding::Utf16LeastFirst
                                  ? first | static_cast<char32_t>(second) << 8
                                  : second | static_cast<char32_t>(first) << 8;
        const bool low = unit >= kLowHalves && unit < kBehindHalves;
        if (highHalf_ != 0) {
            const char32_t high = highHalf_;
            highHalf_ = 0;
            if (low) {
                put(0x10000 + ((high - kHighHalves) << 10) + (unit - kLowHalves), text);
                continue;
            }
            putUnknown(text);
        }
        if (unit >= kHighHalves && unit < kLowHalves)
            highHalf_ = unit;
        else if (low)
            putUnknown(text);
        else
            put(unit, text);
    }
}

void TextDecoder::put(char32_t character, std::string& text) {
    if (const auto byte = codePage_.fromUnicode(character))
        text += *byte;
    else
        putUnknown(text);
}

void TextDecoder::putUnknown(std::string& text) {
    text += '?';
    ++replaced_;
}

}  // namespace velmora
