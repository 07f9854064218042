#include <gtest/gtest.h>

#include <QAccessible>
#include <QMimeData>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QTest>
#include <QVBoxLayout>
#include <string>
#include <vector>

#include "app/PlannerAdapters.h"
#include "app/PlannerWiring.h"
#include "forms/Widgets.h"
#include "planner/forms/YearPane.h"
#include "platform/controls/CalendarAccessibility.h"
#include "platform/controls/DragFormats.h"
#include "platform/controls/SSDay.h"
#include "platform/controls/SSMonth.h"
#include "platform/controls/SSYear.h"
#include "support/FakeStatusLine.h"
#include "support/PlannerFixture.h"
#include "support/SamePaths.h"

namespace velmora::test {
namespace {

using namespace std::chrono;
using Texts = std::vector<std::string>;

minutes at(int hour, int minute = 0) {
    return hours(hour) + minutes(minute);
}

// The form around the controls: the long date and the pane of the year.
class PaneDesk final : public PlannerDesk {
  public:
    explicit PaneDesk(YearPane& yearPane) : yearPane_(yearPane) {}

    void SetLongDate(const std::string& text) override { longDate = text; }
    void ShowYearPane() override { yearPane_.open({0, 0}); }
    void HideYearPane() override { yearPane_.hide(); }
    void CloseWeekAtAGlance() override {}

    std::string longDate;

  private:
    YearPane& yearPane_;
};

// The planner with its real controls and a real database, on 12 March 2026, 10:42.
class PlannerPaneTest : public testing::Test {
  protected:
    static void SetUpTestSuite() { registerCalendarAccessibility(); }

    PlannerPaneTest() {
        month.move(0, 0);
        month.resize(260, 260);
        yearButton.setGeometry(0, 300, 100, 30);
        day.setGeometry(270, 0, 500, 1250);  // high enough for the whole day
        window.resize(800, 1250);
        pane.resize(724, 548);
        pane.layout()->activate();
        layDownDatabase(NativePath(path));
        store.OpenDatabase(path);
        connectPlanner({.day = day,
                        .month = month,
                        .year = *sheet,
                        .yearButton = yearButton,
                        .selectedLine = [this] { return selectedLine; },
                        .popUpSchedulingMenu = [this] { ++menus; }},
                       planner, connections);
        planner.SetCalendarStyleSets();
        showActive(window);
        month.setDate(kToday);
    }

    // A row of a day with a tag of its own second, as it lies in the file.
    void add(const char* storedDate, int second, const char* text, const char* begin = "09:00 AM",
             const char* end = "10:00 AM") {
        RawRow row = rowOn(storedDate, second, text);
        row[2] = begin;
        row[3] = end;
        addRawRow(path, row);
    }
    void load() { month.setDate(month.Date()); }

    // "date begin-end text" of each row.
    Texts rows() {
        Texts result;
        for (const RawRow& row : rawRows(path))
            result.push_back(row[1] + " " + row[2] + "-" + row[3] + " " + row[4]);
        return result;
    }
    Texts blocks() {
        Texts result;
        for (int i = 0; i < day.Tasks().Count(); ++i)
            result.push_back(day.Tasks().Item(i).text);
        return result;
    }

    QPoint inSlot(minutes time) { return day.slotRect(time).center(); }
    QPlainTextEdit& editor() { return named<QPlainTextEdit>(day); }
    template <typename Widget>
    static Widget& named(const QWidget& parent) {
        auto* found = parent.findChild<Widget*>();
        if (!found)
            throw std::runtime_error("no such widget");
        return *found;
    }
    // Begins a block at 2:30 PM and leaves its editor open.
    void beginTyping(const char* text) {
        QTest::mouseClick(&day, Qt::LeftButton, {}, inSlot(at(14, 30)));
        QTest::keyClicks(&day, QString::fromLatin1(text).left(1));
        QTest::keyClicks(&editor(), QString::fromLatin1(text).mid(1));
        ASSERT_TRUE(day.isEditing());
    }

