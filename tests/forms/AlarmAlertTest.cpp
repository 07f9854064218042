#include <gtest/gtest.h>

#include <QDialog>
#include <QLabel>
#include <QMessageBox>
#include <QPushButton>
#include <QTest>
#include <QTimer>
#include <QWindow>

#include "forms/Widgets.h"
#include "planner/forms/DesktopAlarmWindows.h"
#include "platform/qt/BoxOwner.h"

namespace velmora::test {
namespace {

// The alert, or null before there was an alarm.
AlarmAlert* alertOnScreen() {
    for (QWidget* window : QApplication::topLevelWidgets())
        if (auto* alert = qobject_cast<AlarmAlert*>(window); alert && alert->isVisible())
            return alert;
    return nullptr;
}

class AlarmAlertTest : public testing::Test {
  protected:
    void showAlert(const std::string& message) {
        windows.showAlert(message);
        ASSERT_NE(alertOnScreen(), nullptr);
        ASSERT_TRUE(QTest::qWaitForWindowExposed(alertOnScreen()));
    }
    static std::string message() {
        return named<QLabel>(*alertOnScreen(), "Label2").text().toStdString();
    }
    static void press(const char* name) {
        QTest::mouseClick(&named<QPushButton>(*alertOnScreen(), name), Qt::LeftButton);
    }
    // As the window system delivers it, which asks whether a dialog holds the window up.
    static void clickOnScreen(QWidget& target) {
        QWindow* window = target.window()->windowHandle();
        QTest::mouseClick(window, Qt::LeftButton, {},
                          target.mapTo(target.window(), target.rect().center()));
    }

