#include "platform/CodePage.h"

#include <iconv.h>
#include <locale.h>
#include <wctype.h>

#include <algorithm>
#include <cwchar>
#include <locale>

namespace velmora {
namespace {

using UnicodeTable = std::array<char32_t, 256>;

constexpr std::array<char32_t, 32> kWestern80To9F = {
    0x20AC, 0x81,   0x201A, 0x192,  0x201E, 0x2026, 0x2020, 0x2021, 0x2C6,  0x2030, 0x160,
    0x2039, 0x152,  0x8D,   0x17D,  0x8F,   0x90,   0x2018, 0x2019, 0x201C, 0x201D, 0x2022,
    0x2013, 0x2014, 0x2DC,  0x2122, 0x161,  0x203A, 0x153,  0x9D,   0x17E,  0x178};

UnicodeTable westernTable() {
    UnicodeTable table{};
    for (char32_t byte = 0; byte < 256; ++byte)
        table[byte] = byte;
    std::copy(kWestern80To9F.begin(), kWestern80To9F.end(), table.begin() + 0x80);
    return table;
}

std::optional<UnicodeTable> systemTable(int number) {
    const std::string name = (number == 874 ? "CP" : "WINDOWS-") + std::to_string(number);
    iconv_t converter = iconv_open("UTF-32LE", name.c_str());
    if (converter == reinterpret_cast<iconv_t>(-1))
        return std::nullopt;
    UnicodeTable table{};
    for (unsigned byte = 0; byte < 256; ++byte) {
        char in = static_cast<char>(byte);
        char* source = &in;
        std::size_t sourceLeft = 1;
        std::array<unsigned char, 16> out{};
        char* target = reinterpret_cast<char*>(out.data());
        std::size_t targetLeft = out.size();
        iconv(converter, nullptr, nullptr, nullptr, nullptr);
        // A converter may hold a letter back until it knows whether an accent follows.
        const bool converted =
            iconv(converter, &source, &sourceLeft, &target, &targetLeft) != std::size_t(-1) &&
            iconv(converter, nullptr, nullptr, &target, &targetLeft) != std::size_t(-1) &&
            targetLeft == out.size() - 4;
        table[byte] = converted ? char32_t(out[0]) | char32_t(out[1]) << 8 | char32_t(out[2]) << 16
                                : char32_t(byte);
    }
    iconv_close(converter);
    return table;
}

// Case mapping of the characters themselves, never of the user's locale: Turkish rules would
// break the texts that the program compares.
class UnicodeCase {
  public:
    UnicodeCase() : locale_(newlocale(LC_CTYPE_MASK, "C.UTF-8", nullptr)) {}
    ~UnicodeCase() {
        if (locale_)
            freelocale(locale_);
    }
    UnicodeCase(const UnicodeCase&) = delete;
    UnicodeCase& operator=(const UnicodeCase&) = delete;

    [[nodiscard]] char32_t upper(char32_t c) const {
        if (locale_)
            return static_cast<char32_t>(towupper_l(static_cast<wint_t>(c), locale_));
        return c >= U'a' && c <= U'z' ? c - 32 : c;
    }
    [[nodiscard]] char32_t lower(char32_t c) const {
        if (locale_)
            return static_cast<char32_t>(towlower_l(static_cast<wint_t>(c), locale_));
        return c >= U'A' && c <= U'Z' ? c + 32 : c;
    }