    void send(QEvent::Type type, const QPoint& point) {
        const bool held = type != QEvent::MouseButtonRelease;
        QMouseEvent event(type, point, day.mapToGlobal(point),
                          type == QEvent::MouseMove ? Qt::NoButton : Qt::LeftButton,
                          held ? Qt::LeftButton : Qt::NoButton, Qt::NoModifier);
        QCoreApplication::sendEvent(&day, &event);
    }
    void drag(const QPoint& from, const QPoint& to) {
        send(QEvent::MouseButtonPress, from);
        send(QEvent::MouseMove, (from + to) / 2);
        send(QEvent::MouseMove, to);
        send(QEvent::MouseButtonRelease, to);
    }
    void drop(const QPoint& point, const QMimeData& data) {
        QDragEnterEvent enter(point, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
        QCoreApplication::sendEvent(&month, &enter);
        QDropEvent event(point, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
        QCoreApplication::sendEvent(&month, &event);
    }
    void clickMonth(year_month_day date) {
        QTest::mouseClick(&month, Qt::LeftButton, {}, month.dateRect(date).center());
    }

    // Whether any pixel of the day's cell is exactly red.
    static constexpr const char* kToday = "03/12/2026";
    static constexpr year_month_day kTodayDate = year(2026) / 3 / 12;

    TemporaryFolder folder;
    std::string path = folder.file("qel.mdb");
    FakeClock clock;
    MemorySettings medium;
    SettingsStore settings{medium};
    LocaleFormats formats;
    FakeStatusLine status;
    std::string selectedLine;
    int menus = 0;

    QWidget window;
    SSMonth month{formats, CodePage::western(), kTodayDate, &window};
    QPushButton yearButton{QStringLiteral("Yea&r"), &window};
    SSDay day{CodePage::western(), &window};
    SSYear* sheet = new SSYear(formats, CodePage::western(), kTodayDate);
    YearPane pane{sheet, &window};

    DayAdapter dayAdapter{day};
    MonthAdapter monthAdapter{month};
    YearAdapter yearAdapter{*sheet};
    PaneDesk desk{pane};
    AppointmentStore store{CodePage::western(), clock, test::appointmentSource(), milliseconds(50)};
    Planner planner{store,  {dayAdapter, monthAdapter, yearAdapter, desk}, status, settings, clock,
                    formats};
    QObject connections;  // ends them before the planner is gone
};

// --- What is done in the day view ---

TEST_F(PlannerPaneTest, TypingIntoASlotAddsARow) {
    beginTyping("Dentist");
    EXPECT_TRUE(rows().empty());
    QTest::keyClick(&editor(), Qt::Key_Return);
    const std::vector<RawRow> stored = rawRows(path);
    ASSERT_EQ(stored.size(), 1U);
    EXPECT_EQ(stored[0], (RawRow{"2026-03-12 10:42:00", "2026-03-12", "02:30 PM", "03:00 PM",
                                 "Dentist", "Event"}));
    EXPECT_EQ(day.Tasks().Item(0).TagVariant, "2026-03-12 10:42:00");
    EXPECT_TRUE(test::isRed(month, kTodayDate));
    EXPECT_FALSE(test::isRed(month, year(2026) / 3 / 13));
    EXPECT_TRUE(test::isRed(*sheet, kTodayDate));
}

TEST_F(PlannerPaneTest, TextThatIsDroppedAddsNone) {
    beginTyping("Dentist");
    QTest::keyClick(&editor(), Qt::Key_Escape);
    EXPECT_TRUE(rows().empty());
    EXPECT_EQ(day.Tasks().Count(), 0);
    EXPECT_FALSE(test::isRed(month, kTodayDate));
}

TEST_F(PlannerPaneTest, TypingAgainChangesTheRowThatIsThere) {
    beginTyping("Dentist");
    QTest::keyClick(&editor(), Qt::Key_Return);
    QTest::keyClick(&day, Qt::Key_F2);
    QTest::keyClick(&editor(), Qt::Key_End);
    QTest::keyClicks(&editor(), QStringLiteral(" Dr. Moss"));
    QTest::keyClick(&editor(), Qt::Key_Return);
    EXPECT_EQ(rows(), Texts{"2026-03-12 02:30 PM-03:00 PM Dentist Dr. Moss"});
}

TEST_F(PlannerPaneTest, DraggingADividerChangesTheRowAndMakesNoSecondOne) {
    beginTyping("Dentist");
    QTest::keyClick(&editor(), Qt::Key_Return);
    const QRect block = day.blockRect(0);
    drag({block.center().x(), block.bottom()},
         {block.center().x(), block.bottom() + day.slotRect(at(12)).height()});
    EXPECT_EQ(rows(), Texts{"2026-03-12 02:30 PM-03:30 PM Dentist"});
}

TEST_F(PlannerPaneTest, AnEditKeepsTimesAsTheyWereWrittenAndMakesTheStyleEvent) {
    addRawRow(path, {"2026-01-01 08:00:01", "2026-03-12", "1:00 PM", "2 PM", "Lunch", "Vacation"});
    load();
    QTest::mouseDClick(&day, Qt::LeftButton, {}, day.blockRect(0).center());
    QTest::keyClicks(&editor(), QStringLiteral("!"));
    QTest::keyClick(&editor(), Qt::Key_Return);
    EXPECT_EQ(rawRows(path)[0], (RawRow{"2026-01-01 08:00:01", "2026-03-12", "1:00 PM", "2 PM",
                                        rawRows(path)[0][4], "Event"}));
    EXPECT_NE(rawRows(path)[0][4], "Lunch");
}

TEST_F(PlannerPaneTest, DeleteRemovesTheRowAndTheStyleOfTheDay) {
    add("2026-03-12", 1, "first");
    add("2026-03-12", 2, "second", "1:00 PM", "2:00 PM");
    planner.UpdateDays();
    load();
    QTest::mouseClick(&day, Qt::LeftButton, {}, day.blockRect(0).center());
    QTest::keyClick(&day, Qt::Key_Delete);
    EXPECT_EQ(rows(), Texts{"2026-03-12 1:00 PM-2:00 PM second"});
    EXPECT_EQ(blocks(), Texts{"second"});
    EXPECT_TRUE(test::isRed(month, kTodayDate)) << "another row is left on the day";
    EXPECT_TRUE(test::isRed(*sheet, kTodayDate));
    QTest::mouseClick(&day, Qt::LeftButton, {}, day.blockRect(0).center());
    QTest::keyClick(&day, Qt::Key_Delete);
    EXPECT_TRUE(rows().empty());
    EXPECT_EQ(day.Tasks().Count(), 0);
    EXPECT_FALSE(test::isRed(month, kTodayDate));
    EXPECT_FALSE(test::isRed(*sheet, kTodayDate));
}

TEST_F(PlannerPaneTest, OfTwoRowsWithOneTagTheFirstIsChangedAndRemoved) {
    add("2026-03-12", 1, "first");
    add("2026-03-12", 1, "second", "1:00 PM", "2:00 PM");
    load();
    ASSERT_EQ(blocks(), (Texts{"first", "second"}));
    QTest::mouseDClick(&day, Qt::LeftButton, {}, day.blockRect(1).center());
    QTest::keyClick(&editor(), Qt::Key_A, Qt::ControlModifier);
    QTest::keyClicks(&editor(), QStringLiteral("changed"));
    QTest::keyClick(&editor(), Qt::Key_Return);
    EXPECT_EQ(rows(),
              (Texts{"2026-03-12 1:00 PM-2:00 PM changed", "2026-03-12 1:00 PM-2:00 PM second"}));
    QTest::keyClick(&day, Qt::Key_Delete);
    EXPECT_EQ(rows(), Texts{"2026-03-12 1:00 PM-2:00 PM second"});
    EXPECT_EQ(blocks(), Texts{"first"});
}

TEST_F(PlannerPaneTest, TheAfternoonBlocksOfAnotherDayDoNotShow) {
    add("2026-03-12", 1, "today");
    add("2026-03-13", 2, "tomorrow");
    load();
    EXPECT_EQ(blocks(), Texts{"today"});
    clickMonth(year(2026) / 3 / 13);
    EXPECT_EQ(blocks(), Texts{"tomorrow"});
    EXPECT_EQ(desk.longDate, "Friday, March 13, 2026");
}

TEST_F(PlannerPaneTest, ADatabaseThatIsMissingLeavesTheControlsUsable) {
    store.OpenDatabase(folder.file("nowhere.mdb"));
    beginTyping("Dentist");
    QTest::keyClick(&editor(), Qt::Key_Return);
    EXPECT_EQ(blocks(), Texts{"Dentist"});
    EXPECT_EQ(day.Tasks().Item(0).TagVariant, "");
    clickMonth(year(2026) / 3 / 13);
    EXPECT_TRUE(blocks().empty());
    EXPECT_FALSE(folder.has("nowhere.mdb"));
}

// --- The date moves while something is being typed ---

class TypedBeforeTheDateMoves : public PlannerPaneTest {
  protected:
    void expectStoredOnToday() {
        EXPECT_EQ(rows(), Texts{"2026-03-12 02:30 PM-03:00 PM Dentist"});
        EXPECT_FALSE(day.isEditing());
    }
};

TEST_F(TypedBeforeTheDateMoves, ByAClickInTheMonth) {
    beginTyping("Dentist");
    clickMonth(year(2026) / 3 / 20);
    expectStoredOnToday();
    EXPECT_EQ(month.Date(), "03/20/2026");
    EXPECT_TRUE(blocks().empty());
}

TEST_F(TypedBeforeTheDateMoves, ByTheCommandThatGoesToToday) {
    clock.set(year(2026) / 4 / 1, hours(9));
    beginTyping("Dentist");
    planner.GoToToday();
    expectStoredOnToday();
    EXPECT_EQ(month.Date(), "04/01/2026");
}

TEST_F(TypedBeforeTheDateMoves, ByTheSameDateChosenAgain) {
    beginTyping("Dentist");
    monthAdapter.SetDate(kToday);
    expectStoredOnToday();
    EXPECT_EQ(blocks(), Texts{"Dentist"});
}

TEST_F(TypedBeforeTheDateMoves, ByADrop) {
    selectedLine = "Barlow, Edith";
    beginTyping("Dentist");
    QMimeData data;
    data.setData(QString::fromLatin1(kEntryFormat), QByteArray::fromStdString(selectedLine));
    drop(month.dateRect(year(2026) / 3 / 20).center(), data);
    expectStoredOnToday();
    EXPECT_EQ(month.Date(), "03/20/2026");
    EXPECT_EQ(menus, 1);
}

TEST_F(TypedBeforeTheDateMoves, ByAnAssistiveTool) {
    beginTyping("Dentist");
    QAccessibleInterface* interface = QAccessible::queryAccessibleInterface(&month);
    for (int i = 0; i < interface->childCount(); ++i)
        if (interface->child(i)->text(QAccessible::Name) == QStringLiteral("20 March 2026"))
            interface->child(i)->actionInterface()->doAction(
                QAccessibleActionInterface::pressAction());
    expectStoredOnToday();
    EXPECT_EQ(month.Date(), "03/20/2026");
}

TEST_F(TypedBeforeTheDateMoves, ByADoubleClickInTheYear) {
    beginTyping("Dentist");
    QTest::mouseClick(&yearButton, Qt::LeftButton);
    const QPoint august = sheet->dateRect(year(2026) / 8 / 15).center();
    QTest::mouseClick(sheet, Qt::LeftButton, {}, august);
    QTest::mouseDClick(sheet, Qt::LeftButton, {}, august);
    expectStoredOnToday();
    EXPECT_EQ(month.Date(), "08/15/2026");
}

TEST_F(TypedBeforeTheDateMoves, ADateThatIsRefusedLeavesTheEditorOpen) {
    beginTyping("Dentist");
    EXPECT_THROW(monthAdapter.SetDate("99/99/99"), Failure);
    EXPECT_TRUE(day.isEditing());
    EXPECT_TRUE(rows().empty());
}

// --- Drops on the month ---

TEST_F(PlannerPaneTest, ADropBesideTheDatesChangesNothing) {
    add("2026-03-12", 1, "today");
    load();
    selectedLine = "Barlow, Edith";
    QMimeData data;
    data.setData(QString::fromLatin1(kEntryFormat), QByteArray::fromStdString(selectedLine));
    drop({20, 3}, data);
    EXPECT_EQ(month.Date(), kToday);
    EXPECT_EQ(blocks(), Texts{"today"});
    EXPECT_EQ(menus, 0);
}

TEST_F(PlannerPaneTest, ADropOfSomethingElseShowsTheDateWithoutAMenu) {
    add("2026-03-20", 1, "far");
    selectedLine = "Barlow, Edith";
    QMimeData text;
    text.setText(QStringLiteral("Barlow, Edith"));
    drop(month.dateRect(year(2026) / 3 / 20).center(), text);
    EXPECT_EQ(month.Date(), "03/20/2026");
    EXPECT_EQ(blocks(), Texts{"far"});
    EXPECT_EQ(menus, 0);
}

// --- The year ---

TEST_F(PlannerPaneTest, TheYearOpensOnTheDateOfTheMonth) {
    month.setDate("07/04/2031");
    QTest::mouseClick(&yearButton, Qt::LeftButton);
    EXPECT_TRUE(pane.isVisible());
    EXPECT_TRUE(sheet->hasFocus());
    EXPECT_EQ(sheet->Date(), "07/04/2031");
    EXPECT_EQ(status.text, "Double-click a date or click the caption to close.");
}

TEST_F(PlannerPaneTest, ADoubleClickInTheYearGoesThereAndClosesIt) {
    add("2026-08-15", 1, "summer");
    QTest::mouseClick(&yearButton, Qt::LeftButton);
    const QPoint august = sheet->dateRect(year(2026) / 8 / 15).center();
    QTest::mouseClick(sheet, Qt::LeftButton, {}, august);
    EXPECT_EQ(month.Date(), kToday);
    EXPECT_TRUE(blocks().empty());
    QTest::mouseDClick(sheet, Qt::LeftButton, {}, august);
    EXPECT_FALSE(pane.isVisible());
    EXPECT_EQ(month.Date(), "08/15/2026");
    EXPECT_EQ(blocks(), Texts{"summer"});
    EXPECT_EQ(planner.SelectedDate(), "08/15/26");
}

TEST_F(PlannerPaneTest, AClickOnTheCaptionClosesTheYearAndTheMonthStays) {
    add("2026-03-12", 1, "today");
    load();
    QTest::mouseClick(&yearButton, Qt::LeftButton);
    QTest::mouseClick(sheet, Qt::LeftButton, {}, sheet->dateRect(year(2026) / 8 / 15).center());
    QTest::mouseClick(sheet, Qt::LeftButton, {}, QPoint(sheet->width() / 2, 20));
    EXPECT_FALSE(pane.isVisible());
    EXPECT_EQ(month.Date(), kToday);
    EXPECT_EQ(blocks(), Texts{"today"});
    EXPECT_EQ(planner.SelectedDate(), "08/15/2026");
}

TEST_F(PlannerPaneTest, AnEditOfADayThatTheMonthIsNotOnMovesTheMonthThere) {
    add("2026-03-12", 1, "stranger");
    add("2026-08-15", 2, "summer");
    QTest::mouseClick(&yearButton, Qt::LeftButton);
    QTest::mouseClick(sheet, Qt::LeftButton, {}, sheet->dateRect(year(2026) / 8 / 15).center());
    QTest::mouseClick(sheet, Qt::LeftButton, {}, QPoint(sheet->width() / 2, 20));
    planner.LoadDayTasks();  // as a scheduling command does
    ASSERT_EQ(blocks(), Texts{"summer"});
    QTest::mouseDClick(&day, Qt::LeftButton, {}, day.blockRect(0).center());
    QTest::keyClick(&editor(), Qt::Key_A, Qt::ControlModifier);
    QTest::keyClicks(&editor(), QStringLiteral("holiday"));
    QTest::keyClick(&editor(), Qt::Key_Return);
    EXPECT_EQ(month.Date(), "08/15/2026");
    EXPECT_EQ(rows(), (Texts{"2026-03-12 09:00 AM-10:00 AM stranger",
                             "2026-08-15 09:00 AM-10:00 AM holiday"}));
}

// --- The status line ---

TEST_F(PlannerPaneTest, TheStatusLineHelpsWithTheMonthAndTheDay) {
    month.setFocus();
    EXPECT_EQ(status.text, "Press CTRL+T to go to today.");
    day.setFocus();
    EXPECT_EQ(status.text, "");
    send(QEvent::MouseMove, inSlot(at(10)));
    EXPECT_EQ(status.text, "Drag horizontal divider bars to adjust times.");
}

}  // namespace
}  // namespace velmora::test
