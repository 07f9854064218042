#include "planner/forms/Form7.h"

#include <gmock/gmock.h>

#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

#include "forms/Widgets.h"
#include "platform/controls/EntryList.h"
#include "platform/controls/Stepper.h"
#include "support/FakeClock.h"
#include "support/FakeMessages.h"
#include "support/FakeStatusLine.h"
#include "support/MemorySettings.h"

namespace velmora::test {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

// It is 12 March 2026.
class Form7Test : public testing::Test {
  protected:
    Form7Test() {
        QObject::connect(&form, &Form7::displayWanted, &form, [this] { ++displays; });
    }

    void open() {
        form.present();
        ASSERT_TRUE(QTest::qWaitForWindowActive(&form));
    }
    std::string bars() {
        return (named<QLabel>(form, "Label1").text() + QLatin1Char(' ') +
                named<QLabel>(form, "Label2").text())
            .toStdString();
    }
    QLineEdit& text() { return named<QLineEdit>(form, "Text1"); }
    EntryList& list() { return named<EntryList>(form, "List1"); }
    void key(const char* widget, Qt::Key key) {
        QTest::keyClick(&named<QWidget>(form, widget), key);
    }
    void press(const char* widget) {
        QTest::mouseClick(&named<QPushButton>(form, widget), Qt::LeftButton);
    }
    void clickLine(int row) {
        QTest::mouseClick(list().viewport(), Qt::LeftButton, {},
                          list().visualRect(list().model()->index(row, 0)).center());
    }
    void add(const QString& what) {
        text().setText(what);
        press("Command1");
    }

    MemorySettings medium;
    SettingsStore settings{medium};
    FakeMessages messages;
    FakeClock clock;
    FakeStatusLine status;
    Datewarden datewarden{settings, messages, clock};
    Form7 form{datewarden, status, CodePage::western()};
    int displays = 0;
};

TEST_F(Form7Test, HasItsCaptionsAndStaysOutOfTheMainWindowsWay) {
    open();
    EXPECT_EQ(form.windowTitle(), QStringLiteral("Datewarden "));
    EXPECT_EQ(named<QLabel>(form, "Label3").text(), QStringLiteral("Enter New Event Description:"));
    EXPECT_EQ(named<QPushButton>(form, "Command1").text(), QStringLiteral("&Add"));
    EXPECT_EQ(named<QPushButton>(form, "Command2").text(), QStringLiteral("&Remove"));
    EXPECT_EQ(named<QPushButton>(form, "Command3").text(), QStringLiteral("&Close"));
    EXPECT_EQ(named<QPushButton>(form, "Command4").text(), QStringLiteral("&Show Display"));
    EXPECT_TRUE(named<QPushButton>(form, "Command1").isDefault());
    EXPECT_FALSE(form.isModal());
}

TEST_F(Form7Test, OpensOnThePresentDayWithTheSuggestedTextSelected) {
    settings.Save(R"(Events\March\09\NumTasks)", "1");
    settings.Save(R"(Events\March\09\1M)", "Birthday");
    open();
    EXPECT_EQ(bars(), "March 12");
    EXPECT_EQ(text().selectedText(), QStringLiteral("New Event Today!"));
    EXPECT_TRUE(text().hasFocus());
    EXPECT_THAT(list().lines(), ElementsAre("March 09 - Birthday"));
    EXPECT_FALSE(list().hasSelection());
}

TEST_F(Form7Test, TheBarsCountMonthsAndTheDaysThatTheMonthHas) {
    open();
    key("VScroll2", Qt::Key_End);
    EXPECT_EQ(bars(), "March 31");
    key("VScroll1", Qt::Key_Up);
    EXPECT_EQ(bars(), "April 30");
    key("VScroll1", Qt::Key_Home);
    key("VScroll1", Qt::Key_Up);
    EXPECT_EQ(bars(), "February 29");
    key("VScroll2", Qt::Key_Up);
    EXPECT_EQ(bars(), "February 29");
    key("VScroll2", Qt::Key_Home);
    EXPECT_EQ(bars(), "February 01");
    key("VScroll1", Qt::Key_End);
    EXPECT_EQ(bars(), "December 01");
}

TEST_F(Form7Test, EnterAddsTheTextToTheDayOfTheBars) {
    open();
    key("VScroll1", Qt::Key_Up);
    text().setText(QStringLiteral("Caf\u00e9 & <b> - opens"));
    QTest::keyClick(&text(), Qt::Key_Return);
    EXPECT_EQ(settings.Read(R"(Events\April\12\1M)"), "Caf\xE9 & <b> - opens");
    EXPECT_THAT(list().lines(), ElementsAre("April 12 - Caf\xE9 & <b> - opens"));
    EXPECT_TRUE(form.isVisible());
}

TEST_F(Form7Test, ABlankTextBecomesTheDefaultInTheBox) {
    open();
    add(QStringLiteral("  "));
    EXPECT_EQ(text().text(), QStringLiteral("Event Set For This Date."));
    EXPECT_THAT(list().lines(), ElementsAre("March 12 - Event Set For This Date."));
}

TEST_F(Form7Test, AClickedLineGoesIntoBarsAndBox) {
    open();
    add(QStringLiteral("x"));
    key("VScroll1", Qt::Key_End);
    add(QStringLiteral("a - b"));
    clickLine(0);
    EXPECT_EQ(bars(), "March 12");
    EXPECT_EQ(text().text(), QStringLiteral("x"));
    clickLine(1);
    EXPECT_EQ(bars(), "December 12");
    EXPECT_EQ(text().text(), QStringLiteral("a - b"));
}

TEST_F(Form7Test, RemoveAsksAndTakesTheFirstOfEqualTexts) {
    open();
    add(QStringLiteral("same"));
    add(QStringLiteral("other"));
    add(QStringLiteral("same"));
    press("Command2");
    EXPECT_THAT(messages.takeShown(), IsEmpty());
    clickLine(2);
    messages.willAnswer(false);
    press("Command2");
    EXPECT_THAT(list().lines(), testing::SizeIs(3));
    messages.willAnswer(true);
    press("Command2");
    EXPECT_THAT(list().lines(), ElementsAre("March 12 - other", "March 12 - same"));
    EXPECT_THAT(messages.takeShown(), testing::SizeIs(2));
    EXPECT_FALSE(list().hasSelection());
}

TEST_F(Form7Test, ACharacterThatCanNotBeStoredIsReplacedAndTold) {
    open();
    text().setText(QStringLiteral("\u4e2d"));
    EXPECT_EQ(text().text(), QStringLiteral("?"));
    EXPECT_EQ(status.text, kCharacterReplaced);
}

TEST_F(Form7Test, ShowDisplayAsksForTheEventsOfToday) {
    open();
    press("Command4");
    EXPECT_EQ(displays, 1);
    EXPECT_TRUE(form.isVisible());
}

TEST_F(Form7Test, AnOpenFormComesToTheFrontAsItIsAndAClosedOneBeginsAnew) {
    open();
    key("VScroll1", Qt::Key_End);
    text().setText(QStringLiteral("half typed"));
    form.present();
    EXPECT_EQ(bars(), "December 12");
    EXPECT_EQ(text().text(), QStringLiteral("half typed"));
    press("Command3");
    EXPECT_FALSE(form.isVisible());
    open();
    EXPECT_EQ(bars(), "March 12");
    EXPECT_EQ(text().text(), QStringLiteral("New Event Today!"));
    QTest::keyClick(&form, Qt::Key_Escape);
    EXPECT_FALSE(form.isVisible());
}

}  // namespace
}  // namespace velmora::test
