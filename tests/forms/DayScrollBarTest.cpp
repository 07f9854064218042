#include "platform/controls/DayScrollBar.h"

#include <gtest/gtest.h>

#include <QWidget>

namespace velmora {
namespace {

using namespace std::chrono;

// Beside a paper with room for 10 of the 48 slots of a day, each of 24 pixels.
class DayScrollBarTest : public ::testing::Test {
  protected:
    DayScrollBarTest() {
        bar.fit(now(), minutes(0));
        window.show();
    }
    [[nodiscard]] DayGeometry now() const {
        DayGeometry places = places_;
        places.scroll = bar.value();
        return places;
    }
    void show(minutes begin, minutes end) { bar.bringIntoView({begin, end}, now()); }

    DayGeometry places_{.paper = QRect(1, 1, 398, 240)};
    QWidget window;
    DayScrollBar bar{&window};
};

TEST_F(DayScrollBarTest, ItsRangeIsWhatThePaperHasBeyondTheView) {
    EXPECT_EQ(bar.maximum(), 38 * 24);
    EXPECT_EQ(bar.pageStep(), 240);
    EXPECT_EQ(bar.singleStep(), 24);
    places_.paper.setHeight(2000);
    bar.fit(now(), minutes(0));
    EXPECT_EQ(bar.maximum(), 0);
}

TEST_F(DayScrollBarTest, WhatIsInViewStaysWhenSlotsComeBeforeTheFirst) {
    places_.shown = {hours(8), kDay};
    bar.fit(now(), hours(8));
    bar.setValue(100);
    places_.shown = {hours(6), kDay};
    bar.fit(now(), hours(8));
    EXPECT_EQ(bar.value(), 100 + 4 * 24);
    places_.shown = {hours(7), kDay};
    bar.fit(now(), hours(6));
    EXPECT_EQ(bar.value(), 100 + 2 * 24);
}

TEST_F(DayScrollBarTest, ASlotIsBroughtToTheTopWhereverItStands) {
    for (const int from : {0, 500, 912}) {
        bar.setValue(from);
        bar.bringToTop(hours(7), now());
        EXPECT_EQ(bar.value(), 14 * 24) << from;
    }
    bar.bringToTop(hours(23), now());
    EXPECT_EQ(bar.value(), bar.maximum());
}

TEST_F(DayScrollBarTest, ScrollsAsLittleAsBringsASpanIntoView) {
    show(hours(1), hours(2));
    EXPECT_EQ(bar.value(), 0) << "it is";
    show(hours(6), hours(7));
    EXPECT_EQ(bar.value(), 4 * 24);
    show(hours(1), hours(2));
    EXPECT_EQ(bar.value(), 2 * 24);
    show(hours(3), hours(20));
    EXPECT_EQ(bar.value(), 6 * 24) << "of a long one, its begin";
}

TEST_F(DayScrollBarTest, ScrollsTowardsAPointAboveOrBelow) {
    bar.scrollTowards({50, 300}, now());
    EXPECT_EQ(bar.value(), 12);
    bar.scrollTowards({50, 120}, now());
    EXPECT_EQ(bar.value(), 12) << "within it, nothing";
    bar.scrollTowards({50, -2}, now());
    EXPECT_EQ(bar.value(), 0);
}

TEST_F(DayScrollBarTest, ShowsWhereItIsWantedAndOfUse) {
    bar.place(places_.paper, true);
    EXPECT_TRUE(bar.isVisible());
    EXPECT_TRUE(places_.paper.contains(bar.geometry()));
    bar.place(places_.paper, false);
    EXPECT_FALSE(bar.isVisible());
    places_.paper.setHeight(2000);
    bar.fit(now(), minutes(0));
    bar.place(places_.paper, true);
    EXPECT_FALSE(bar.isVisible());
}

}  // namespace
}  // namespace velmora
