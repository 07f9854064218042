#include "planner/forms/Form8.h"

#include <gmock/gmock.h>

#include <QLabel>
#include <QPushButton>
#include <QScreen>
#include <QSignalSpy>
#include <QTimer>
#include <optional>

#include "forms/Widgets.h"
#include "platform/controls/EntryList.h"
#include "support/FakeClock.h"
#include "support/MemorySettings.h"

namespace velmora::test {
namespace {

using namespace std::chrono;
using testing::ElementsAre;

// It is 12 March 2026. The main window is a plain one.
class Form8Test : public testing::Test {
  protected:
    Form8Test() { window.resize(1000, 700); }

    void occasion(const std::string& day, const std::string& text) {
        settings.Save("Events\\March\\" + day + "\\NumTasks", "1");
        settings.Save("Events\\March\\" + day + "\\1M", text);
    }
    Form8& load() { return form.emplace(events, CodePage::western()); }
    void open() {
        load().presentBeside(window);
        ASSERT_TRUE(QTest::qWaitForWindowActive(&*form));
    }
    const std::vector<std::string>& lines() { return form->lines(); }
    QTimer& timer() { return named<QTimer>(*form, "Timer1"); }
    void press(const char* widget) {
        QTest::mouseClick(&named<QPushButton>(*form, widget), Qt::LeftButton);
    }
    // Lets the timer come round as often as it takes for the list to show these lines.
    void waitForLines(const std::vector<std::string>& expected) {
        timer().setInterval(1);
        EXPECT_TRUE(QTest::qWaitFor([&] { return lines() == expected; }));
    }
    // Lets the timer come round twice at least.
    void letTimerPass() {
        QSignalSpy passes(&timer(), &QTimer::timeout);
        timer().setInterval(1);
        EXPECT_TRUE(QTest::qWaitFor([&] { return passes.count() >= 2; }));
    }

