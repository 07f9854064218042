#include "planner/forms/Alarm.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <QAbstractSlider>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTest>

#include "forms/Widgets.h"
#include "platform/controls/EntryList.h"
#include "support/FakeClock.h"
#include "support/MemorySettings.h"

namespace velmora::test {
namespace {

using namespace std::chrono;
using ::testing::ElementsAre;

// The form on Thursday, 12 March 2026, at 09:05.
class AlarmTest : public testing::Test {
  protected:
    AlarmTest() { clock.set(day, hours(9) + minutes(5)); }

    void open() {
        form.present();
        ASSERT_TRUE(QTest::qWaitForWindowActive(&form));
    }
    std::string time() {
        return named<QLabel>(form, "Label1").text().toStdString() +
               named<QLabel>(form, "Label3").text().toStdString() +
               named<QLabel>(form, "Label2").text().toStdString();
    }
    QLineEdit& message() { return named<QLineEdit>(form, "Text1"); }
    EntryList& list() { return named<EntryList>(form, "List1"); }
    void type(const char* text) {
        message().selectAll();
        QTest::keyClicks(&message(), QLatin1String(text));
    }
    void press(const char* name) {
        QTest::mouseClick(&named<QPushButton>(form, name), Qt::LeftButton);
    }
    void clickLine(int row) {
        const QRect line = list().visualRect(list().model()->index(row, 0));
        QTest::mouseClick(list().viewport(), Qt::LeftButton, {}, line.center());
    }
    [[nodiscard]] std::string read(const std::string& rest) const {
        return settings.Read("Alarms\\03122026" + rest);
    }

    MemorySettings medium;
    SettingsStore settings{medium};
    FakeClock clock;
    year_month_day day = March / 12 / 2026;
    AlarmEditor editor{settings, clock, [this] { return day; }};
    Alarm form{editor, CodePage::western()};
};

TEST_F(AlarmTest, OpensWithThePresentTimeInTwoDigits) {
    open();
    EXPECT_EQ(form.windowTitle(), QStringLiteral("Alarms..."));
    EXPECT_EQ(time(), "09:05");
    EXPECT_EQ(message().text(), QStringLiteral("Alarm triggered"));
    EXPECT_TRUE(named<QAbstractSlider>(form, "VScroll1").hasFocus());
    EXPECT_FALSE(form.isModal());
}

TEST_F(AlarmTest, HasItsCaptions) {
    EXPECT_EQ(named<QPushButton>(form, "Command2").text(), QStringLiteral("&Add/Change"));
    EXPECT_EQ(named<QPushButton>(form, "Command1").text(), QStringLiteral("&Remove"));
    EXPECT_EQ(named<QPushButton>(form, "Command3").text(), QStringLiteral("&Close"));
    QStringList texts;
    for (const QLabel* label : form.findChildren<QLabel*>())
        texts << label->text();
    for (const char* text : {"Time to set:", "Message:", "Note:",
                             "Alarms set will be set for the day shown on the daily planner."})
        EXPECT_TRUE(texts.contains(QLatin1String(text))) << text;
}

TEST_F(AlarmTest, HoursGoTo23ByTwelveAndMinutesTo59ByThirty) {
    const auto& hour = named<QAbstractSlider>(form, "VScroll1");
    const auto& minute = named<QAbstractSlider>(form, "VScroll2");
    EXPECT_EQ(hour.minimum() * 10000 + hour.maximum() * 100 + hour.pageStep(), 2312);
    EXPECT_EQ(minute.minimum() * 10000 + minute.maximum() * 100 + minute.pageStep(), 5930);
}

TEST_F(AlarmTest, SetsAnAlarmByKeyboard) {
    open();
    QTest::keyClick(&named<QAbstractSlider>(form, "VScroll1"), Qt::Key_Up);
    QTest::keyClick(&named<QAbstractSlider>(form, "VScroll2"), Qt::Key_PageUp);
    EXPECT_EQ(time(), "10:35");
    type("Leave <b>now</b> & go");
    QTest::keyClick(&message(), Qt::Key_Return);
    EXPECT_EQ(read("1T"), "10:35");
    EXPECT_EQ(read("1M"), "Leave <b>now</b> & go");
    EXPECT_THAT(list().lines(), ElementsAre("10:35"));
    EXPECT_TRUE(form.isVisible());
}

TEST_F(AlarmTest, AnEmptyMessageIsFilledInTheBoxToo) {
    open();
    message().selectAll();
    QTest::keyClick(&message(), Qt::Key_Delete);
    press("Command2");
    EXPECT_EQ(message().text(), QStringLiteral("Alarm Set For This Time."));
    EXPECT_EQ(read("1M"), "Alarm Set For This Time.");
}

TEST_F(AlarmTest, AClickOnATimeTakesItOverAndRemoveTakesItAway) {
    open();
    type("first");
    press("Command2");
    QTest::keyClick(&named<QAbstractSlider>(form, "VScroll1"), Qt::Key_Up);
    type("second");
    press("Command2");
    clickLine(0);
    EXPECT_EQ(time(), "09:05");
    EXPECT_EQ(message().text(), QStringLiteral("first"));
    press("Command1");
    EXPECT_EQ(message().text(), QString());
    EXPECT_THAT(list().lines(), ElementsAre("10:05"));
    EXPECT_EQ(read(""), "1");
    press("Command1");  // nothing is selected now
    EXPECT_EQ(read(""), "1");
}

TEST_F(AlarmTest, AMessageOfTwoLinesThatIsNotEditedIsStoredAsItWas) {
    settings.Save("Alarms\\03122026", "1");
    settings.Save("Alarms\\031220261T", "08:00");
    settings.Save("Alarms\\031220261M", " two\r\nlines");
    open();
    clickLine(0);
    QTest::keyClick(&named<QAbstractSlider>(form, "VScroll1"), Qt::Key_Up);
    press("Command2");
    EXPECT_EQ(read("2T"), "09:00");
    EXPECT_EQ(read("2M"), " two\r\nlines");
}

TEST_F(AlarmTest, ACharacterWithoutAPlaceInTheCodePageBecomesAQuestionMark) {
    open();
    int replaced = 0;
    QObject::connect(&form, &Alarm::characterReplaced, [&] { ++replaced; });
    message().selectAll();
    message().insert(QStringLiteral("\u4e2d\u00e9"));
    press("Command2");
    EXPECT_EQ(read("1M"), "?\xE9");
    EXPECT_GT(replaced, 0);
}

TEST_F(AlarmTest, CloseAndEscapeCloseItAndOpeningBeginsAnew) {
    open();
    type("typed");
    press("Command3");
    EXPECT_FALSE(form.isVisible());
    clock.advance(hours(2));
    open();
    EXPECT_EQ(time(), "11:05");
    EXPECT_EQ(message().text(), QStringLiteral("Alarm triggered"));
    QTest::keyClick(&form, Qt::Key_Escape);
    EXPECT_FALSE(form.isVisible());
}

TEST_F(AlarmTest, PresentingTheOpenFormKeepsWhatStandsInIt) {
    open();
    type("typed");
    clock.advance(hours(2));
    form.present();
    EXPECT_EQ(time(), "09:05");
    EXPECT_EQ(message().text(), QStringLiteral("typed"));
}

}  // namespace
}  // namespace velmora::test