  private:
    locale_t locale_;
};

int numberForLanguage(std::string_view language) {
    struct Row {
        std::string_view language;
        int number;
    };
    static constexpr std::array<Row, 39> kRows{{
        {"pl", 1250},  {"cs", 1250},  {"sk", 1250},  {"hu", 1250}, {"sl", 1250}, {"hr", 1250},
        {"bs", 1250},  {"ro", 1250},  {"sq", 1250},  {"ru", 1251}, {"uk", 1251}, {"be", 1251},
        {"bg", 1251},  {"mk", 1251},  {"sr", 1251},  {"kk", 1251}, {"ky", 1251}, {"mn", 1251},
        {"tt", 1251},  {"el", 1253},  {"tr", 1254},  {"az", 1254}, {"uz", 1254}, {"he", 1255},
        {"iw", 1255},  {"yi", 1255},  {"ar", 1256},  {"fa", 1256}, {"ur", 1256}, {"ug", 1256},
        {"et", 1257},  {"lv", 1257},  {"lt", 1257},  {"vi", 1258}, {"th", 874},  {"tk", 1250},
        {"hsb", 1250}, {"dsb", 1250}, {"ckb", 1256},
    }};
    for (const Row& row : kRows)
        if (row.language == language)
            return row.number;
    return 1252;
}

void appendUtf8(std::string& out, char32_t c) {
    if (c < 0x80) {
        out += static_cast<char>(c);
    } else if (c < 0x800) {
        out += static_cast<char>(0xC0 | c >> 6);
        out += static_cast<char>(0x80 | (c & 0x3F));
    } else {
        out += static_cast<char>(0xE0 | c >> 12);
        out += static_cast<char>(0x80 | (c >> 6 & 0x3F));
        out += static_cast<char>(0x80 | (c & 0x3F));
    }
}

using Utf8Decoder = std::codecvt<char32_t, char8_t, std::mbstate_t>;

// Reads one character at `position` and moves it on; nothing for bytes that are no UTF-8, of which
// one is passed over.
std::optional<char32_t> nextUtf8(std::string_view utf8, std::size_t& position) {
    if (const auto byte = static_cast<unsigned char>(utf8[position]); byte < 0x80) {
        ++position;
        return byte;
    }
    static const auto& decoder = std::use_facet<Utf8Decoder>(std::locale::classic());
    const auto* from = reinterpret_cast<const char8_t*>(utf8.data()) + position;
    const auto* to = reinterpret_cast<const char8_t*>(utf8.data()) + utf8.size();
    std::mbstate_t state{};
    char32_t character = 0;
    char32_t* behind = &character;
    const char8_t* next = from;
    decoder.in(state, from, to, next, &character, &character + 1, behind);
    if (behind == &character) {
        ++position;
        return std::nullopt;
    }
    position += static_cast<std::size_t>(next - from);
    return character;
}

}  // namespace

CodePage::CodePage(int number, const UnicodeTable& unicode) : number_(number), unicode_(unicode) {
    const UnicodeCase unicodeCase;
    for (unsigned i = 0; i < 256; ++i)
        upper_[i] = lower_[i] = static_cast<char>(i);
    for (unsigned i = 0; i < 256; ++i) {
        const char32_t character = unicode_[i];
        const char32_t capital = unicodeCase.upper(character);
        if (capital == character || unicodeCase.lower(capital) != character)
            continue;
        if (const auto byte = fromUnicode(capital)) {
            upper_[i] = *byte;
            lower_[index(*byte)] = static_cast<char>(i);
        }
    }
}

const CodePage& CodePage::western() {
    static const CodePage page(1252, westernTable());
    return page;
}

CodePage CodePage::numbered(int number) {
    const bool known = number == 874 || (number >= 1250 && number <= 1258 && number != 1252);
    if (known)
        if (const auto table = systemTable(number))
            return CodePage(number, *table);
    return western();
}

CodePage CodePage::forLocale(std::string_view localeName) {
    return numbered(numberForLanguage(localeName.substr(0, localeName.find_first_of("_.@-"))));
}

std::optional<char> CodePage::fromUnicode(char32_t character) const {
    if (character < 0x80)
        return static_cast<char>(character);
    const auto found = std::find(unicode_.begin() + 0x80, unicode_.end(), character);
    if (found == unicode_.end())
        return std::nullopt;
    return static_cast<char>(found - unicode_.begin());
}

std::string CodePage::upper(std::string_view text) const {
    std::string result(text);
    for (char& byte : result)
        byte = upper(byte);
    return result;
}

std::string CodePage::lower(std::string_view text) const {
    std::string result(text);
    for (char& byte : result)
        byte = lower(byte);
    return result;
}

bool CodePage::equalIgnoringCase(std::string_view a, std::string_view b) const {
    return a.size() == b.size() &&
           std::equal(a.begin(), a.end(), b.begin(),
                      [this](char x, char y) { return upper(x) == upper(y); });
}

int CodePage::compareIgnoringCase(std::string_view a, std::string_view b) const {
    const std::size_t shared = std::min(a.size(), b.size());
    for (std::size_t i = 0; i < shared; ++i) {
        const int difference =
            static_cast<unsigned char>(upper(a[i])) - static_cast<unsigned char>(upper(b[i]));
        if (difference != 0)
            return difference;
    }
    return a.size() < b.size() ? -1 : a.size() > b.size() ? 1 : 0;
}

std::string CodePage::toUtf8(std::string_view text) const {
    std::string result;
    result.reserve(text.size());
    for (const char byte : text)
        appendUtf8(result, toUnicode(byte));
    return result;
}

std::string CodePage::fromUtf8(std::string_view utf8) const {
    std::string result;
    result.reserve(utf8.size());
    for (std::size_t position = 0; position < utf8.size();) {
        const auto character = nextUtf8(utf8, position);
        result += character ? fromUnicode(*character).value_or('?') : '?';
    }
    return result;
}

}  // namespace velmora
