#include "platform/NumberText.h"

#include <gtest/gtest.h>

#include <cfloat>

namespace velmora {
namespace {

TEST(NumberText, WritesWholeNumbersWithoutAPoint) {
    EXPECT_EQ("20", numberText(20));
    EXPECT_EQ("-3", numberText(-3));
    EXPECT_EQ("0", numberText(0));
    EXPECT_EQ("0", numberText(-0.0));
    EXPECT_EQ("123456789012345", numberText(123456789012345));
    EXPECT_EQ("999999999999999", numberText(999999999999999));
}

TEST(NumberText, PutsAZeroBeforeThePoint) {
    EXPECT_EQ("0.5", numberText(0.5));
    EXPECT_EQ("-0.5", numberText(-0.5));
    EXPECT_EQ("5.2", numberText(5.2));
}

TEST(NumberText, KeepsFifteenDigits) {
    EXPECT_EQ("0.333333333333333", numberText(1.0 / 3));
    EXPECT_EQ("0.666666666666667", numberText(2.0 / 3));
    EXPECT_EQ("33.3333333333333", numberText(100.0 / 3));
    EXPECT_EQ("0.3", numberText(0.1 + 0.2));
    EXPECT_EQ("1", numberText(0.9999999999999999));
}

TEST(NumberText, WritesAnExponentFromFifteenOn) {
    EXPECT_EQ("100000000000000", numberText(1e14));
    EXPECT_EQ("1E+15", numberText(1e15));
    EXPECT_EQ("9.9999998E+15", numberText(9999999800000000));
    EXPECT_EQ("1E+15", numberText(999999999999999.9));
    EXPECT_EQ("1.79769313486232E+308", numberText(DBL_MAX));
    EXPECT_EQ("-1E+100", numberText(-1e100));
}

TEST(NumberText, WritesAnExponentForWhatNeedsMoreThanFifteenDecimals) {
    EXPECT_EQ("0.00001", numberText(0.00001));
    EXPECT_EQ("0.000000000000001", numberText(1e-15));
    EXPECT_EQ("1E-16", numberText(1e-16));
    EXPECT_EQ("8.33333333333333E-02", numberText(1.0 / 12));
    EXPECT_EQ("0.0625", numberText(1.0 / 16));
}

}  // namespace
}  // namespace velmora
