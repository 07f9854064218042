#include "docpad/PadSearch.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <utility>
#include <vector>

#include "docpad/PadFakes.h"
#include "support/FakeMessages.h"

namespace velmora {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

using Selection = std::pair<std::size_t, std::size_t>;

class PadSearchTest : public ::testing::Test {
  protected:
    void pad(const std::string& bytes, std::size_t caret = 0) {
        text.text = bytes;
        text.select(caret, 0);
    }
    [[nodiscard]] Selection selection() const { return {text.start, text.length}; }
    void expectHit(bool hit, Selection expected) {
        EXPECT_TRUE(hit);
        EXPECT_EQ(selection(), expected);
        EXPECT_THAT(messages.takeShown(), IsEmpty());
    }
    void expectNoHit(bool hit, Selection expected) {
        EXPECT_FALSE(hit);
        EXPECT_EQ(selection(), expected) << "the selection stays";
        EXPECT_THAT(messages.takeShown(), ElementsAre("tell|Search Complete|Text not found."));
    }

    test::FakePadText text;
    test::FakeMessages messages;
    PadSearch search{text, CodePage::western(), messages};
};

TEST_F(PadSearchTest, FindsOneAfterTheOtherAndStopsBehindTheLast) {
    pad("abcabc");
    expectHit(search.Find("abc", true), {0, 3});
    expectHit(search.FindNext("abc", true), {3, 3});
    expectNoHit(search.FindNext("abc", true), {3, 3});
    expectHit(search.Find("abc", true), {3, 3});
}

TEST_F(PadSearchTest, FindBeginsOneCharacterBeforeTheCaret) {
    pad("abcabc", 3);
    expectHit(search.Find("cab", true), {2, 3});
}

TEST_F(PadSearchTest, FindNextOverlapsTheLastHitByOneCharacter) {
    pad("aaaa");
    expectHit(search.Find("aa", true), {0, 2});
    expectHit(search.FindNext("aa", true), {1, 2});
    expectHit(search.FindNext("aa", true), {2, 2});
    expectNoHit(search.FindNext("aa", true), {2, 2});
}

TEST_F(PadSearchTest, FindAgainAfterTheSecondHitFindsTheFirst) {
    pad("aaaa");
    search.Find("aa", true);
    expectHit(search.FindNext("aa", true), {1, 2});
    expectHit(search.Find("aa", true), {0, 2});
    expectHit(search.FindNext("aa", true), {1, 2});
}

TEST_F(PadSearchTest, ASearchForOneCharacterNeverMovesOn) {
    pad("banana");
    for (int i = 0; i < 3; ++i)
        expectHit(i == 0 ? search.Find("a", true) : search.FindNext("a", true), {1, 1});
}

TEST_F(PadSearchTest, BlanksAroundTheTextCountOnlyWithMatchCase) {
    pad("one word two");
    expectHit(search.Find(" word ", false), {4, 6});
    pad("one word two");
    expectHit(search.Find(" word ", true), {3, 6});
}

TEST_F(PadSearchTest, BothBytesOfALineEndCount) {
    pad("one\r\ntwo\r\none");
    expectHit(search.Find("one", true), {0, 3});
    expectHit(search.FindNext("one", true), {10, 3});
}

TEST_F(PadSearchTest, MatchCaseTellsLettersApartAndTheOtherWayDoesNot) {
    pad("Caf\xC9");
    expectNoHit(search.Find("caf\xE9", true), {0, 0});
    expectHit(search.Find("caf\xE9", false), {0, 4});
}

TEST_F(PadSearchTest, FindNextBeforeAnyFindBeginsAtTheBeginning) {
    pad("abc", 3);
    expectHit(search.FindNext("abc", true), {0, 3});
}

TEST_F(PadSearchTest, ASelectionPastTheEndIsCutByTheControl) {
    pad("one word");
    expectHit(search.Find("word  ", false), {4, 4});
}

TEST_F(PadSearchTest, AnEmptyTextToFindIsFoundWithNothingSelected) {
    pad("abc");
    expectHit(search.Find("", true), {0, 0});
    expectHit(search.Find("", false), {0, 0});
}

TEST_F(PadSearchTest, AnEmptyPadHoldsNothing) {
    pad("");
    expectNoHit(search.Find("", true), {0, 0});
    expectNoHit(search.Find("a", false), {0, 0});
}

TEST_F(PadSearchTest, PositionsBeyondSixteenBitsWork) {
    pad(std::string(70000, '.') + "abc");
    expectHit(search.Find("abc", true), {70000, 3});
    expectNoHit(search.FindNext("abc", true), {70000, 3});
}

}  // namespace
}  // namespace velmora
