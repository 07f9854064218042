#include "platform/ProfileFile.h"

#include <gmock/gmock.h>

namespace velmora {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

constexpr std::size_t kMany = 1000;

std::string valueIn(const std::string& text, std::string_view section, std::string_view key) {
    return ProfileFile(text, CodePage::western()).value(section, key, "default", kMany);
}

TEST(ProfileFile, FindsKeysInTheirSectionsWhateverTheCaseAndTheLineEnds) {
    for (const std::string text :
         {"[One]\nkey=1\n[Two]\nKey=2\n", "[One]\r\nkey=1\r\n[Two]\r\nKey=2",
          "[One]\rkey=1\r[Two]\rKey=2"}) {
        EXPECT_EQ(valueIn(text, "one", "KEY"), "1");
        EXPECT_EQ(valueIn(text, "TWO", "key"), "2");
    }
    EXPECT_EQ(valueIn("[M\xFCller]\nn=1", "M\xDCLLER", "N"), "1");
}

TEST(ProfileFile, WhatIsMissingHasTheDefaultAndAnEmptyValueIsEmpty) {
    EXPECT_EQ(valueIn("", "a", "b"), "default");
    EXPECT_EQ(valueIn("[a]\nb=", "a", "b"), "");
    EXPECT_EQ(valueIn("[a]\nb=1", "a", "c"), "default");
    EXPECT_EQ(valueIn("b=1\n[a]\n", "a", "b"), "default");
    EXPECT_EQ(valueIn("b=1\n[a]\n", "", "b"), "default");
}

TEST(ProfileFile, TheFirstSectionAndTheFirstKeyOfANameCount) {
    EXPECT_EQ(valueIn("[a]\nx=1\nX=2\n[A]\nx=3\ny=4", "a", "x"), "1");
    EXPECT_EQ(valueIn("[a]\nx=1\n[A]\ny=4", "a", "y"), "default");
}

TEST(ProfileFile, BlanksAroundNamesAndValuesDoNotCount) {
    EXPECT_EQ(valueIn("  [ a ]  \n\t x \t=  one two \t", " a ", " x "), "one two");
    EXPECT_EQ(valueIn("[a]\nx=a=b", "a", "x"), "a=b");
}

TEST(ProfileFile, OnePairOfEqualQuotesIsTakenOff) {
    EXPECT_EQ(valueIn("[a]\nx=\" one \"", "a", "x"), " one ");
    EXPECT_EQ(valueIn("[a]\nx=''one''", "a", "x"), "'one'");
    EXPECT_EQ(valueIn("[a]\nx=\"one'", "a", "x"), "\"one'");
    EXPECT_EQ(valueIn("[a]\nx=\"", "a", "x"), "\"");
}

TEST(ProfileFile, CommentsAndLinesWithoutEqualsAreNoKeys) {
    EXPECT_EQ(valueIn("[a]\n;x=1\nx\nx=2", "a", "x"), "2");
    EXPECT_EQ(valueIn("[a]\n[b\nx=1", "a", "x"), "1") << "a bracket that is not closed";
}

TEST(ProfileFile, ASectionEndsAtTheFirstClosingBracket) {
    EXPECT_EQ(valueIn("[a]b]\nx=1", "a", "x"), "1");
    EXPECT_EQ(valueIn("[a]b]\nx=1", "a]b", "x"), "default");
}

TEST(ProfileFile, TheByte26EndsTheFile) {
    EXPECT_EQ(valueIn("[a]\nx=1\n\x1Ay=2\n", "a", "x"), "1");
    EXPECT_EQ(valueIn("[a]\nx=1\n\x1A\ny=2\n", "a", "y"), "default");
    EXPECT_THAT(ProfileFile::headerLines("[a]\n\x1A[b]"), ElementsAre("a"));
}

TEST(ProfileFile, ValuesAndDefaultsAreCutAtTheirLength) {
    const ProfileFile file("[a]\nx=12345", CodePage::western());
    EXPECT_EQ(file.value("a", "x", "", 3), "123");
    EXPECT_EQ(file.value("a", "x", "", 5), "12345");
    EXPECT_EQ(file.value("a", "y", "abcdef", 3), "abc");
}

TEST(ProfileFile, TheKeysOfASectionComeInTheirOrderAndRepeated) {
    const ProfileFile file("[a]\nSmith, Bob=1\nx =2\n;c=3\nX=4\n", CodePage::western());
    EXPECT_THAT(file.keysOf("A", kMany), ElementsAre("Smith, Bob", "x", "X"));
    EXPECT_THAT(file.keysOf("b", kMany), IsEmpty());
}

TEST(ProfileFile, KeysThatHaveNoRoomAreLeftOut) {
    const ProfileFile file("[a]\n12345=\n123=\n1=\n", CodePage::western());
    EXPECT_THAT(file.keysOf("a", 10), ElementsAre("12345", "123"));
    EXPECT_THAT(file.keysOf("a", 9), ElementsAre("12345"));
    EXPECT_THAT(file.keysOf("a", 5), IsEmpty());
}

TEST(ProfileFile, HeaderLinesBeginWithABracketAndLoseTheirLastByte) {
    EXPECT_THAT(ProfileFile::headerLines("[a,b]\r\n [c]\n[d] \n[\n[e\nx=1\n[f]"),
                ElementsAre("a,b", "d]", "", "", "f"));
}

}  // namespace
}  // namespace velmora
