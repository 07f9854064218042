#include "core/forms/JobBar.h"

#include <gtest/gtest.h>

#include <QLabel>
#include <QLocale>
#include <QProgressBar>
#include <QPushButton>
#include <QSignalSpy>
#include <QTest>

#include "core/forms/StatusBar.h"
#include "forms/Widgets.h"

namespace velmora {
namespace {

class JobBarTest : public testing::Test {
  protected:
    JobBarTest() {
        bar.resize(900, 28);
        static_cast<QWidget&>(bar).show();
    }
    QPushButton& cancel() { return test::named<QPushButton>(bar, "JobCancel"); }
    QLabel& count() { return test::named<QLabel>(bar, "JobCount"); }
    QProgressBar& progress() { return test::named<QProgressBar>(bar, "JobProgress"); }

    StatusBar bar{CodePage::western()};
};

TEST_F(JobBarTest, NothingOfItIsInViewWithoutAJob) {
    EXPECT_FALSE(bar.job().isVisible());
}

TEST_F(JobBarTest, AJobShowsCancelAndThenHowFarItIs) {
    bar.job().showCancelIcon(true);
    EXPECT_TRUE(cancel().isVisible());
    EXPECT_FALSE(progress().isVisible());
    EXPECT_FALSE(progress().isVisible());
    EXPECT_TRUE(QTest::qWaitFor([&] {
        bar.job().showProgress(1500, 3000);
        return progress().isVisible();
    }));
    EXPECT_EQ(progress().value() * 2, progress().maximum());
    EXPECT_EQ(count().text(), QLocale().toString(1500) + " of " + QLocale().toString(3000));
    bar.job().showCancelIcon(false);
    EXPECT_FALSE(bar.job().isVisible());
    bar.job().showCancelIcon(true);
    EXPECT_FALSE(progress().isVisible()) << "the next job begins anew";
}

TEST_F(JobBarTest, NothingOfNothingIsNoProgress) {
    bar.job().showCancelIcon(true);
    bar.job().showProgress(0, 0);
    EXPECT_TRUE(progress().isVisible());
    EXPECT_EQ(progress().value(), 0);
}

TEST_F(JobBarTest, CancelTellsByPointerAndByKey) {
    QSignalSpy chosen(&bar.job(), &JobBar::cancelChosen);
    bar.job().showCancelIcon(true);
    QTest::mouseClick(&cancel(), Qt::LeftButton);
    QTest::keyClick(&cancel(), Qt::Key_Space);
    EXPECT_EQ(chosen.count(), 2);
}

TEST_F(JobBarTest, TheTextOfTheStatusBarKeepsItsRoom) {
    bar.job().showCancelIcon(true);
    bar.job().showProgress(30000, 30000);
    bar.show("A text that is to be read beside the progress of a job");
    EXPECT_GT(test::named<QLabel>(bar, "StatusBar1_2").width(), 400);
    const QRect button(cancel().mapTo(&bar, QPoint(0, 0)), cancel().size());
    EXPECT_TRUE(bar.rect().contains(button)) << button.bottom() << " " << bar.height();
}

}  // namespace
}  // namespace velmora
