#include "core/RecoverySlots.h"

#include <gtest/gtest.h>

#include "platform/Failure.h"
#include "support/MemoryFiles.h"

namespace velmora {
namespace {

class RecoverySlotsTest : public testing::Test {
  protected:
    test::MemoryFiles files;
    RecoverySlots slots{"/v\\note.recovery", "The note", files};
};

TEST_F(RecoverySlotsTest, ACopyKeepsInOneFileAndRemovesIt) {
    slots.keep("a");
    slots.keep("b");
    EXPECT_EQ(files["/v\\note.recovery1"], "b");
    EXPECT_FALSE(files.has("/v\\note.recovery2"));
    slots.discard();
    EXPECT_FALSE(files.has("/v\\note.recovery1"));
    slots.discard();
}

TEST_F(RecoverySlotsTest, EachCopyHasAFileOfItsOwn) {
    RecoverySlots other{"/v\\note.recovery", "The note", files};
    slots.keep("a");
    other.keep("b");
    EXPECT_EQ(files["/v\\note.recovery1"], "a");
    EXPECT_EQ(files["/v\\note.recovery2"], "b");
    other.discard();
    EXPECT_TRUE(files.has("/v\\note.recovery1"));
}

TEST_F(RecoverySlotsTest, TellsWhenAllPlacesAreTaken) {
    for (const std::string& path : slots.all())
        files[path] = "x";
    try {
        slots.keep("a");
        FAIL();
    } catch (const Failure& failure) {
        EXPECT_STREQ(failure.what(),
                     "The note can not be kept for recovery: all places for it are taken.");
    }
    EXPECT_EQ(files["/v\\note.recovery9"], "x");
}

TEST_F(RecoverySlotsTest, AFailedWriteClaimsNoPlace) {
    files.unwritable = "/v\\note.recovery1";
    EXPECT_THROW(slots.keep("a"), Failure);
    files["/v\\note.recovery1"] = "of another copy";
    slots.discard();
    EXPECT_EQ(files["/v\\note.recovery1"], "of another copy");
}

TEST_F(RecoverySlotsTest, WhatIsTakenOverBecomesTheOnlyFileOfTheCopy) {
    slots.keep("a");
    files["/v\\note.recovery5"] = "left";
    slots.takeOver("/v\\note.recovery5", "mine");
    EXPECT_FALSE(files.has("/v\\note.recovery1"));
    slots.keep("mine too");
    EXPECT_EQ(files["/v\\note.recovery5"], "mine too");
}

TEST_F(RecoverySlotsTest, OnceSealedNothingIsKeptOrRemoved) {
    slots.keep("a");
    slots.seal();
    slots.keep("b");
    slots.discard();
    slots.forget("/v\\note.recovery1");
    EXPECT_EQ(files["/v\\note.recovery1"], "a");
}

TEST_F(RecoverySlotsTest, AClaimedPlaceIsThatOfTheCopy) {
    EXPECT_EQ(slots.claim(), "/v\\note.recovery1");
    files["/v\\note.recovery1"] = "by another thread";
    slots.keep("a");
    EXPECT_EQ(files["/v\\note.recovery1"], "a");
}

}  // namespace
}  // namespace velmora
