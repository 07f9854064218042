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

}  // namespace
}  // namespace velmora
