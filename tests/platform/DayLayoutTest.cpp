#include "platform/calendar/DayLayout.h"

#include <gtest/gtest.h>

namespace velmora {
namespace {

using namespace std::chrono;

TimeSpan span(int begin, int end) {
    return {minutes(begin), minutes(end)};
}

struct Place {
    int column;
    int columns;

    friend bool operator==(const Place&, const Place&) = default;
};

std::vector<Place> places(const std::vector<TimeSpan>& spans) {
    std::vector<Place> result;
    for (const PlacedBlock& block : placeSideBySide(spans, minutes(15)))
        result.push_back({block.column, block.columns});
    return result;
}

TEST(DayLayout, GivesBlocksThatDoNotOverlapTheWholeWidth) {
    EXPECT_EQ(places({span(540, 600), span(600, 630), span(700, 730)}),
              (std::vector<Place>{{0, 1}, {0, 1}, {0, 1}}));
    EXPECT_TRUE(places({}).empty());
}

TEST(DayLayout, PlacesOverlappingBlocksSideBySide) {
    EXPECT_EQ(places({span(540, 600), span(570, 630)}), (std::vector<Place>{{0, 2}, {1, 2}}));
}

TEST(DayLayout, AnswersInTheOrderGivenHoweverTheTimesLie) {
    EXPECT_EQ(places({span(570, 630), span(540, 600), span(900, 930)}),
              (std::vector<Place>{{1, 2}, {0, 2}, {0, 1}}));
}

TEST(DayLayout, UsesAColumnAgainAsSoonAsItIsFree) {
    // The second column is free again for the third block, and all share the width of the run.
    EXPECT_EQ(places({span(540, 720), span(550, 600), span(600, 660)}),
              (std::vector<Place>{{0, 2}, {1, 2}, {1, 2}}));
}

TEST(DayLayout, ARunOfOverlapsSharesItsColumnsEvenWhereOnlyNeighboursTouch) {
    EXPECT_EQ(places({span(540, 600), span(570, 660), span(630, 700), span(700, 730)}),
              (std::vector<Place>{{0, 2}, {1, 2}, {0, 2}, {0, 1}}));
}

TEST(DayLayout, BlocksOfTheSameTimesKeepTheirOrder) {
    EXPECT_EQ(places({span(540, 600), span(540, 600), span(540, 600)}),
              (std::vector<Place>{{0, 3}, {1, 3}, {2, 3}}));
}

TEST(DayLayout, DrawsAShortBlockLongEnoughToBeTakenHoldOf) {
    const auto blocks = placeSideBySide({span(540, 545), span(550, 580)}, minutes(15));
    EXPECT_EQ(blocks[0].drawn, span(540, 555));
    EXPECT_EQ(blocks[1].columns, 2);
    const auto last = placeSideBySide({span(1435, 1440)}, minutes(15));
    EXPECT_EQ(last[0].drawn, span(1425, 1440));
}

TEST(DayLayout, NeverLetsTwoBlocksShareAPlace) {
    std::vector<TimeSpan> spans;
    spans.reserve(200);
    for (int i = 0; i < 200; ++i)
        spans.push_back(span(i * 37 % 1380, i * 37 % 1380 + 20 + i * 13 % 40));
    const auto blocks = placeSideBySide(spans, minutes(15));
    for (std::size_t a = 0; a < blocks.size(); ++a)
        for (std::size_t b = a + 1; b < blocks.size(); ++b) {
            const bool overlap = blocks[a].drawn.begin < blocks[b].drawn.end &&
                                 blocks[b].drawn.begin < blocks[a].drawn.end;
            if (overlap) {
                EXPECT_NE(blocks[a].column, blocks[b].column);
                EXPECT_EQ(blocks[a].columns, blocks[b].columns);
            }
        }
}

}  // namespace
}  // namespace velmora