    int oks = 0;
    int snoozed = 0;
    DesktopAlarmWindows windows{CodePage::western(),
                                {.ok =
                                     [this] {
                                         ++oks;
                                         windows.closeAlert();
                                     },
                                 .snooze = [this](int minutes) { snoozed += minutes; }}};
};

TEST_F(AlarmAlertTest, SaysWhatTheAlarmIsAbout) {
    showAlert("Leave <b>now</b> & go\r\nsecond");
    const AlarmAlert& alert = *alertOnScreen();
    EXPECT_EQ(alert.windowTitle(), QStringLiteral("Velmora - Alarm"));
    EXPECT_EQ(named<QLabel>(alert, "Label1").text(), QStringLiteral("ALARM"));
    EXPECT_EQ(message(), "Leave <b>now</b> & go\nsecond");
    EXPECT_EQ(named<QLabel>(alert, "Label2").textFormat(), Qt::PlainText);
    EXPECT_EQ(named<QPushButton>(alert, "Command1").text(), QStringLiteral("&Ok"));
    EXPECT_EQ(named<QPushButton>(alert, "Command2").text(), QStringLiteral("5 Minute &Snooze"));
    EXPECT_EQ(named<QPushButton>(alert, "Command3").text(), QStringLiteral("10 &Minute Snooze"));
}

// That it really leaves the focus where it is can be seen on a desktop only.
TEST_F(AlarmAlertTest, StandsAloneAboveAllAndAsksForNoFocus) {
    showAlert("x");
    const AlarmAlert& alert = *alertOnScreen();
    EXPECT_EQ(alert.parentWidget(), nullptr);
    EXPECT_TRUE(alert.windowFlags().testFlag(Qt::WindowStaysOnTopHint));
    EXPECT_TRUE(alert.testAttribute(Qt::WA_ShowWithoutActivating));
    EXPECT_FALSE(alert.isModal());
}

TEST_F(AlarmAlertTest, StandsInTheMiddleOfTheScreen) {
    showAlert("x");
    const QPoint away = alertOnScreen()->frameGeometry().center() -
                        alertOnScreen()->screen()->availableGeometry().center();
    EXPECT_LE(away.manhattanLength(), 4);
}

TEST_F(AlarmAlertTest, IsSmallForASmallMessageAgain) {
    showAlert("x");
    const QSize size = alertOnScreen()->size();
    EXPECT_EQ(size.width(), 480);
    EXPECT_LT(size.height(), 220);
    windows.showAlert(std::string(20, '\n') + "x");
    EXPECT_GT(alertOnScreen()->height(), size.height());
    windows.closeAlert();
    showAlert("one\r\ntwo");
    EXPECT_EQ(alertOnScreen()->size(), size);
}

TEST_F(AlarmAlertTest, AnotherMessageComesIntoTheOpenAlertWhichGrowsWithIt) {
    showAlert("one");
    const int height = alertOnScreen()->height();
    std::string many;
    for (int i = 0; i < 12; ++i)
        many += "line\r\n";
    windows.showAlert(many + "one");
    EXPECT_EQ(message().substr(0, 5), "line\n");
    EXPECT_GT(alertOnScreen()->height(), height);
    for (int i = 0; i < 400; ++i)
        many += "line\r\n";
    windows.showAlert(many);
    EXPECT_LT(alertOnScreen()->height(), alertOnScreen()->screen()->geometry().height());
}

TEST_F(AlarmAlertTest, OkEscapeAndTheCloseBoxAreOne) {
    const std::vector<std::function<void()>> ways = {
        [] { press("Command1"); },
        [] { QTest::keyClick(alertOnScreen(), Qt::Key_Escape); },
        [] { alertOnScreen()->close(); },
    };
    int expected = 0;
    for (const auto& way : ways) {
        showAlert("x");
        way();
        EXPECT_EQ(oks, ++expected);
        EXPECT_EQ(alertOnScreen(), nullptr);
    }
}

TEST_F(AlarmAlertTest, TheSnoozeButtonsTellTheirMinutes) {
    showAlert("x");
    press("Command2");
    EXPECT_EQ(snoozed, 5);
    press("Command3");
    EXPECT_EQ(snoozed, 15);
    EXPECT_NE(alertOnScreen(), nullptr) << "who asks for it closes it";
    windows.closeAlert();
}

TEST_F(AlarmAlertTest, AnswersWhileADialogWaitsForItsAnswer) {
    QWidget owner;
    showActive(owner);
    showAlert("x");
    QDialog dialog(&owner);
    QTimer::singleShot(0, &dialog, [&] {
        ASSERT_TRUE(QTest::qWaitForWindowExposed(&dialog));
        EXPECT_TRUE(dialog.isModal());
        clickOnScreen(named<QPushButton>(*alertOnScreen(), "Command1"));
        dialog.accept();
    });
    EXPECT_EQ(runOverOwner(dialog), QDialog::Accepted);
    EXPECT_EQ(oks, 1);
}

TEST_F(AlarmAlertTest, ADialogHoldsUpItsOwnerAndTheWindowsAroundIt) {
    QWidget owner;
    auto* button = new QPushButton(&owner);
    int clicks = 0;
    QObject::connect(button, &QPushButton::clicked, [&] { ++clicks; });
    showActive(owner);
    clickOnScreen(*button);
    ASSERT_EQ(clicks, 1);
    QDialog dialog(&owner);
    QTimer::singleShot(0, &dialog, [&] {
        ASSERT_TRUE(QTest::qWaitForWindowExposed(&dialog));
        clickOnScreen(*button);
        dialog.accept();
    });
    runOverOwner(dialog);
    EXPECT_EQ(clicks, 1);
}

TEST_F(AlarmAlertTest, TheBoxAboveAllHasNoOwnerAndWaits) {
    QWidget other;
    showActive(other);
    bool seen = false;
    QTimer::singleShot(0, qApp, [&] {
        auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
        ASSERT_NE(box, nullptr);
        seen = true;
        EXPECT_EQ(box->windowTitle(), QStringLiteral("Alarm"));
        EXPECT_EQ(box->text(), QStringLiteral("head\n\n<i>task</i>"));
        EXPECT_EQ(box->icon(), QMessageBox::Warning);
        EXPECT_EQ(box->textFormat(), Qt::PlainText);
        EXPECT_EQ(box->parentWidget(), nullptr);
        EXPECT_EQ(box->windowModality(), Qt::ApplicationModal);
        EXPECT_TRUE(box->windowFlags().testFlag(Qt::WindowStaysOnTopHint));
        QTest::mouseClick(box->button(QMessageBox::Ok), Qt::LeftButton);
    });
    windows.warnAboveAll("Alarm", "head\r\n\r\n<i>task</i>");
    EXPECT_TRUE(seen);
}

}  // namespace
}  // namespace velmora::test
