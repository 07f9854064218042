// Reads any bytes as text of each code page and as UTF-8, and through the idioms that all share.

#include <algorithm>
#include <array>
#include <cmath>
#include <string>

#include "fuzz/Fuzzing.h"
#include "platform/CodePage.h"
#include "platform/Text.h"

namespace velmora {
namespace {

using fuzz::require;

const CodePage& pageOf(unsigned index) {
    static const std::array<CodePage, 10> pages{CodePage::numbered(874),  CodePage::numbered(1250),
                                                CodePage::numbered(1251), CodePage::numbered(1252),
                                                CodePage::numbered(1253), CodePage::numbered(1254),
                                                CodePage::numbered(1255), CodePage::numbered(1256),
                                                CodePage::numbered(1257), CodePage::numbered(1258)};
    return pages[index % pages.size()];
}

void checkPage(const CodePage& page, std::string_view text) {
    const std::string utf8 = page.toUtf8(text);
    require(page.fromUtf8(utf8) == text, "all bytes come back from UTF-8");
    const std::string read = page.fromUtf8(text);
    require(read.size() <= text.size(), "a character is one byte");
    require(page.fromUtf8(page.toUtf8(read)) == read, "what was read stays");
    const std::string upper = page.upper(text);
    require(upper.size() == text.size(), "case changes no length");
    require(page.upper(upper) == upper, "capitals are capitals");
    require(page.upper(page.lower(upper)) == upper, "small letters have their capitals");
    require(page.equalIgnoringCase(text, upper) && page.compareIgnoringCase(text, upper) == 0,
            "case does not count");
}

void checkOrder(const CodePage& page, std::string_view a, std::string_view b) {
    const int order = page.compareIgnoringCase(a, b);
    const int back = page.compareIgnoringCase(b, a);
    require((order < 0) == (back > 0) && (order == 0) == (back == 0), "an order has two sides");
    require((order == 0) == page.equalIgnoringCase(a, b), "equal is equal");
}

void checkCuts(std::string_view text) {
    const std::string_view trimmed = trimBlanks(text);
    require(trimmed == trimBlanks(trimmed), "trimmed is trimmed");
    require(trimmed.empty() || (trimmed.front() != ' ' && trimmed.back() != ' '), "no blanks");
    const std::string_view field = fieldText(text);
    require(field == fieldText(field), "a field's text is one");
}

void checkLineEnds(std::string_view text) {
    const std::string stored = withCrLf(text);
    const std::string shown = withLf(text);
    require(withCrLf(stored) == stored && withLf(shown) == shown, "line ends are settled at once");
    require(withLf(stored) == shown && withCrLf(shown) == stored, "line ends come back");
    require(shown.find('\r') == std::string::npos, "controls hold no CR");
}

void checkNumbers(std::string_view text) {
    const double number = readNumber(text);
    require(!std::isnan(number), "a number is one");
    const int whole = readWhole(text);
    if (std::fabs(number) < 1e9)
        require(whole == static_cast<int>(number), "the integer part");
}

void checkPlaces(std::string_view text, std::string_view what, std::size_t start) {
    const std::size_t found = findFrom(start, text, what);
    if (found != 0) {
        require(found >= start, "found behind the start");
        require(middle(text, found, what.size()) == what || what.empty(), "found what was sought");
    }
    require(left(text, start) == text.substr(0, std::min(start, text.size())), "the left part");
    require(middle(text, start, 3).size() <= 3, "no more than asked");
}

}  // namespace
}  // namespace velmora

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using namespace velmora;
    fuzz::Input input(data, size);
    const CodePage& page = pageOf(input.byte());
    const std::size_t start = 1 + input.byte();
    const std::string_view all = input.rest();
    const std::string_view line = input.line();
    checkPage(page, all);
    checkOrder(page, line, input.rest());
    checkCuts(all);
    checkLineEnds(all);
    checkNumbers(all);
    checkPlaces(input.rest(), line, start);
    return 0;
}
