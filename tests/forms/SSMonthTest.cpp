#include "platform/controls/SSMonth.h"

#include <gtest/gtest.h>

#include <QAccessible>
#include <QDragEnterEvent>
#include <QImage>
#include <QMimeData>
#include <QTest>
#include <QWheelEvent>
#include <vector>

#include "forms/Widgets.h"
#include "platform/Failure.h"
#include "platform/controls/CalendarAccessibility.h"
#include "platform/controls/DragFormats.h"
#include "platform/qt/Theme.h"

namespace velmora {
namespace {

using namespace std::chrono;

class SSMonthTest : public testing::Test {
  protected:
    static void SetUpTestSuite() { registerCalendarAccessibility(); }

    SSMonthTest() {
        month.resize(month.sizeHint());
        QObject::connect(&month, &SSMonth::selectionChanged,
                         [this](const std::string& date) { chosen.push_back(date); });
        QObject::connect(&month, &SSMonth::dropped,
                         [this](const QPoint& point, const QByteArray& entry) {
                             drops.push_back({month.dateAt(point), entry});
                         });
    }

    QPoint centreOf(year_month_day date) { return month.dateRect(date).center(); }

    void clickArrow(int direction) {
        QTest::mouseClick(&month, Qt::LeftButton, {}, arrow(direction));
    }

    QPoint arrow(int direction) { return month.part(direction < 0 ? 42 : 43).rect.center(); }

