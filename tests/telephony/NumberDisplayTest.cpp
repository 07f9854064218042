#include "telephony/NumberDisplay.h"

#include <gtest/gtest.h>

namespace velmora {
namespace {

TEST(NumberDisplay, AKeyPutsItsCharacterBehindTheNumber) {
    EXPECT_EQ(withKey("", '5'), "5");
    EXPECT_EQ(withKey("555", ','), "555,");
    EXPECT_EQ(withKey(std::string(1000, '1'), '*').size(), 1001U);
}

TEST(NumberDisplay, BackTakesTheLastCharacterAndLeavesAnEmptyNumber) {
    EXPECT_EQ(withoutLast("55,"), "55");
    EXPECT_EQ(withoutLast("5"), "");
    EXPECT_EQ(withoutLast(""), "");
}

}  // namespace
}  // namespace velmora
