#include "planner/forms/YearPane.h"

#include <gtest/gtest.h>

#include <QTest>
#include <QVBoxLayout>

#include "forms/Widgets.h"
#include "platform/controls/SSYear.h"

namespace velmora::test {
namespace {

using namespace std::chrono;

class YearPaneTest : public testing::Test {
  protected:
    YearPaneTest() : sheet(new SSYear(LocaleFormats(), CodePage::western(), year(2026) / 3 / 12)) {
        desk.resize(1000, 700);
        pane = std::make_unique<YearPane>(sheet, &desk);
        cover = new QWidget(&desk);
        cover->setGeometry(desk.rect());
        showActive(desk);
    }

    QWidget desk;
    SSYear* sheet;
    std::unique_ptr<YearPane> pane;
    QWidget* cover;
};

TEST_F(YearPaneTest, IsHiddenUntilAskedFor) {
    EXPECT_FALSE(pane->isVisible());
    EXPECT_EQ(pane->objectName(), QStringLiteral("Picture6"));
    EXPECT_EQ(sheet->objectName(), QStringLiteral("SSYear1"));
}

TEST_F(YearPaneTest, OpensAtTheCornerInFrontWithTheFocusInTheYear) {
    pane->open({120, 40});
    EXPECT_EQ(pane->geometry(), QRect(120, 40, 724, 548));
    EXPECT_EQ(desk.childAt(500, 300), sheet);
    EXPECT_TRUE(sheet->hasFocus());
}

TEST_F(YearPaneTest, StaysWithinASmallDesk) {
    desk.resize(600, 400);
    pane->open({120, 40});
    EXPECT_TRUE(desk.rect().contains(pane->geometry()));
}

TEST_F(YearPaneTest, IsLowerInASmallWindowAndFollowsTheDesk) {
    pane->open({120, 40}, true);
    EXPECT_EQ(pane->size(), QSize(696, 445));
    desk.resize(700, 400);
    EXPECT_TRUE(QTest::qWaitFor([this] { return desk.rect().contains(pane->geometry()); }));
    desk.resize(1000, 700);
    EXPECT_TRUE(QTest::qWaitFor([this] { return pane->size() == QSize(696, 445); }));
    pane->setPlace({10, 20}, false);
    EXPECT_EQ(pane->geometry(), QRect(10, 20, 724, 548));
}

TEST_F(YearPaneTest, FillsItselfWithTheYear) {
    pane->open({0, 0});
    QCoreApplication::processEvents();
    EXPECT_TRUE(pane->rect().adjusted(1, 1, -1, -1).contains(sheet->geometry()));
    EXPECT_TRUE(sheet->geometry().contains(pane->rect().adjusted(3, 3, -3, -3)));
}

}  // namespace
}  // namespace velmora::test
