#include "platform/Text.h"

#include <gtest/gtest.h>

#include "platform/Failure.h"

namespace velmora {
namespace {

using namespace std::string_literals;

TEST(Text, TrimmingCutsBlanksAndNothingElse) {
    EXPECT_EQ(trimBlanks("  a b  "), "a b");
    EXPECT_EQ(trimBlanks("\ta\r\n"), "\ta\r\n");
    EXPECT_EQ(trimBlanks("   "), "");
    EXPECT_EQ(trimBlanks(""), "");
    EXPECT_EQ(trimBlanks("a\0 "s), "a\0"s);
}

TEST(Text, AFieldReadsWithoutItsPaddingOfBlanksAndNuls) {
    EXPECT_EQ(fieldText("Smith\0 \0 "s), "Smith");
    EXPECT_EQ(fieldText("  Smith  "), "Smith");
    EXPECT_EQ(fieldText("\0\0\0"s), "");
    EXPECT_EQ(fieldText("   "), "");
    EXPECT_EQ(fieldText(" \0 "s), "");
    EXPECT_EQ(fieldText("a\0b "s), "a\0b"s);
}

TEST(Text, NumbersAreReadLeniently) {
    struct Row {
        const char* text;
        double number;
    };
    for (const Row& row :
         {Row{"08", 8}, Row{"9abc", 9}, Row{"abc", 0}, Row{"", 0}, Row{" 1 2", 12}, Row{"-7", -7},
          Row{"+7", 7}, Row{"1.5x", 1.5}, Row{".5", .5}, Row{".", 0}, Row{"1e2", 100},
          Row{"1D2", 100}, Row{"1e", 1}, Row{"1e+", 1}, Row{"&H10", 0}, Row{"1,5", 1},
          Row{"--1", 0}, Row{"7.", 7}}) {
        SCOPED_TRACE(row.text);
        EXPECT_DOUBLE_EQ(readNumber(row.text), row.number);
    }
}

TEST(Text, WholeNumbersRoundHalfToEvenAndTruncateWhenRead) {
    EXPECT_EQ(roundToWhole(2.5), 2);
    EXPECT_EQ(roundToWhole(3.5), 4);
    EXPECT_EQ(roundToWhole(-0.5), 0);
    EXPECT_THROW((void)roundToWhole(1e12), Failure);
    EXPECT_EQ(readWhole("7.9"), 7);
    EXPECT_EQ(readWhole("-7.9"), -7);
    EXPECT_EQ(readWhole("99999999999999"), 2147483647);
}

TEST(Text, ANumberAsTextHasALeadingBlankUnlessNegative) {
    EXPECT_EQ(numberWithLeadingBlank(0), " 0");
    EXPECT_EQ(numberWithLeadingBlank(12), " 12");
    EXPECT_EQ(numberWithLeadingBlank(-3), "-3");
}

TEST(Text, PositionsCountFromOneAndZeroIsNotFound) {
    EXPECT_EQ(findFrom(1, "abcabc", "b"), 2U);
    EXPECT_EQ(findFrom(3, "abcabc", "b"), 5U);
    EXPECT_EQ(findFrom(7, "abcabc", "b"), 0U);
    EXPECT_EQ(findFrom(1, "abc", "x"), 0U);
    EXPECT_EQ(findFrom(2, "abc", ""), 2U);
    EXPECT_EQ(findFrom(1, "", ""), 0U);
    EXPECT_EQ(findFrom(0, "abc", "a"), 0U);
}

TEST(Text, PartsOfATextEndWhereTheTextEnds) {
    EXPECT_EQ(middle("abc", 2), "bc");
    EXPECT_EQ(middle("abc", 2, 1), "b");
    EXPECT_EQ(middle("abc", 4), "");
    EXPECT_EQ(middle("abc", 0), "");
    EXPECT_EQ(left("abc", 5), "abc");
    EXPECT_EQ(left("abc", 2), "ab");
}

TEST(Text, LineEndsConvertBothWays) {
    EXPECT_EQ(withCrLf("a\nb\r\nc\rd"), "a\r\nb\r\nc\r\nd");
    EXPECT_EQ(withLf("a\r\nb\rc\n\n"), "a\nb\nc\n\n");
    EXPECT_EQ(withCrLf(""), "");
}

}  // namespace
}  // namespace velmora