    MemorySettings medium;
    SettingsStore settings{medium};
    FakeClock clock;
    LocaleFormats formats;
    int rings = 0;
    Reminders events{settings, clock, formats, [this] { ++rings; }};
    QWidget window;
    std::optional<Form8> form;
};

TEST_F(Form8Test, HasItsCaptionsAndStaysInFrontOfAllWindows) {
    open();
    EXPECT_EQ(form->windowTitle(), QStringLiteral("Events for Today:"));
    EXPECT_EQ(named<QLabel>(*form, "Label1").text(),
              QStringLiteral("Events and Occasions Occurring Today:"));
    EXPECT_EQ(named<QPushButton>(*form, "Command1").text(), QStringLiteral("&Close"));
    EXPECT_EQ(named<QPushButton>(*form, "Command2").text(), QStringLiteral("&Datewarden"));
    EXPECT_EQ(named<QPushButton>(*form, "Command3").text(), QStringLiteral("&Print"));
    EXPECT_EQ(named<QPushButton>(*form, "Command5").text(), QStringLiteral("&Monthly"));
    EXPECT_EQ(named<QPushButton>(*form, "Command6").text(), QStringLiteral("&Weekly"));
    EXPECT_TRUE(named<QPushButton>(*form, "Command1").hasFocus());
    EXPECT_TRUE(form->windowFlags().testFlag(Qt::WindowStaysOnTopHint));
    EXPECT_FALSE(form->testAttribute(Qt::WA_QuitOnClose));
    EXPECT_FALSE(form->isModal());
}

TEST_F(Form8Test, LoadingBuildsTheListAndRingsWithoutShowingIt) {
    occasion("12", "Birthday & <b>");
    load();
    EXPECT_FALSE(form->isVisible());
    EXPECT_THAT(lines(), ElementsAre("TODAY - Birthday & <b>"));
    EXPECT_EQ(rings, 1);
    EXPECT_TRUE(timer().isActive());
    EXPECT_EQ(timer().interval(), 60000);
}

TEST_F(Form8Test, ShowingTheLoadedFormIsSilentAndItsListIsOfNow) {
    load();
    EXPECT_THAT(lines(), ElementsAre("No Events Today."));
    occasion("12", "new");
    form->presentBeside(window);
    EXPECT_THAT(named<EntryList>(*form, "List1").lines(), ElementsAre("TODAY - new"));
    EXPECT_EQ(rings, 0);
}

TEST_F(Form8Test, TheTimerRebuildsTheHiddenListSilently) {
    occasion("12", "a");
    occasion("13", "b");
    load();
    clock.set(2026y / 3 / 13, seconds(1));
    waitForLines({"TODAY - b"});
    EXPECT_FALSE(form->isVisible());
    EXPECT_EQ(rings, 1);
}

TEST_F(Form8Test, TheTimerRebuildsTheListInView) {
    occasion("12", "a");
    open();
    occasion("12", "b");
    waitForLines({"TODAY - b"});
    EXPECT_THAT(named<EntryList>(*form, "List1").lines(), ElementsAre("TODAY - b"));
}

TEST_F(Form8Test, ThePrintedLinesAreThoseOfTheRebuiltList) {
    open();
    occasion("12", "b");
    waitForLines({"TODAY - b"});
    std::vector<std::string> printed;
    QObject::connect(&*form, &Form8::printWanted, &*form,
                     [&](const std::vector<std::string>& each) { printed = each; });
    press("Command3");
    EXPECT_THAT(printed, ElementsAre("TODAY - b"));
}

TEST_F(Form8Test, TheSameLinesKeepTheirSelection) {
    occasion("12", "a");
    open();
    named<EntryList>(*form, "List1").selectLine("TODAY - a");
    letTimerPass();
    EXPECT_TRUE(named<EntryList>(*form, "List1").hasSelection());
}

TEST_F(Form8Test, StandsBesideTheMainWindowsCorner) {
    window.move(100, 50);
    load().showBeside(window);
    EXPECT_EQ(form->pos(), QPoint(141, 53));
    form->move(7, 9);
    form->presentBeside(window);
    EXPECT_EQ(form->pos(), QPoint(7, 9));
}

TEST_F(Form8Test, StaysOnTheScreen) {
    const QRect room = window.screen()->availableGeometry();
    showActive(window);
    window.move(room.bottomRight());
    load().showBeside(window);
    EXPECT_TRUE(room.contains(form->frameGeometry()));
    form->hide();
    window.move(room.topLeft() - QPoint(900, 600));
    form->showBeside(window);
    EXPECT_EQ(form->pos(), room.topLeft());
}

TEST_F(Form8Test, TheButtonsAskForOtherForms) {
    occasion("12", "a");
    open();
    QSignalSpy datewarden(&*form, &Form8::datewardenWanted);
    QSignalSpy monthly(&*form, &Form8::monthlyWanted);
    QSignalSpy weekly(&*form, &Form8::weeklyWanted);
    std::vector<std::string> printed;
    QObject::connect(&*form, &Form8::printWanted, &*form,
                     [&](const std::vector<std::string>& each) { printed = each; });
    press("Command2");
    press("Command5");
    press("Command6");
    press("Command3");
    EXPECT_EQ(datewarden.count(), 1);
    EXPECT_EQ(monthly.count(), 1);
    EXPECT_EQ(weekly.count(), 1);
    EXPECT_THAT(printed, ElementsAre("TODAY - a"));
    EXPECT_TRUE(form->isVisible());
}

TEST_F(Form8Test, EachWayOfClosingTellsItsEnd) {
    for (const auto& close : std::vector<std::function<void()>>{
             [this] { press("Command1"); }, [this] { QTest::keyClick(&*form, Qt::Key_Escape); },
             [this] { form->close(); }}) {
        open();
        QSignalSpy ends(&*form, &QDialog::finished);
        close();
        EXPECT_EQ(ends.count(), 1);
        EXPECT_FALSE(form->isVisible());
    }
}

}  // namespace
}  // namespace velmora::test
