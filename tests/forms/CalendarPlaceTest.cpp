#include "core/forms/CalendarPlace.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QDialog>
#include <QScreen>
#include <cstdlib>

#include "core/forms/DocPadColumn.h"
#include "forms/CalendarFixture.h"

namespace velmora {
namespace {

using CalendarPlaceTest = test::CalendarFixture;

TEST_F(CalendarPlaceTest, OpensInTheMiddleOfTheScreenInTheShapeItHad) {
    calendar.hide();
    calendar.place().setShape({1200, 700, false, 350});
    calendar.place().showCentred(0);
    ASSERT_TRUE(QTest::qWaitForWindowActive(&calendar));
    EXPECT_EQ(calendar.size(), QSize(1200, 700));
    EXPECT_TRUE(QTest::qWaitFor([this] { return calendar.docPad().width() == 350; }))
        << calendar.docPad().width();
    const QRect room = calendar.screen()->availableGeometry();
    const QPoint off = calendar.frameGeometry().center() - room.center();
    EXPECT_LE(std::abs(off.x()), 20);
    EXPECT_LE(std::abs(off.y()), 20);
    EXPECT_EQ(calendar.place().shape(), (WindowShape{1200, 700, false, 350}));
}

TEST_F(CalendarPlaceTest, AShapeThatTheScreenHasNoRoomForIsMadeSmaller) {
    calendar.hide();
    calendar.place().setShape({9000, 9000, false, 9000});
    calendar.place().showCentred(170);
    ASSERT_TRUE(QTest::qWaitForWindowActive(&calendar));
    const QRect room = calendar.screen()->availableGeometry();
    EXPECT_TRUE(QTest::qWaitFor([&] { return room.contains(calendar.frameGeometry()); }));
    EXPECT_LE(calendar.docPad().width(), 520);
}

TEST_F(CalendarPlaceTest, ComesBackMaximizedAndKnowsItsSizeBesideThat) {
    calendar.hide();
    calendar.place().setShape({1200, 700, true, 0});
    calendar.place().showCentred(0);
    ASSERT_TRUE(QTest::qWaitForWindowActive(&calendar));
    EXPECT_TRUE(QTest::qWaitFor([this] { return calendar.isMaximized(); }));
    EXPECT_EQ(calendar.place().shape(), (WindowShape{1200, 700, true, 0}));
}

TEST_F(CalendarPlaceTest, AMinimisedWindowIsBroughtBackAsItWas) {
    calendar.showMinimized();
    ASSERT_TRUE(QTest::qWaitFor([this] { return calendar.isMinimized(); }));
    calendar.place().bringToFront();
    EXPECT_FALSE(calendar.isMinimized());
    EXPECT_TRUE(calendar.isVisible());
    EXPECT_TRUE(QTest::qWaitForWindowActive(&calendar));
}

TEST_F(CalendarPlaceTest, ADialogThatWaitsForItsAnswerStaysInFront) {
    QDialog dialog(&calendar);
    dialog.setModal(true);
    dialog.show();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&dialog));
    calendar.place().bringToFront();
    EXPECT_TRUE(QTest::qWaitFor([&] { return QApplication::activeWindow() == &dialog; }));
}

TEST_F(CalendarPlaceTest, AWindowThatReachesBeyondTheScreenIsBroughtBackOnceAfterItWasShown) {
    const QRect room = calendar.screen()->availableGeometry();
    calendar.hide();
    calendar.place().showCentred(0);
    calendar.move(room.right() - 50, room.bottom() - 50);
    EXPECT_TRUE(QTest::qWaitFor([&] { return room.contains(calendar.frameGeometry()); }));
    const QPoint elsewhere = room.topLeft() + QPoint(room.width() / 2, room.height() / 2);
    calendar.move(elsewhere);
    calendar.repaint();
    EXPECT_EQ(calendar.pos(), elsewhere) << "where the user puts it, it stays";
}

}  // namespace
}  // namespace velmora
