#include "core/forms/StatusBar.h"

#include <gtest/gtest.h>

#include <QLabel>
#include <QSignalSpy>
#include <QTest>

#include "forms/Widgets.h"

namespace velmora {
namespace {

class StatusBarTest : public testing::Test {
  protected:
    QLabel& panel() { return test::named<QLabel>(bar, "StatusBar1_2"); }
    void click() { QTest::mouseClick(&panel(), Qt::LeftButton); }

    StatusBar bar{CodePage::western()};
    QSignalSpy chosen{&bar, &StatusBar::fileChosen};
};

TEST_F(StatusBarTest, AClickOnAFileAsksForIt) {
    bar.showFile("Velmora", "/home/jo/M\xFCller.pdf");
    EXPECT_EQ(panel().text(), QStringLiteral("Velmora:  /home/jo/M\u00FCller.pdf"));
    click();
    ASSERT_EQ(chosen.count(), 1);
    EXPECT_EQ(chosen.at(0).at(0).toString(), QStringLiteral("/home/jo/M\u00FCller.pdf"));
}

TEST_F(StatusBarTest, AFileStandsAloneWithoutAText) {
    bar.showFile("", "/home/jo/x.pdf");
    EXPECT_EQ(panel().text(), QStringLiteral("/home/jo/x.pdf"));
}

TEST_F(StatusBarTest, AnotherTextIsNoFile) {
    bar.showFile("Velmora", "/home/jo/x.pdf");
    bar.show("Velmora");
    click();
    EXPECT_EQ(chosen.count(), 0);
    EXPECT_TRUE(panel().toolTip().isEmpty());
}

}  // namespace
}  // namespace velmora
