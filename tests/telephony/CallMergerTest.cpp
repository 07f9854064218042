#include "telephony/CallMerger.h"

#include <gtest/gtest.h>

namespace velmora {
namespace {

using namespace std::chrono_literals;

class CallMergerTest : public ::testing::Test {
  protected:
    bool isNew(const char* service, const char* number, std::chrono::milliseconds at) {
        return merger.isNew(service, number, CallMerger::Time() + at);
    }

    CallMerger merger;
};

TEST_F(CallMergerTest, OneCallThatTwoServicesReportWithinFiveSecondsIsOne) {
    EXPECT_TRUE(isNew("modem", "111", 0s));
    EXPECT_FALSE(isNew("phone", "111", 5s));
    EXPECT_TRUE(isNew("phone", "111", 5s + 1ms));
}

TEST_F(CallMergerTest, TheReportsOfOneServiceAreCallsEach) {
    for (int call = 0; call < 100; ++call)
        EXPECT_TRUE(isNew("modem", "111", call * 10ms));
}

TEST_F(CallMergerTest, AnotherNumberIsAnotherCall) {
    EXPECT_TRUE(isNew("modem", "111", 0s));
    EXPECT_TRUE(isNew("phone", "222", 1s));
}

TEST_F(CallMergerTest, TwoCallsAtOnceAreToldOnceEach) {
    EXPECT_TRUE(isNew("modem", "111", 0s));
    EXPECT_TRUE(isNew("modem", "222", 1s));
    EXPECT_FALSE(isNew("phone", "111", 2s));
    EXPECT_FALSE(isNew("phone", "222", 2s));
    EXPECT_TRUE(isNew("modem", "111", 3s));
    EXPECT_FALSE(isNew("phone", "111", 4s));
    EXPECT_FALSE(isNew("third", "111", 4s));
}

TEST_F(CallMergerTest, TheMarksBetweenTheDigitsMakeNoOtherNumber) {
    EXPECT_TRUE(isNew("modem", "5165551212", 0s));
    EXPECT_FALSE(isNew("phone", "(516) 555-1212", 1s));
    EXPECT_TRUE(isNew("modem", "", 2s));
    EXPECT_FALSE(isNew("phone", "", 2s));
    EXPECT_TRUE(isNew("phone", "anonymous", 3s));
}

}  // namespace
}  // namespace velmora
