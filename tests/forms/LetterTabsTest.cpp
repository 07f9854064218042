#include "platform/controls/LetterTabs.h"

#include <gtest/gtest.h>

#include <QSignalSpy>

#include "forms/Widgets.h"
#include "platform/qt/Theme.h"

namespace velmora {
namespace {

class LetterTabsTest : public testing::Test {
  protected:
    LetterTabsTest() { tabs.resize(34, 558); }

    LetterTab& tab(int index) {
        return test::named<LetterTab>(tabs, ("Command23_" + std::to_string(index)).c_str());
    }

    LetterTabs tabs{QStringLiteral("Command23")};
};

TEST_F(LetterTabsTest, HasATabForEachLetterAndOneForTheRest) {
    for (int i = 0; i < 26; ++i) {
        EXPECT_EQ(QString(QChar(u'A' + i)), tab(i).text());
        EXPECT_EQ(QString(QChar(u'A' + i)), tab(i).accessibleName());
    }
    EXPECT_EQ(QStringLiteral("#"), tab(26).accessibleName());
    EXPECT_EQ(27, tabs.findChildren<LetterTab*>().size());
}

TEST_F(LetterTabsTest, TellsTheIndexOfTheTabThatIsClicked) {
    test::showActive(tabs);
    QSignalSpy clicked(&tabs, &LetterTabs::clicked);
    QTest::mouseClick(&tab(26), Qt::LeftButton);
    ASSERT_EQ(1, clicked.count());
    EXPECT_EQ(26, clicked.last().at(0).toInt());
    EXPECT_EQ(0, tabs.current());
}

TEST_F(LetterTabsTest, MovesByArrowsAndLettersAndClicksBySpaceAndEnter) {
    test::showActive(tabs);
    tabs.setFocus(Qt::TabFocusReason);
    QSignalSpy clicked(&tabs, &LetterTabs::clicked);
    EXPECT_TRUE(tab(0).hasFocus());
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Down);
    EXPECT_TRUE(tab(1).hasFocus());
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Up);
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Up);
    EXPECT_TRUE(tab(0).hasFocus());
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_M);
    EXPECT_TRUE(tab(12).hasFocus());
    QTest::keyClick(QApplication::focusWidget(), '#');
    EXPECT_TRUE(tab(26).hasFocus());
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Home);
    EXPECT_TRUE(tab(0).hasFocus());
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_End);
    EXPECT_EQ(0, clicked.count());
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Space);
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
    ASSERT_EQ(2, clicked.count());
    EXPECT_EQ(26, clicked.first().at(0).toInt());
}

TEST_F(LetterTabsTest, ShowsTheFocusOnlyWhenItCameByTheKeyboard) {
    test::showActive(tabs);
    const Theme& theme = Theme::of(tabs);
    const QPoint edge(20, 0);
    QTest::mouseClick(&tab(5), Qt::LeftButton);
    EXPECT_TRUE(tab(5).hasFocus());
    EXPECT_NE(theme.accent.rgb(), test::pixelOf(tab(5), edge).rgb());
    QTest::keyClick(&tab(5), Qt::Key_Down);
    EXPECT_EQ(theme.accent.rgb(), test::pixelOf(tab(6), edge).rgb());
}

TEST_F(LetterTabsTest, IsOneStopOfTheTabKey) {
    tabs.setCurrent(3);
    int stops = 0;
    for (int i = 0; i < LetterTabs::kCount; ++i)
        stops += (tab(i).focusPolicy() & Qt::TabFocus) ? 1 : 0;
    EXPECT_EQ(1, stops);
    EXPECT_TRUE(tab(3).focusPolicy() & Qt::TabFocus);
}

TEST_F(LetterTabsTest, TellsThatThePointerCame) {
    QSignalSpy hovered(&tabs, &LetterTabs::hovered);
    QEnterEvent enter({5, 5}, {5, 5}, {5, 5});
    QCoreApplication::sendEvent(&tab(7), &enter);
    EXPECT_EQ(1, hovered.count());
}

TEST_F(LetterTabsTest, FillsTheTabInUseWithTheColourOfTheBook) {
    tabs.setCurrent(1);
    test::showActive(tabs);
    const Theme& theme = Theme::of(tabs);
    const QPoint leftOfLetter(6, tab(1).height() / 2);
    EXPECT_EQ(theme.amber.rgb(), test::pixelOf(tab(1), leftOfLetter).rgb());
    tabs.setWhitePages(true);
    EXPECT_EQ(theme.wtab.rgb(), test::pixelOf(tab(1), leftOfLetter).rgb());
    EXPECT_NE(theme.wtab.rgb(), test::pixelOf(tab(2), leftOfLetter).rgb());
}

TEST_F(LetterTabsTest, GivesAllTabsTheSameHeight) {
    for (const int height : {447, 500, 558, 900}) {
        tabs.resize(34, height);
        test::showActive(tabs);
        for (int i = 0; i < LetterTabs::kCount; ++i) {
            EXPECT_EQ(tab(0).height(), tab(i).height());
            EXPECT_GE(tab(i).height(), 15);
            EXPECT_LE(tab(i).height(), 26);
        }
        EXPECT_LE(tab(26).geometry().bottom(), height);
    }
}

}  // namespace
}  // namespace velmora
