#include "telephony/KeypadNumber.h"

#include <gtest/gtest.h>

namespace velmora {
namespace {

TEST(KeypadNumber, AKeyPutsItsCharacterBehindTheNumber) {
    EXPECT_EQ(withKey("", '5'), "5");
    EXPECT_EQ(withKey("555", ','), "555,");
    EXPECT_EQ(withKey(std::string(1000, '1'), '*').size(), 1001U);
}

TEST(KeypadNumber, BackTakesTheLastCharacterAndLeavesAnEmptyNumber) {
    EXPECT_EQ(withoutLast("55,"), "55");
    EXPECT_EQ(withoutLast("5"), "");
    EXPECT_EQ(withoutLast(""), "");
}

}  // namespace
}  // namespace velmora
