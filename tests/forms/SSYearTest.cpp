#include "platform/controls/SSYear.h"

#include <gtest/gtest.h>

#include <QAccessible>
#include <QImage>
#include <QTest>
#include <set>
#include <vector>

#include "platform/Failure.h"
#include "platform/controls/CalendarAccessibility.h"
#include "platform/qt/Theme.h"

namespace velmora {
namespace {

using namespace std::chrono;

class SSYearTest : public testing::Test {
  protected:
    static void SetUpTestSuite() { registerCalendarAccessibility(); }

    SSYearTest() {
        sheet.resize(724, 548);
        QObject::connect(&sheet, &SSYear::selectionChanged,
                         [this](const std::string& date) { events.push_back(date); });
        QObject::connect(&sheet, &SSYear::doubleClicked, [this] { events.emplace_back("double"); });
        QObject::connect(&sheet, &SSYear::captionClicked,
                         [this] { events.emplace_back("caption"); });
    }

    QPoint centreOf(year_month_day date) { return sheet.dateRect(date).center(); }
    QPoint arrow(int direction) {
        return sheet.part(sheet.partCount() - (direction < 0 ? 2 : 1)).rect.center();
    }

    SSYear sheet{LocaleFormats(), CodePage::western(), year(2026) / 3 / 12};
    std::vector<std::string> events;
};

TEST_F(SSYearTest, SettingItsDateReportsItTheSameDateToo) {
    sheet.setDate("03/12/2026");
    sheet.setDate("2/29/2028");
    EXPECT_EQ(events, (std::vector<std::string>{"03/12/2026", "02/29/2028"}));
    EXPECT_EQ(sheet.yearOnShow(), year(2028));
}

TEST_F(SSYearTest, ReachesFromTheYear101To9998) {
    for (const char* text : {"100/12/31", "9999/1/1", "nonsense"}) {
        SCOPED_TRACE(text);
        EXPECT_THROW(sheet.setDate(text), Failure);
    }
    EXPECT_TRUE(events.empty());
    sheet.setDate("101/1/1");
    QTest::mouseClick(&sheet, Qt::LeftButton, {}, arrow(-1));
    EXPECT_EQ(sheet.yearOnShow(), year(101));
    sheet.setDate("9998/12/31");
    QTest::mouseClick(&sheet, Qt::LeftButton, {}, arrow(1));
    EXPECT_EQ(sheet.yearOnShow(), year(9998));
}

TEST_F(SSYearTest, ADoubleClickChoosesTheDateAndThenReportsItself) {
    const QPoint day = centreOf(year(2026) / 8 / 15);
    QTest::mouseClick(&sheet, Qt::LeftButton, {}, day);
    QTest::mouseDClick(&sheet, Qt::LeftButton, {}, day);
    ASSERT_GE(events.size(), 2U);
    EXPECT_EQ(events.front(), "08/15/2026");
    EXPECT_EQ(events.back(), "double");
    EXPECT_EQ(std::count(events.begin(), events.end(), "double"), 1);
}

TEST_F(SSYearTest, TheCaptionReportsAClickAndTheArrowsInItTurnTheYear) {
    QTest::mouseClick(&sheet, Qt::LeftButton, {}, QPoint(362, 20));
    EXPECT_EQ(events, std::vector<std::string>{"caption"});
    QTest::mouseClick(&sheet, Qt::LeftButton, {}, arrow(1));
    QTest::mouseClick(&sheet, Qt::LeftButton, {}, arrow(1));
    QTest::mouseClick(&sheet, Qt::LeftButton, {}, arrow(-1));
    EXPECT_EQ(sheet.yearOnShow(), year(2027));
    EXPECT_EQ(events.size(), 1U);
    EXPECT_EQ(sheet.Date(), "03/12/2026");
}

TEST_F(SSYearTest, AClickOrDoubleClickBesideTheDaysIsNothing) {
    QTest::mouseClick(&sheet, Qt::LeftButton, {}, QPoint(2, 300));
    QTest::mouseDClick(&sheet, Qt::LeftButton, {}, QPoint(2, 300));
    EXPECT_TRUE(events.empty());
}

TEST_F(SSYearTest, EnterAndEscapeDoWhatDoubleClickAndCaptionDo) {
    QTest::keyClick(&sheet, Qt::Key_PageDown);
    QTest::keyClick(&sheet, Qt::Key_Return);
    QTest::keyClick(&sheet, Qt::Key_Escape);
    EXPECT_EQ(events, (std::vector<std::string>{"04/12/2026", "double", "caption"}));
}

TEST_F(SSYearTest, EveryDayOfAnyYearHasAPlaceOfItsOwn) {
    for (const int shown : {2026, 2028, 2023, 101, 9998}) {
        SCOPED_TRACE(shown);
        sheet.setDate(std::to_string(shown) + "/1/1");
        std::set<std::pair<int, int>> places;
        for (sys_days day = year(shown) / 1 / 1; day <= sys_days(year(shown) / 12 / 31);
             day += days(1)) {
            const QRect rect = sheet.dateRect(day);
            EXPECT_TRUE(sheet.rect().contains(rect));
            EXPECT_EQ(sheet.dateAt(rect.center()), year_month_day(day));
            places.insert({rect.left(), rect.top()});
        }
        EXPECT_EQ(places.size(), static_cast<std::size_t>(sheet.partCount() - 2));
    }
}

TEST_F(SSYearTest, AnEventDayIsACellOfExactlyRed) {
    sheet.setStyleSet("Event", {.foreColor = {}, .backColor = Rgb{255, 0, 0}});
    sheet.setDayStyle("08/15/2026", "Event");
    EXPECT_THROW(sheet.setDayStyle("100/8/15", "Event"), Failure);
    EXPECT_THROW(sheet.setDayStyle("08/15/2026", "Party"), Failure);
    const QImage image = sheet.grab().toImage();
    const QRect day = sheet.dateRect(year(2026) / 8 / 15);
    EXPECT_EQ(image.pixelColor(day.left() + 3, day.top() + 3), QColor(255, 0, 0));
    const QRect next = sheet.dateRect(year(2026) / 8 / 16);
    EXPECT_EQ(image.pixelColor(next.left() + 3, next.top() + 3), Theme::of(sheet).surface);
}

TEST_F(SSYearTest, ShowsItsDaysToAssistiveToolsByDate) {
    QAccessibleInterface* interface = QAccessible::queryAccessibleInterface(&sheet);
    ASSERT_EQ(interface->childCount(), 367);
    EXPECT_EQ(interface->child(72)->text(QAccessible::Name), QStringLiteral("14 March 2026"));
    EXPECT_TRUE(interface->child(70)->state().selected);
    interface->child(364)->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
    EXPECT_EQ(sheet.Date(), "12/31/2026");
}

}  // namespace
}  // namespace velmora
