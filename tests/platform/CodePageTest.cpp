#include "platform/CodePage.h"

#include <gtest/gtest.h>

namespace velmora {
namespace {

TEST(CodePage, EveryByteSurvivesTheRoadToUnicodeAndBackInEveryPage) {
    for (const int number : {874, 1250, 1251, 1252, 1253, 1254, 1255, 1256, 1257, 1258}) {
        SCOPED_TRACE(number);
        const CodePage page = CodePage::numbered(number);
        EXPECT_EQ(page.number(), number);
        for (int byte = 0; byte < 256; ++byte) {
            const std::string text(1, static_cast<char>(byte));
            EXPECT_EQ(page.fromUtf8(page.toUtf8(text)), text) << byte;
        }
    }
}

TEST(CodePage, WesternLettersHaveTheirPlaces) {
    const CodePage& page = CodePage::western();
    EXPECT_EQ(page.toUnicode('\x80'), U'\u20AC');
    EXPECT_EQ(page.toUnicode('\xE9'), U'\u00E9');
    EXPECT_EQ(page.toUnicode('\x9F'), U'\u0178');
    EXPECT_EQ(page.toUnicode('\x81'), char32_t{0x81});
    EXPECT_EQ(page.fromUnicode(U'\u20AC'), '\x80');
    EXPECT_EQ(page.fromUnicode(U'\u0416'), std::nullopt);
}

TEST(CodePage, CaseFollowsTheTableAndNothingElse) {
    const CodePage& page = CodePage::western();
    EXPECT_EQ(page.upper("abz\xE9\xFE\x9A\x9C\x9E\xFF"), "ABZ\xC9\xDE\x8A\x8C\x8E\x9F");
    EXPECT_EQ(page.upper("\xDF\xB5\x83\xF7\xD7"), "\xDF\xB5\x83\xF7\xD7");
    EXPECT_EQ(page.lower("ABZ\xC9\xDE\x8A\x9F"), "abz\xE9\xFE\x9A\xFF");
    EXPECT_EQ(page.lower("\xD7\xB5"), "\xD7\xB5");
}

TEST(CodePage, ATurkishDotlessILeavesTheLatinLettersAlone) {
    const CodePage page = CodePage::numbered(1254);
    EXPECT_EQ(page.upper("i\xFD"), "I\xFD");
    EXPECT_EQ(page.lower("I\xDD"), "i\xDD");
}

TEST(CodePage, TextsCompareByUpperCasedUnsignedBytes) {
    const CodePage& page = CodePage::western();
    EXPECT_TRUE(page.equalIgnoringCase("o'neil \xE9", "O'NEIL \xC9"));
    EXPECT_FALSE(page.equalIgnoringCase("a", "ab"));
    EXPECT_LT(page.compareIgnoringCase("z", "\xE9"), 0);
    EXPECT_LT(page.compareIgnoringCase("Smith", "smith, A"), 0);
    EXPECT_GT(page.compareIgnoringCase("_", "Z"), 0);
    EXPECT_EQ(page.compareIgnoringCase("DOE", "doe"), 0);
}

TEST(CodePage, WhatThePageLacksBecomesAQuestionMark) {
    EXPECT_EQ(CodePage::western().fromUtf8("\xD0\x96\xE2\x82\xAC\xF0\x9F\x98\x80\xFF"), "?\x80??");
    EXPECT_EQ(CodePage::western().fromUtf8("\xC3"), "?");
    // Longer than need be, halves of a pair, beyond the last character, cut short: no characters.
    EXPECT_EQ(CodePage::western().fromUtf8("\xE0\x81\x81"), "???");
    EXPECT_EQ(CodePage::western().fromUtf8("\xC1\x81"), "??");
    EXPECT_EQ(CodePage::western().fromUtf8("\xF0\x80\x81\x81"), "????");
    EXPECT_EQ(CodePage::western().fromUtf8("\xED\xA0\x80"), "?");
    EXPECT_EQ(CodePage::western().fromUtf8("\xF4\x90\x80\x80"), "????");
    EXPECT_EQ(CodePage::western().fromUtf8("\xE2\x82x"), "??x");
}

TEST(CodePage, ALanguageChoosesItsPage) {
    EXPECT_EQ(CodePage::forLocale("en_US.UTF-8").number(), 1252);
    EXPECT_EQ(CodePage::forLocale("pl_PL").number(), 1250);
    EXPECT_EQ(CodePage::forLocale("el").number(), 1253);
    EXPECT_EQ(CodePage::forLocale("th_TH").number(), 874);
    EXPECT_EQ(CodePage::forLocale("C").number(), 1252);
    EXPECT_EQ(CodePage::forLocale("").number(), 1252);
    EXPECT_EQ(CodePage::numbered(932).number(), 1252);
}

}  // namespace
}  // namespace velmora
