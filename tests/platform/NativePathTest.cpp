#include "platform/NativePath.h"

#include <gtest/gtest.h>

namespace velmora {
namespace {

TEST(NativePath, HasAFolderAndAName) {
    EXPECT_EQ(NativePath("/a/b").folder(), NativePath("/a/"));
    EXPECT_EQ(NativePath("/a/b").name(), "b");
    EXPECT_EQ(NativePath("b").folder(), NativePath());
    EXPECT_EQ(NativePath("b").name(), "b");
    EXPECT_EQ(NativePath("/").name(), "");
}

TEST(NativePath, TheNameHasAStemAndAnExtension) {
    EXPECT_EQ(NativePath("/x.y/qel.mdb").stem(), "qel");
    EXPECT_EQ(NativePath("/x.y/qel.mdb").extension(), ".mdb");
    EXPECT_EQ(NativePath("/x.y/qel").stem(), "qel");
    EXPECT_EQ(NativePath("/x.y/qel").extension(), "");
    EXPECT_EQ(NativePath(".hidden").stem(), ".hidden");
    EXPECT_EQ(NativePath("a.b.c").extension(), ".c");
}

TEST(NativePath, OtherPathsAreMadeFromIt) {
    EXPECT_EQ(NativePath("/a/b").sibling("c"), NativePath("/a/c"));
    EXPECT_EQ(NativePath("b").sibling("c"), NativePath("c"));
    EXPECT_EQ(NativePath("/a/b").withEnding(".x"), NativePath("/a/b.x"));
    EXPECT_EQ(NativePath("/a") / "b", NativePath("/a/b"));
    EXPECT_EQ(NativePath("/") / "b", NativePath("/b"));
    EXPECT_EQ(NativePath() / "b", NativePath("b"));
}

}  // namespace
}  // namespace velmora
