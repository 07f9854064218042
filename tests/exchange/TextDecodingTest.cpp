#include "exchange/TextDecoding.h"

#include <gtest/gtest.h>

namespace velmora {
namespace {

bool isUtf8(std::string_view text) {
    Utf8Check whole;
    whole.feed(text);
    Utf8Check single;
    for (std::size_t i = 0; i < text.size(); ++i)
        single.feed(text.substr(i, 1));
    EXPECT_EQ(whole.isUtf8(), single.isUtf8());
    return whole.isUtf8();
}

struct Decoded {
    std::string text;
    std::uint64_t replaced;
    bool operator==(const Decoded&) const = default;
};

// The same whether a text comes in one piece or in single bytes.
Decoded decoded(TextEncoding encoding, std::string_view bytes) {
    TextDecoder whole(encoding, CodePage::western());
    Decoded once{};
    whole.feed(bytes, once.text);
    whole.end(once.text);
    once.replaced = whole.replaced();
    TextDecoder single(encoding, CodePage::western());
    Decoded pieces{};
    for (std::size_t i = 0; i < bytes.size(); ++i)
        single.feed(bytes.substr(i, 1), pieces.text);
    single.end(pieces.text);
    pieces.replaced = single.replaced();
    EXPECT_EQ(once, pieces);
    return once;
}

std::ostream& operator<<(std::ostream& out, const Decoded& decoded) {
    return out << decoded.text << " with " << decoded.replaced;
}

TEST(Utf8Check, NeedsACharacterBeyondAscii) {
    EXPECT_FALSE(isUtf8(""));
    EXPECT_FALSE(isUtf8("Ann,Smith"));
    EXPECT_TRUE(isUtf8("Ren\xC3\xA9"));
    EXPECT_TRUE(isUtf8("\xE2\x82\xAC \xF0\x9F\x98\x80 \xF4\x8F\xBF\xBF"));
}

TEST(Utf8Check, RefusesALoneByteOfTheCodePage) {
    EXPECT_FALSE(isUtf8("Ren\xE9"));
    EXPECT_FALSE(isUtf8("Ren\xE9,Smith"));
    EXPECT_FALSE(isUtf8("caf\xC3\xA9 and caf\xE9"));
}

TEST(Utf8Check, RefusesCharactersThatAreCutShortTooLongOrNone) {
    EXPECT_FALSE(isUtf8("caf\xC3"));
    EXPECT_FALSE(isUtf8("\x80"));
    EXPECT_FALSE(isUtf8("\xC0\xAF"));
    EXPECT_FALSE(isUtf8("\xE0\x80\xAF"));
    EXPECT_FALSE(isUtf8("\xED\xA0\x80"));
    EXPECT_FALSE(isUtf8("\xF0\x80\x80\x80"));
    EXPECT_FALSE(isUtf8("\xF4\x90\x80\x80"));
    EXPECT_FALSE(isUtf8("\xF5\x80\x80\x80"));
}

TEST(TextMark, NamesTheEncoding) {
    EXPECT_EQ(markOf("\xEF\xBB\xBFx").encoding, TextEncoding::Utf8);
    EXPECT_EQ(markOf("\xEF\xBB\xBFx").length, 3U);
    EXPECT_EQ(markOf("\xFF\xFEx").encoding, TextEncoding::Utf16LeastFirst);
    EXPECT_EQ(markOf("\xFE\xFFx").encoding, TextEncoding::Utf16MostFirst);
    EXPECT_EQ(markOf("\xFE\xFFx").length, 2U);
    EXPECT_EQ(markOf("\xEF\xBB").length, 0U);
    EXPECT_EQ(markOf("").encoding, TextEncoding::CodePageBytes);
}

TEST(TextDecoder, LeavesBytesOfTheCodePageAsTheyAre) {
    EXPECT_EQ(decoded(TextEncoding::CodePageBytes, "Ren\xE9\x81"), (Decoded{"Ren\xE9\x81", 0}));
}

TEST(TextDecoder, TurnsUtf8IntoTheCodePageAndCountsWhatHasNoPlaceThere) {
    EXPECT_EQ(decoded(TextEncoding::Utf8, "Ren\xC3\xA9 \xE2\x82\xAC"),
              (Decoded{"Ren\xE9 \x80", 0}));
    EXPECT_EQ(decoded(TextEncoding::Utf8, "\xC4\x99x\xF0\x9F\x98\x80"), (Decoded{"?x?", 2}));
}

TEST(TextDecoder, TurnsEachByteThatIsNoUtf8IntoAQuestionMark) {
    EXPECT_EQ(decoded(TextEncoding::Utf8, "a\xFF\x62"), (Decoded{"a?b", 1}));
    EXPECT_EQ(decoded(TextEncoding::Utf8, "\xC3\xC3\xA9"), (Decoded{"?\xE9", 1}));
    EXPECT_EQ(decoded(TextEncoding::Utf8, "\xE2\x82x"), (Decoded{"??x", 2}));
    EXPECT_EQ(decoded(TextEncoding::Utf8, "x\xE2\x82"), (Decoded{"x??", 2}));
}

TEST(TextDecoder, TurnsUtf16OfBothOrdersIntoTheCodePage) {
    EXPECT_EQ(decoded(TextEncoding::Utf16LeastFirst, std::string_view("R\0\xE9\0\xAC\x20", 6)),
              (Decoded{"R\xE9\x80", 0}));
    EXPECT_EQ(decoded(TextEncoding::Utf16MostFirst, std::string_view("\0R\0\xE9", 4)),
              (Decoded{"R\xE9", 0}));
}

TEST(TextDecoder, TakesTwoHalvesOfUtf16ForOneCharacterAndALoneOneForNone) {
    EXPECT_EQ(decoded(TextEncoding::Utf16MostFirst, std::string_view("\xD8\x3D\xDE\0\0x", 6)),
              (Decoded{"?x", 1}));
    EXPECT_EQ(decoded(TextEncoding::Utf16MostFirst, std::string_view("\xD8\x3D\0x\xDE\0", 6)),
              (Decoded{"?x?", 2}));
    EXPECT_EQ(decoded(TextEncoding::Utf16MostFirst, std::string_view("\xD8\x3D\0", 3)),
              (Decoded{"??", 2}));
}

}  // namespace
}  // namespace velmora