    void drop(const QPoint& point, const QMimeData& data) {
        QDragEnterEvent enter(point, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
        QApplication::sendEvent(&month, &enter);
        QDropEvent event(point, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
        QApplication::sendEvent(&month, &event);
        EXPECT_TRUE(event.isAccepted());
    }

    QColor colourAt(const QPoint& point) { return month.grab().toImage().pixelColor(point); }

    struct Drop {
        std::optional<year_month_day> date;
        QByteArray entry;
    };

    SSMonth month{LocaleFormats(), CodePage::western(), year(2026) / 3 / 12};
    std::vector<std::string> chosen;
    std::vector<Drop> drops;
};

TEST_F(SSMonthTest, StartsOnTodayWithoutReportingIt) {
    EXPECT_EQ(month.Date(), "03/12/2026");
    EXPECT_EQ(month.monthOnShow(), year(2026) / 3);
    EXPECT_TRUE(chosen.empty());
}

TEST_F(SSMonthTest, EachSettingOfTheDateReportsItAtOnceTheSameDateToo) {
    month.setDate("4/5/2027");
    EXPECT_EQ(chosen, std::vector<std::string>{"04/05/2027"});
    month.setDate("2027-04-05");
    EXPECT_EQ(chosen, (std::vector<std::string>{"04/05/2027", "04/05/2027"}));
    EXPECT_EQ(month.monthOnShow(), year(2027) / 4);
}

TEST_F(SSMonthTest, ADateThatCanNotBeReadOrReachedChangesNothingAndIsAFailure) {
    for (const char* text : {"", "(Today)", "99/12/31", "2/30/2026"}) {
        SCOPED_TRACE(text);
        EXPECT_THROW(month.setDate(text), Failure);
    }
    EXPECT_EQ(month.Date(), "03/12/2026");
    EXPECT_TRUE(chosen.empty());
}

TEST_F(SSMonthTest, ReachesFromTheYear100To9999) {
    month.setDate("100/1/1");
    EXPECT_EQ(month.Date(), "01/01/0100");
    EXPECT_EQ(month.dateAt(month.part(0).rect.center()), std::nullopt);  // a day of the year 99
    clickArrow(-1);
    EXPECT_EQ(month.monthOnShow(), year(100) / 1);
    month.setDate("9999/12/31");
    EXPECT_EQ(month.Date(), "12/31/9999");
    clickArrow(1);
    EXPECT_EQ(month.monthOnShow(), year(9999) / 12);
    EXPECT_FALSE(month.grab().isNull());
}

TEST_F(SSMonthTest, AClickChoosesTheDateUnderIt) {
    QTest::mouseClick(&month, Qt::LeftButton, {}, centreOf(year(2026) / 3 / 20));
    EXPECT_EQ(month.Date(), "03/20/2026");
    QTest::mouseClick(&month, Qt::LeftButton, {}, centreOf(year(2026) / 4 / 3));
    EXPECT_EQ(chosen, (std::vector<std::string>{"03/20/2026", "04/03/2026"}));
    EXPECT_EQ(month.monthOnShow(), year(2026) / 4);
    QTest::mouseClick(&month, Qt::RightButton, {}, centreOf(year(2026) / 4 / 9));
    EXPECT_EQ(chosen.size(), 2U);
}

TEST_F(SSMonthTest, ArrowsAndWheelLeafWithoutChoosing) {
    clickArrow(1);
    clickArrow(1);
    EXPECT_EQ(month.monthOnShow(), year(2026) / 5);
    clickArrow(-1);
    EXPECT_EQ(month.monthOnShow(), year(2026) / 4);
    QWheelEvent wheel(QPointF(50, 100), month.mapToGlobal(QPointF(50, 100)), {}, QPoint(0, 240),
                      Qt::NoButton, Qt::NoModifier, Qt::NoScrollPhase, false);
    QApplication::sendEvent(&month, &wheel);
    EXPECT_EQ(month.monthOnShow(), year(2026) / 2);
    EXPECT_TRUE(chosen.empty());
    EXPECT_EQ(month.Date(), "03/12/2026");
    month.setDate("03/12/2026");
    EXPECT_EQ(month.monthOnShow(), year(2026) / 3);
}

TEST_F(SSMonthTest, KeysMoveTheDate) {
    struct Row {
        Qt::Key key;
        Qt::KeyboardModifiers modifiers;
        const char* date;
    };
    for (const Row& row :
         {Row{Qt::Key_Left, {}, "03/11/2026"}, Row{Qt::Key_Up, {}, "03/04/2026"},
          Row{Qt::Key_Right, {}, "03/05/2026"}, Row{Qt::Key_Down, {}, "03/12/2026"},
          Row{Qt::Key_PageDown, {}, "04/12/2026"}, Row{Qt::Key_PageUp, {}, "03/12/2026"},
          Row{Qt::Key_PageDown, Qt::ControlModifier, "03/12/2027"},
          Row{Qt::Key_PageUp, Qt::ControlModifier, "03/12/2026"},
          Row{Qt::Key_Home, {}, "03/01/2026"}, Row{Qt::Key_End, {}, "03/31/2026"}}) {
        SCOPED_TRACE(row.date);
        QTest::keyClick(&month, row.key, row.modifiers);
        EXPECT_EQ(month.Date(), row.date);
        EXPECT_EQ(chosen.back(), row.date);
    }
    EXPECT_EQ(chosen.size(), 10U);
}

TEST_F(SSMonthTest, ADropReportsThePointAndTheEntry) {
    QMimeData entry;
    entry.setData(kEntryFormat, "Bellweather, Adrian");
    drop(centreOf(year(2026) / 3 / 20), entry);
    ASSERT_EQ(drops.size(), 1U);
    EXPECT_EQ(drops[0].date, year(2026) / 3 / 20);
    EXPECT_EQ(drops[0].entry, "Bellweather, Adrian");
    EXPECT_EQ(month.Date(), "03/12/2026");  // what follows is the listener's business
    EXPECT_TRUE(chosen.empty());
}

TEST_F(SSMonthTest, ADropOfSomethingElseAndADropBesideTheDaysAreReportedToo) {
    QMimeData text;
    text.setText(QStringLiteral("Bellweather, Adrian"));
    drop(centreOf(year(2026) / 3 / 20), text);
    QMimeData entry;
    entry.setData(kEntryFormat, "");
    drop(QPoint(10, 5), entry);
    ASSERT_EQ(drops.size(), 2U);
    EXPECT_TRUE(drops[0].entry.isNull());
    EXPECT_EQ(drops[1].date, std::nullopt);
    EXPECT_FALSE(drops[1].entry.isNull());
}

TEST_F(SSMonthTest, TheCellUnderADragIsMarkedUntilTheDragLeaves) {
    const year_month_day date = year(2026) / 3 / 25;
    const QPoint beside = centreOf(date) - QPoint(10, 8);
    QMimeData data;
    data.setData(kEntryFormat, "x");
    QDragEnterEvent enter(centreOf(date), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(&month, &enter);
    EXPECT_TRUE(enter.isAccepted());
    EXPECT_EQ(colourAt(beside), Theme::of(month).tint);
    QDragLeaveEvent leave;
    QApplication::sendEvent(&month, &leave);
    EXPECT_EQ(colourAt(beside), Theme::of(month).surface);
}

TEST_F(SSMonthTest, TheCellUnderThePointerIsMarked) {
    const year_month_day date = year(2026) / 3 / 25;
    const QPoint beside = centreOf(date) - QPoint(10, 8);
    QTest::mouseMove(&month, centreOf(date));
    QMouseEvent move(QEvent::MouseMove, centreOf(date), month.mapToGlobal(centreOf(date)),
                     Qt::NoButton, Qt::NoButton, Qt::NoModifier);
    QApplication::sendEvent(&month, &move);
    EXPECT_EQ(colourAt(beside), Theme::of(month).hover);
    QEvent leave(QEvent::Leave);
    QApplication::sendEvent(&month, &leave);
    EXPECT_EQ(colourAt(beside), Theme::of(month).surface);
}

TEST_F(SSMonthTest, AStyleColoursItsDayAndOneOfAnUnknownNameFails) {
    month.setStyleSet("Meeting", {.foreColor = {}, .backColor = Rgb{255, 255, 0}});
    month.setStyleSet("None", {.foreColor = Rgb{0, 0, 0}, .backColor = {}});
    const QPoint beside = centreOf(year(2026) / 3 / 25) - QPoint(10, 8);
    month.setDayStyle("03/25/2026", "Meeting");
    EXPECT_EQ(colourAt(beside), QColor(255, 255, 0));
    EXPECT_THROW(month.setDayStyle("03/25/2026", "Party"), Failure);
    EXPECT_EQ(colourAt(beside), QColor(255, 255, 0));
    month.setDayStyle("03/25/2026", "None");
    EXPECT_EQ(colourAt(beside), Theme::of(month).surface);
}

TEST_F(SSMonthTest, AnEventDayIsExactlyRedWhileItIsSelectedToo) {
    month.setStyleSet("Event", {.foreColor = Rgb{255, 0, 0}, .backColor = {}});
    month.setDayStyle("03/12/2026", "Event");
    const QImage cell =
        month.grab(month.dateRect(year(2026) / 3 / 12).adjusted(6, 6, -6, -6)).toImage();
    bool red = false;
    for (int y = 0; y < cell.height(); ++y)
        for (int x = 0; x < cell.width(); ++x)
            red = red || cell.pixelColor(x, y) == QColor(255, 0, 0);
    EXPECT_TRUE(red);
}

TEST_F(SSMonthTest, TellsWhenTheFocusComesAndGoes) {
    std::vector<const char*> told;
    QObject::connect(&month, &SSMonth::focusEntered, [&] { told.push_back("in"); });
    QObject::connect(&month, &SSMonth::focusLeft, [&] { told.push_back("out"); });
    QFocusEvent in(QEvent::FocusIn, Qt::TabFocusReason);
    QFocusEvent out(QEvent::FocusOut, Qt::TabFocusReason);
    QApplication::sendEvent(&month, &in);
    QApplication::sendEvent(&month, &out);
    ASSERT_EQ(told.size(), 2U);
    EXPECT_STREQ(told[0], "in");
    EXPECT_STREQ(told[1], "out");
    EXPECT_EQ(month.focusPolicy(), Qt::StrongFocus);
}

TEST_F(SSMonthTest, AMenuThatTakesTheKeysIsNoLossOfFocus) {
    int told = 0;
    QObject::connect(&month, &SSMonth::focusEntered, [&] { ++told; });
    QObject::connect(&month, &SSMonth::focusLeft, [&] { ++told; });
    for (const Qt::FocusReason reason : {Qt::MenuBarFocusReason, Qt::PopupFocusReason}) {
        QFocusEvent out(QEvent::FocusOut, reason);
        QFocusEvent in(QEvent::FocusIn, reason);
        QApplication::sendEvent(&month, &out);
        QApplication::sendEvent(&month, &in);
    }
    EXPECT_EQ(told, 0);
}

TEST_F(SSMonthTest, KeepsAPlaceForAButtonInItsCaption) {
    const QPoint without = arrow(1);
    month.setCaptionReserve(60);
    EXPECT_EQ(arrow(1), without - QPoint(60, 0));
    QTest::mouseClick(&month, Qt::LeftButton, {}, without);
    EXPECT_EQ(month.monthOnShow(), year(2026) / 3);
}

// In the left column of a small window, beside the button there.
TEST_F(SSMonthTest, AMonthWhoseNameHasNoRoomIsCalledByItsShortOneWithItsYear) {
    LocaleFormats brief;
    brief.months = brief.shortMonths;
    SSMonth other(brief, CodePage::western(), year(2026) / 3 / 12);
    const auto captionOf = [](SSMonth& shown, year_month_day date, int width) {
        shown.setCaptionReserve(60);
        shown.resize(width, shown.sizeHint().height());
        shown.setDate(date);
        return shown.grab(QRect(0, 0, width - 60, shown.captionHeight())).toImage();
    };
    for (const int number : {9, 11, 12}) {
        const year_month_day date = year(2026) / number / 12;
        EXPECT_EQ(captionOf(month, date, 212), captionOf(other, date, 212)) << number;
        EXPECT_TRUE(test::toolTipAt(month, {10, 10}).contains(QStringLiteral("ember 2026")));
        EXPECT_NE(captionOf(month, date, 300), captionOf(other, date, 300)) << number;
        EXPECT_EQ(test::toolTipAt(month, {10, 10}), QString());
    }
}

TEST_F(SSMonthTest, ShowsItsDaysToAssistiveToolsByDate) {
    QAccessibleInterface* interface = QAccessible::queryAccessibleInterface(&month);
    ASSERT_EQ(interface->childCount(), 44);
    QAccessibleInterface* day = interface->child(13);
    EXPECT_EQ(day->text(QAccessible::Name), QStringLiteral("14 March 2026"));
    EXPECT_EQ(day->rect().size(), month.dateRect(year(2026) / 3 / 14).size());
    EXPECT_FALSE(day->state().selected);
    EXPECT_TRUE(interface->child(11)->state().selected);
    EXPECT_EQ(interface->indexOfChild(day), 13);
    EXPECT_EQ(interface->childAt(day->rect().center().x(), day->rect().center().y()), day);
    day->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
    EXPECT_EQ(month.Date(), "03/14/2026");
    EXPECT_EQ(interface->child(43)->text(QAccessible::Name), QStringLiteral("Next month"));
}

TEST_F(SSMonthTest, TellsOfADayThatItIsTodayAndHowManyAppointmentsItHas) {
    month.setToday(year(2026) / 3 / 12);
    month.setCounter([](year_month_day date) {
        return date == year(2026) / 3 / 12 ? 3 : date == year(2026) / 3 / 13 ? 1 : 0;
    });
    month.show();
    QAccessibleInterface* interface = QAccessible::queryAccessibleInterface(&month);
    const auto told = [&](int cell) {
        return interface->child(cell)->text(QAccessible::Description);
    };
    EXPECT_EQ(interface->child(11)->text(QAccessible::Name), QStringLiteral("12 March 2026"));
    EXPECT_EQ(told(11), QStringLiteral("today, 3 appointments"));
    EXPECT_EQ(told(12), QStringLiteral("1 appointment"));
    EXPECT_EQ(told(13), QString());
    EXPECT_EQ(told(43), QString());
}

TEST(SSMonthLocale, BeginsItsWeeksAsTheLocaleDoes) {
    LocaleFormats locale;
    locale.firstWeekday = 1;
    SSMonth month(locale, CodePage::western(), year(2026) / 3 / 12);
    EXPECT_EQ(month.part(0).name, QStringLiteral("23 February 2026"));
}

}  // namespace
}  // namespace velmora
