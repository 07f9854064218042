#include "planner/forms/Schedule.h"

#include <gtest/gtest.h>

#include <QAbstractSlider>
#include <QLabel>
#include <QPushButton>
#include <QTest>
#include <QWheelEvent>
#include <string>
#include <vector>

#include "forms/Widgets.h"
#include "support/FakeClock.h"
#include "support/FakeMessages.h"

namespace velmora::test {
namespace {

using namespace std::chrono;

constexpr const char* kRefusal =
    "warn|Velmora|The event must end after the time that it starts. Please adjust the ending time. "
    "If your event extends into the next day (after midnight), please schedule the event for the "
    "next day.";

// The form, with the clock at 10:42.
class ScheduleTest : public testing::Test {
  protected:
    ScheduleTest() {
        QObject::connect(&form, &Schedule::applied, [this] {
            ++applied;
            textsWhenApplied = texts.ScheduleBegin + " " + texts.ScheduleEnd;
            openWhenApplied = form.isVisible();
        });
    }

    void open() {
        form.present();
        ASSERT_TRUE(QTest::qWaitForWindowActive(&form));
    }
    void openAt(int hour, int minute) {
        clock.set(year(2026) / 3 / 12, hours(hour) + minutes(minute));
        open();
    }

    std::string label(const char* name) { return named<QLabel>(form, name).text().toStdString(); }
    std::string shown() {
        return label("Label1") + ":" + label("Label2") + " " + label("Label7") + ":" +
               label("Label6");
    }
    QAbstractSlider& arrows(const char* name) { return named<QAbstractSlider>(form, name); }
    void click(const char* name, bool upper) {
        QAbstractSlider& arrow = arrows(name);
        QTest::mouseClick(&arrow, Qt::LeftButton, {},
                          {arrow.width() / 2, upper ? 5 : arrow.height() - 5});
    }
    void key(const char* name, Qt::Key key) { QTest::keyClick(&arrows(name), key); }
    void wheel(const char* name, int turn) {
        QAbstractSlider& arrow = arrows(name);
        const QPointF point = arrow.rect().center();
        QWheelEvent event(point, arrow.mapToGlobal(point), {}, {0, turn}, Qt::NoButton,
                          Qt::NoModifier, Qt::NoScrollPhase, false);
        QCoreApplication::sendEvent(&arrow, &event);
    }
    void press(const char* name) {
        QTest::mouseClick(&named<QPushButton>(form, name), Qt::LeftButton);
    }

