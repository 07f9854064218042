#include "core/StartUp.h"

#include <gtest/gtest.h>

#include <algorithm>

#include "platform/Failure.h"
#include "support/FakeClock.h"
#include "support/FakeMainForm.h"
#include "support/FakeStatusLine.h"
#include "support/FakeTrayIcon.h"
#include "support/MemorySettings.h"

namespace velmora {
namespace {

class StartUpTest : public ::testing::Test {
  protected:
    void run() {
        StartUp(state, form, settings, clockLine, tray, clock, locale,
                {.watchMenus = [this] { form.log.emplace_back("watch"); },
                 .showLetterA =
                     [this] {
                         form.log.push_back("letter A of " + state.BookFile);
                         if (failing)
                             throw Failure("no book");
                     },
                 .openPlannerDatabase = [this] { form.log.emplace_back("database"); },
                 .showEvents = [this] { form.log.emplace_back("events"); },
                 .keepEventsInFront = [this] { form.log.emplace_back("events in front"); },
                 .setDayLimits = [this] { form.log.emplace_back("limits"); },
                 .reopenDocument = [this] { form.log.emplace_back("document"); },
                 .colourCalendars = [this] { form.log.emplace_back("colour"); },
                 .showToday = [this] { form.log.emplace_back("today"); }})
            .run();
    }

    test::FakeMainForm form;
    test::FakeClock clock;
    test::MemorySettings medium;
    SettingsStore settings{medium};
    LocaleFormats locale;
    SharedState state;
    ClockLine clockLine{form, settings, clock, locale};
    test::FakeTrayIcon icon;
    Tray tray{icon, form};
    bool failing = false;
};

TEST_F(StartUpTest, TheStepsRunInTheirOrder) {
    run();
    EXPECT_EQ(form.log, (std::vector<std::string>{"watch", "letter A of \\DATAY.QEL", "database",
                                                  "tick", "font", "font", "font", "number", "date",
                                                  "events", "events in front", "limits", "document",
                                                  "raise", "show", "colour", "today"}));
    EXPECT_EQ(icon.tip, "Velmora");
}

TEST_F(StartUpTest, TheEventsOfTodayShowWhenEventStartIsEmptyOrOne) {
    for (const char* value : {"", "1", " 1  "}) {
        form.log.clear();
        settings.Save("EventStart", value);
        run();
        EXPECT_EQ(std::ranges::count(form.log, "events"), 1) << value;
        EXPECT_EQ(std::ranges::count(form.log, "events in front"), 1) << value;
    }
}

TEST_F(StartUpTest, AnyOtherEventStartOnlyLoadsTheEventsOfToday) {
    for (const char* value : {"0", " ", "01", "1.0", "yes", "-1", "2"}) {
        form.log.clear();
        settings.Save("EventStart", value);
        run();
        EXPECT_EQ(std::ranges::count(form.log, "events"), 0) << value;
        EXPECT_EQ(std::ranges::count(form.log, "events in front"), 1) << value;
    }
}

TEST_F(StartUpTest, WithNoSettingsThePlannerShowsAndYellowPagesAreOpen) {
    state.BookKind = kWhitePages;
    run();
    EXPECT_EQ(state.PendingBook, -1);
    EXPECT_EQ(state.BookKind, kYellowPages);
    EXPECT_EQ(state.BookFile, "\\DATAY.QEL");
    EXPECT_EQ(form.raised, Pane::Planner);
    EXPECT_EQ(form.dateLine, "Thursday, March 12, 2026");
    EXPECT_EQ(form.lastNumber, "");
    EXPECT_EQ(form.clock, "10:42 AM");
    EXPECT_EQ(form.raiseOfWindow, 170);
    EXPECT_FALSE(form.fonts[FontTarget::DocPad].face);
    EXPECT_FALSE(form.fonts[FontTarget::DocPad].size);
    EXPECT_FALSE(form.fonts[FontTarget::DocPad].colour);
}

TEST_F(StartUpTest, TheWindowIsAskedToComeBackAsItWas) {
    settings.Save("WindowShape", "1300 777 1 400");
    run();
    EXPECT_EQ(form.windowShape, (WindowShape{1300, 777, true, 400}));
}

TEST_F(StartUpTest, AFailingStepStopsNothing) {
    failing = true;
    run();
    EXPECT_EQ(form.log.back(), "today");
}

TEST_F(StartUpTest, SettingsComeBack) {
    settings.Save("LastNumber", "555-0142");
    settings.Save("24hr", "yes");
    settings.Save("DocFont", "Courier New");
    settings.Save("DocFontS", "11.25 pt");
    settings.Save("DocFontC", "255");
    settings.Save("PlanFontS", "9");
    settings.Save("ListFontC", "-2147483640");
    run();
    EXPECT_EQ(form.lastNumber, "555-0142");
    EXPECT_EQ(form.clock, "10:42");
    EXPECT_EQ(form.fonts[FontTarget::DocPad].face, "Courier New");
    EXPECT_EQ(form.fonts[FontTarget::DocPad].size, 11.25);
    EXPECT_EQ(form.fonts[FontTarget::DocPad].colour, 255);
    EXPECT_FALSE(form.fonts[FontTarget::DayView].face);
    EXPECT_EQ(form.fonts[FontTarget::DayView].size, 9);
    EXPECT_EQ(form.fonts[FontTarget::EntryList].colour, -2147483640);
}

TEST_F(StartUpTest, AColourThatIsNoNumberOf32BitsIsLeftOut) {
    settings.Save("ListFontC", "99999999999");
    run();
    EXPECT_FALSE(form.fonts[FontTarget::EntryList].colour);
}

TEST(Tray, BothDoubleClicksBringTheWindowBackAndNothingElseDoes) {
    test::FakeMainForm form;
    test::FakeTrayIcon icon;
    Tray tray(icon, form);
    for (unsigned message = 0x200; message < 0x210; ++message)
        tray.OnTrayMessage(message);
    EXPECT_EQ(form.broughtToFront, 2);
    tray.OnTrayMessage(0x203);
    EXPECT_EQ(form.broughtToFront, 3);
    tray.OnTrayMessage(0x206);
    EXPECT_EQ(form.broughtToFront, 4);
}

}  // namespace
}  // namespace velmora
