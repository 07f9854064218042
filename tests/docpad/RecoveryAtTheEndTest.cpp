#include <gtest/gtest.h>

#include "docpad/DocPadWorld.h"

namespace velmora {
namespace {

class RecoveryAtTheEnd : public ::testing::Test, protected test::DocPadWorld {};

TEST_F(RecoveryAtTheEnd, WhatIsKeptStaysWhateverAnOpenBoxDoesAfterwards) {
    type("text");
    pad.keepForRecovery();
    ASSERT_TRUE(folder.has("docpad.recovery1"));
    const std::string kept = folder.read("docpad.recovery1");
    // A question that is open while the program ends is answered No.
    messages.willAnswer(false);
    messages.whileOpen([&] { recovery.seal(); });
    pad.New();
    pad.keepForRecovery();
    EXPECT_EQ(text.text, "");
    EXPECT_EQ(folder.read("docpad.recovery1"), kept);
}

TEST_F(RecoveryAtTheEnd, AnOfferThatTheEndCutsOffIsMadeAgain) {
    programs.own = "an earlier run";
    RecoveryFile(folder.path(), files, programs, clock).keep("text", "");
    programs.own = "this run";
    messages.willAnswer(false);
    messages.whileOpen([&] { recovery.seal(); });
    pad.offerRecovery();
    EXPECT_TRUE(folder.has("docpad.recovery1"));
}

}  // namespace
}  // namespace velmora