    FakeClock clock;
    FakeMessages messages;
    ScheduleTexts texts;
    ScheduleTimes times{texts, messages, clock};
    Schedule form{times};
    int applied = 0;
    std::string textsWhenApplied;
    bool openWhenApplied = false;
};

TEST_F(ScheduleTest, AsksForBeginAndEnd) {
    EXPECT_EQ(form.windowTitle(), QStringLiteral("Schedule Event"));
    EXPECT_EQ(label("Question"), "At what time would you like to schedule this event?");
    EXPECT_EQ(label("Question2"), "When should this event end?");
    EXPECT_EQ(named<QPushButton>(form, "Command2").text(), QStringLiteral("&Apply"));
    EXPECT_EQ(named<QPushButton>(form, "Command1").text(), QStringLiteral("&Cancel"));
}

TEST_F(ScheduleTest, HoursGoTo23ByTwelveAndMinutesTo59ByThirty) {
    for (const char* hour : {"VScroll1", "VScroll4"}) {
        SCOPED_TRACE(hour);
        EXPECT_EQ(arrows(hour).minimum(), 0);
        EXPECT_EQ(arrows(hour).maximum(), 23);
        EXPECT_EQ(arrows(hour).pageStep(), 12);
    }
    for (const char* minute : {"VScroll2", "VScroll3"}) {
        SCOPED_TRACE(minute);
        EXPECT_EQ(arrows(minute).minimum(), 0);
        EXPECT_EQ(arrows(minute).maximum(), 59);
        EXPECT_EQ(arrows(minute).pageStep(), 30);
    }
}

TEST_F(ScheduleTest, OpensWithThePresentTimeForAnHourAndEmptiesTheTexts) {
    texts = {"09:00 AM", "10:00 AM"};
    open();
    EXPECT_EQ(shown(), "10:42 11:42");
    EXPECT_EQ(texts.ScheduleBegin + texts.ScheduleEnd, "");
    EXPECT_TRUE(arrows("VScroll1").hasFocus());
}

TEST_F(ScheduleTest, ShowsTwoDigitsAlways) {
    openAt(0, 0);
    EXPECT_EQ(shown(), "00:00 01:00");
    form.reject();
    openAt(9, 5);
    EXPECT_EQ(shown(), "09:05 10:05");
}

TEST_F(ScheduleTest, AnHourBeforeMidnightOpensWithAnEndThatIsRefusedUntilChanged) {
    openAt(23, 30);
    EXPECT_EQ(shown(), "23:30 00:30");
    press("Command2");
    EXPECT_EQ(messages.takeShown(), std::vector<std::string>{kRefusal});
    EXPECT_TRUE(form.isVisible());
    key("VScroll4", Qt::Key_End);
    click("VScroll3", true);
    EXPECT_EQ(shown(), "23:30 23:31");
    press("Command2");
    EXPECT_EQ(textsWhenApplied, "23:30 23:31");
}

TEST_F(ScheduleTest, EachArrowChangesItsOwnNumber) {
    open();
    click("VScroll1", true);
    click("VScroll2", false);
    click("VScroll4", true);
    click("VScroll4", true);
    click("VScroll3", false);
    EXPECT_EQ(shown(), "11:41 13:41");
}

TEST_F(ScheduleTest, KeysStepByOneAndByTheLargeStepAndStopAtTheEnds) {
    open();
    key("VScroll1", Qt::Key_PageUp);
    EXPECT_EQ(label("Label1"), "22");
    key("VScroll1", Qt::Key_PageUp);
    EXPECT_EQ(label("Label1"), "23");
    key("VScroll1", Qt::Key_Up);
    EXPECT_EQ(label("Label1"), "23");
    key("VScroll2", Qt::Key_PageDown);
    EXPECT_EQ(label("Label2"), "12");
    key("VScroll2", Qt::Key_Home);
    EXPECT_EQ(label("Label2"), "00");
    key("VScroll2", Qt::Key_Down);
    EXPECT_EQ(label("Label2"), "00");
    key("VScroll3", Qt::Key_End);
    key("VScroll4", Qt::Key_Down);
    EXPECT_EQ(shown(), "23:00 10:59");
}

TEST_F(ScheduleTest, TheWheelStepsByOne) {
    open();
    wheel("VScroll2", 120);
    wheel("VScroll4", -240);
    EXPECT_EQ(shown(), "10:43 09:42");
}

TEST_F(ScheduleTest, AnEventOfNoLengthIsRefusedAndTheFormStays) {
    openAt(9, 30);
    key("VScroll4", Qt::Key_Down);
    EXPECT_EQ(shown(), "09:30 09:30");
    press("Command2");
    EXPECT_EQ(messages.takeShown(), std::vector<std::string>{kRefusal});
    EXPECT_TRUE(form.isVisible());
    EXPECT_EQ(applied, 0);
    EXPECT_EQ(texts.ScheduleBegin + texts.ScheduleEnd, "");
    EXPECT_EQ(shown(), "09:30 09:30");
    key("VScroll3", Qt::Key_Up);
    press("Command2");
    EXPECT_EQ(textsWhenApplied, "09:30 09:31");
}

TEST_F(ScheduleTest, AnEndHourBelowTheBeginHourIsRefusedWhateverTheMinutes) {
    open();
    key("VScroll4", Qt::Key_Down);
    key("VScroll4", Qt::Key_Down);
    key("VScroll3", Qt::Key_End);
    EXPECT_EQ(shown(), "10:42 09:59");
    press("Command2");
    EXPECT_EQ(messages.takeShown(), std::vector<std::string>{kRefusal});
    EXPECT_TRUE(form.isVisible());
    EXPECT_EQ(applied, 0);
}

TEST_F(ScheduleTest, ApplyClosesTheFormAndThenTellsItOnce) {
    open();
    press("Command2");
    EXPECT_EQ(applied, 1);
    EXPECT_FALSE(openWhenApplied);
    EXPECT_EQ(textsWhenApplied, "10:42 11:42");
    EXPECT_TRUE(messages.takeShown().empty());
}

TEST_F(ScheduleTest, EnterAppliesFromTheArrowsAndCancelsOnCancel) {
    open();
    key("VScroll3", Qt::Key_Return);
    EXPECT_EQ(applied, 1);
    open();
    named<QPushButton>(form, "Command1").setFocus();
    QTest::keyClick(&named<QPushButton>(form, "Command1"), Qt::Key_Return);
    EXPECT_EQ(applied, 1);
    EXPECT_FALSE(form.isVisible());
}

TEST_F(ScheduleTest, CancelEscapeAndTheCloseBoxCloseItAndLeaveTheTextsEmpty) {
    const std::vector<std::function<void()>> ways = {
        [this] { press("Command1"); },
        [this] { QTest::keyClick(&form, Qt::Key_Escape); },
        [this] { form.close(); },
    };
    for (const auto& way : ways) {
        open();
        key("VScroll4", Qt::Key_Up);
        way();
        EXPECT_FALSE(form.isVisible());
        EXPECT_EQ(texts.ScheduleBegin + texts.ScheduleEnd, "");
    }
    EXPECT_EQ(applied, 0);
}

TEST_F(ScheduleTest, PresentingTheOpenFormKeepsItsHours) {
    open();
    key("VScroll1", Qt::Key_Up);
    clock.advance(hours(3));
    form.present();
    EXPECT_EQ(shown(), "11:42 11:42");
    form.reject();
    form.present();
    EXPECT_EQ(shown(), "13:42 14:42");
}

TEST_F(ScheduleTest, DoesNotBlockTheMainWindow) {
    open();
    EXPECT_FALSE(form.isModal());
}

}  // namespace
}  // namespace velmora::test
