#include "platform/controls/models/PadRows.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <random>

namespace velmora {
namespace {

using ::testing::ElementsAre;

// Each character is ten pixels wide.
PadWidths plainWidths() {
    PadWidths widths;
    widths.of.fill(10 * 64);
    widths.tab = 40 * 64;
    return widths;
}

std::vector<std::string> rowsOf(const PadRows& rows, const std::string& text) {
    std::vector<std::string> result;
    for (std::size_t row = 0; row < rows.count(); ++row)
        result.push_back(text.substr(rows.begin(row), rows.begin(row + 1) - rows.begin(row)));
    return result;
}

// Rows of `characters` characters.
std::vector<std::string> wrapped(const std::string& text, int characters,
                                 const PadWidths& widths = plainWidths()) {
    PadRows rows;
    rows.wrap(text, widths, characters * 10 * 64);
    return rowsOf(rows, text);
}

TEST(PadRows, LinesAreWrappedBehindABlankAndKeepTheirEnds) {
    EXPECT_THAT(wrapped("one two three\r\nfour\nfive\r\r", 8),
                ElementsAre("one two ", "three\r\n", "four\n", "five\r", "\r", ""));
    EXPECT_THAT(wrapped("", 8), ElementsAre(""));
    EXPECT_THAT(wrapped("\r\n", 8), ElementsAre("\r\n", ""));
    EXPECT_THAT(wrapped("12345678", 8), ElementsAre("12345678"));
}

TEST(PadRows, AWordThatIsLongerThanARowIsCutWhereTheRowIsFull) {
    EXPECT_THAT(wrapped("a 12345678901234567 b", 8),
                ElementsAre("a ", "12345678", "90123456", "7 b"));
    EXPECT_THAT(wrapped("ab", 0), ElementsAre("a", "b")) << "one character at least";
}

TEST(PadRows, BlanksHangOverTheEndOfARow) {
    EXPECT_THAT(wrapped("1234567     8", 8), ElementsAre("1234567     ", "8"));
}

TEST(PadRows, AHyphenEndsARowButNotThatOfANumber) {
    EXPECT_THAT(wrapped("tea-cosy", 6), ElementsAre("tea-", "cosy"));
    EXPECT_THAT(wrapped("at 555-0199", 8), ElementsAre("at ", "555-0199"));
}

TEST(PadRows, AWidthThatIsLearnedLaterHoldsForWhatIsTypedFromThenOn) {
    PadWidths widths = plainWidths();
    widths.of['W'] = 0;
    PadRows rows;
    rows.wrap("abcdef gh", widths, 8 * 10 * 64);
    widths.of['W'] = 60 * 64;
    rows.learn(widths);
    EXPECT_THAT(rowsOf(rows, "abcdef gh"), ElementsAre("abcdef ", "gh"));
    rows.change("abcdef ghW", 9, 0, 1);
    EXPECT_THAT(rowsOf(rows, "abcdef ghW"), ElementsAre("abcdef ", "ghW"));
    rows.change("abcdef ghiW", 9, 0, 1);
    EXPECT_THAT(rowsOf(rows, "abcdef ghiW"), ElementsAre("abcdef ", "ghi", "W"));
}

TEST(PadRows, TabsReachToTheNextStop) {
    EXPECT_THAT(wrapped("a\tbcde", 8), ElementsAre("a\tbcde"));
    EXPECT_THAT(wrapped("a\tbcdef", 8), ElementsAre("a\t", "bcdef"));
}

TEST(PadRows, AMarkIsNeverPartedFromItsLetter) {
    PadWidths widths = plainWidths();
    widths.of['^'] = 0;
    widths.joins['^'] = true;
    EXPECT_THAT(wrapped("abc^^de", 3, widths), ElementsAre("abc^^", "de"));
}

TEST(PadRows, NoRowIsEndless) {
    PadWidths widths = plainWidths();
    widths.of['0'] = 0;
    for (const auto& text : {std::string(100'000, ' '), std::string(100'000, '0')})
        EXPECT_EQ(wrapped(text, 8, widths).size(), 50u);
}

TEST(PadRows, TheRowOfAPositionIsThatOfItsCharacter) {
    PadRows rows;
    rows.wrap("abcdef\ng", plainWidths(), 3 * 10 * 64);
    EXPECT_EQ(rows.at(0), 0u);
    EXPECT_EQ(rows.at(2), 0u);
    EXPECT_EQ(rows.at(3), 1u);
    EXPECT_EQ(rows.at(6), 1u);
    EXPECT_EQ(rows.at(7), 2u);
    EXPECT_EQ(rows.at(100), 2u);
}

// What a change leaves is what wrapping all of the text anew gives.
TEST(PadRows, FollowEveryChangeAsIfAllWereWrappedAnew) {
    std::mt19937 random(20260312);
    const auto upTo = [&random](std::size_t most) {
        return std::uniform_int_distribution<std::size_t>(0, most)(random);
    };
    const std::string signs = "ab c-d\t\r\n  efgh^";
    PadWidths widths = plainWidths();
    widths.of['^'] = 0;
    widths.joins['^'] = true;
    for (int round = 0; round < 40; ++round) {
        std::string text;
        PadRows rows;
        rows.wrap(text, widths, 6 * 10 * 64);
        for (int change = 0; change < 200; ++change) {
            const std::size_t position = upTo(text.size());
            const std::size_t removed = upTo(std::min<std::size_t>(text.size() - position, 9));
            std::string inserted;
            for (std::size_t i = upTo(12); i > 0; --i)
                inserted += signs[upTo(signs.size() - 1)];
            text.replace(position, removed, inserted);
            rows.change(text, position, removed, inserted.size());
            ASSERT_EQ(rowsOf(rows, text), wrapped(text, 6, widths));
        }
    }
}

}  // namespace
}  // namespace velmora
