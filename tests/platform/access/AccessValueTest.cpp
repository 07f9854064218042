#include "platform/access/AccessValue.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

namespace velmora::access {
namespace {

TEST(AccessMoment, CountsDaysFromTheEndOf1899) {
    EXPECT_EQ(momentText(0), "1899-12-30 00:00:00");
    EXPECT_EQ(momentText(44532), "2021-12-02 00:00:00");
    EXPECT_EQ(momentText(-728), "1898-01-01 00:00:00");
    EXPECT_EQ(momentText(-463126), "0632-01-01 00:00:00");
}

TEST(AccessMoment, TakesTheTimeForwardAlsoBeforeTheFirstDay) {
    EXPECT_EQ(momentText(44532.75), "2021-12-02 18:00:00");
    EXPECT_EQ(momentText(-728.75), "1898-01-01 18:00:00");
}

TEST(AccessMoment, CutsFractionsOfASecond) {
    EXPECT_EQ(momentText(44532 + 59.9 / 86400), "2021-12-02 00:00:59");
}

TEST(AccessMoment, MeansTheSecondThatANumberJustMisses) {
    for (int second = 0; second < 86400; ++second) {
        const auto text = momentText(36892 + second / 86400.0);
        ASSERT_TRUE(text);
        ASSERT_EQ(std::stoi(text->substr(17)), second % 60) << *text;
        ASSERT_EQ(std::stoi(text->substr(14, 2)), second / 60 % 60) << *text;
    }
}

TEST(AccessMoment, EndsWithTheYears100And9999) {
    EXPECT_EQ(momentText(-657434), "0100-01-01 00:00:00");
    EXPECT_EQ(momentText(-657435), std::nullopt);
    EXPECT_EQ(momentText(2958465.5), "9999-12-31 12:00:00");
    EXPECT_EQ(momentText(2958466), std::nullopt);
    EXPECT_EQ(momentText(std::numeric_limits<double>::quiet_NaN()), std::nullopt);
    EXPECT_EQ(momentText(std::numeric_limits<double>::infinity()), std::nullopt);
    EXPECT_EQ(momentText(1e300), std::nullopt);
}

TEST(AccessNumber, IsPlainDecimalText) {
    EXPECT_EQ(plainNumber("12.7500"), "12.75");
    EXPECT_EQ(plainNumber("244.0000"), "244");
    EXPECT_EQ(plainNumber("1.5e+03"), "1500");
    EXPECT_EQ(plainNumber("-2.5E-1"), "-0.25");
    EXPECT_EQ(plainNumber("100"), "100");
    EXPECT_EQ(plainNumber(""), "");
    EXPECT_EQ(plainNumber("1e"), "1e");
    EXPECT_EQ(plainNumber("1.0.0"), "1.0.0");
    EXPECT_EQ(plainNumber("Main St. 00"), "Main St. 00");
}

}  // namespace
}  // namespace velmora::access
