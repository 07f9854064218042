#include "platform/controls/DayHit.h"

#include <gtest/gtest.h>

namespace velmora {
namespace {

using namespace std::chrono;

// A day of 24 pixels to half an hour, from midnight, in a paper whose top is at 0.
class DayHitTest : public ::testing::Test {
  protected:
    static DayBlock block(minutes begin, minutes end, int column = 0, int columns = 1) {
        return {{}, {begin, end}, {{begin, end}, column, columns}};
    }
    [[nodiscard]] DayHit at(const std::vector<DayBlock>& blocks, int block, int y) const {
        const QRect rect = places.blockRect(blocks.at(static_cast<std::size_t>(block)).place);
        return dayHitAt(places, blocks, {rect.center().x(), y});
    }
    [[nodiscard]] QRect rectOf(const DayBlock& block) const {
        return places.blockRect(block.place);
    }

    DayGeometry places{.paper = QRect(0, 0, 400, 600)};
};

TEST_F(DayHitTest, AnEdgeIsTakenHoldOfUpToThreePixelsBesideIt) {
    const std::vector<DayBlock> blocks{block(hours(2), hours(4))};
    const QRect rect = rectOf(blocks[0]);
    for (int off = -3; off <= 3; ++off) {
        EXPECT_EQ(at(blocks, 0, rect.top() + off).grip, Grip::Begin) << off;
        EXPECT_EQ(at(blocks, 0, rect.bottom() + off).grip, Grip::End) << off;
        EXPECT_EQ(at(blocks, 0, rect.top() + off).index, 0) << off;
    }
    EXPECT_EQ(at(blocks, 0, rect.top() - 4).index, -1);
    EXPECT_EQ(at(blocks, 0, rect.bottom() + 4).index, -1);
    EXPECT_EQ(at(blocks, 0, rect.top() + 4).grip, Grip::Whole);
    EXPECT_EQ(at(blocks, 0, rect.center().y()).index, 0);
}

TEST_F(DayHitTest, TheLowerEdgeOfABlockWinsOverTheUpperEdgeOfTheNext) {
    for (const bool turned : {false, true}) {
        std::vector<DayBlock> blocks{block(hours(2), hours(4)), block(hours(4), hours(6))};
        if (turned)
            std::swap(blocks[0], blocks[1]);
        const int upper = turned ? 1 : 0;
        const DayHit hit = at(blocks, upper, places.yOf(hours(4)));
        EXPECT_EQ(hit.index, upper);
        EXPECT_EQ(hit.grip, Grip::End);
    }
}

TEST_F(DayHitTest, BlocksSideBySideAreHitEachInItsColumnAndNothingBetweenThem) {
    const std::vector<DayBlock> blocks{block(hours(2), hours(4), 0, 2),
                                       block(hours(2), hours(4), 1, 2)};
    const int y = places.yOf(hours(3));
    EXPECT_EQ(at(blocks, 0, y).index, 0);
    EXPECT_EQ(at(blocks, 1, y).index, 1);
    EXPECT_EQ(dayHitAt(places, blocks, {rectOf(blocks[0]).right() + 1, y}).index, -1);
}

TEST_F(DayHitTest, NothingIsHitOutsideThePaper) {
    const std::vector<DayBlock> blocks{block(hours(0), hours(1))};
    const int x = rectOf(blocks[0]).center().x();
    EXPECT_EQ(dayHitAt(places, blocks, {x, -1}).index, -1) << "though the edge is near";
    EXPECT_EQ(dayHitAt(places, blocks, {x, 1}).index, 0);
    places.scroll = places.slotHeight;
    EXPECT_EQ(dayHitAt(places, blocks, {x, 1}).grip, Grip::Whole) << "the edge is scrolled away";
}

}  // namespace
}  // namespace velmora
