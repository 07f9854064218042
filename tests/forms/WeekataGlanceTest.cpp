#include "planner/forms/WeekataGlance.h"

#include <gmock/gmock.h>

#include <QPushButton>
#include <algorithm>

#include "core/DataLocations.h"
#include "forms/Widgets.h"
#include "platform/controls/SSDay.h"
#include "platform/files/PosixFiles.h"
#include "support/PlannerFixture.h"

namespace velmora::test {
namespace {

using namespace std::chrono_literals;

// The month stands on Thursday, 12 March 2026.
class WeekataGlanceTest : public testing::Test, protected PlannerFixture {
  protected:
    void open() {
        form.present();
        ASSERT_TRUE(QTest::qWaitForWindowActive(&form));
    }
    SSDay& day(int number) {
        return named<SSDay>(form, ("SSDay" + std::to_string(number)).c_str());
    }
    QPushButton& closeButton() { return named<QPushButton>(form, "Command1"); }

    // Another window gets the focus, and loses it again.
    void leaveAndComeBack() {
        QWidget other;
        showActive(other);
        form.activateWindow();
        ASSERT_TRUE(QTest::qWaitForWindowActive(&form));
    }

    PosixFiles files{NativePaths(CodePage::western())};
    DataLocations locations{folder.path(), settings, files, CodePage::western()};
    SqliteAppointmentSource source{files};
    WeekLoad load{locations, source, CodePage::western(), SSMonth1, clock, formats};
    WeekataGlance form{load, CodePage::western()};
};

TEST_F(WeekataGlanceTest, BeginsWithItsNameAndShowsTheWeekWhenItOpens) {
    EXPECT_EQ(form.windowTitle(), QStringLiteral("Week at a Glance"));
    add(rowOn("2026-03-13", 1, "Dentist"));
    open();
    EXPECT_EQ(form.windowTitle(), QStringLiteral("Week at Glance From Thursday, March 12, 2026"));
    EXPECT_EQ(day(1).Tasks().Count(), 1);
    EXPECT_EQ(day(1).Tasks().Item(0).text, "Dentist");
    EXPECT_EQ(day(1).Tasks().Item(0).TagVariant, "2026-01-01 08:00:01");
    EXPECT_EQ(day(1).accessibleName(), QStringLiteral("Friday, March 13, 2026"));
    EXPECT_EQ(day(6).Tasks().Count(), 0);
    EXPECT_FALSE(form.isModal());
    EXPECT_EQ(closeButton().text(), QStringLiteral("&Close"));
    EXPECT_TRUE(closeButton().isDefault());
    EXPECT_TRUE(closeButton().hasFocus());
}

TEST_F(WeekataGlanceTest, SixEqualColumnsStretchWithTheForm) {
    open();
    const auto difference = [this] {
        int least = day(1).width(), most = least;
        for (int number = 2; number <= 6; ++number) {
            least = std::min(least, day(number).width());
            most = std::max(most, day(number).width());
        }
        return most - least;
    };
    EXPECT_LE(difference(), 1);
    const int before = day(1).width();
    form.resize(form.width() + 300, form.height());
    QCoreApplication::processEvents();
    EXPECT_LE(difference(), 1);
    EXPECT_GE(day(1).width(), before + 49);
}

TEST_F(WeekataGlanceTest, TheDaysAreForLookingOnly) {
    add(rowOn("2026-03-13", 1, "Dentist"));
    open();
    QTest::mouseClick(&day(1), Qt::LeftButton, {}, day(1).blockRect(0).center());
    EXPECT_EQ(day(1).SelectedIndex(), -1);
    QTest::mouseDClick(&day(1), Qt::LeftButton, {}, day(1).blockRect(0).center());
    QTest::keyClicks(&day(1), QStringLiteral("x"));
    QTest::keyClick(&day(1), Qt::Key_Delete);
    EXPECT_FALSE(day(1).isEditing());
    EXPECT_EQ(day(1).Tasks().Count(), 1);
    EXPECT_EQ(rows().size(), 1U);
}

TEST_F(WeekataGlanceTest, AllDaysBeginAtTheFirstAppointmentOfAny) {
    add({"2026-01-01 08:00:01", "2026-03-14", "06:00 AM", "07:00 AM", "early", "Event"});
    add({"2026-01-01 08:00:02", "2026-03-16", "03:00 PM", "04:00 PM", "late", "Event"});
    open();
    for (int number = 1; number <= 6; ++number) {
        EXPECT_EQ(day(number).slotRect(330min).top(), day(1).slotRect(330min).top());
        EXPECT_FALSE(day(number).slotRect(330min).isEmpty());
        EXPECT_TRUE(day(number).slotRect(270min).isEmpty());
    }
}

TEST_F(WeekataGlanceTest, ComingBackShowsTheWeekAnewAndStaysWhereItWasScrolledTo) {
    open();
    QTest::keyClick(&day(2), Qt::Key_Home);
    const QRect midnight = day(2).slotRect(0min);
    EXPECT_FALSE(midnight.isEmpty());
    SSMonth1.date = "12/31/2026";
    add(rowOn("2027-01-01", 1, "New Year"));
    EXPECT_EQ(day(1).Tasks().Count(), 0);
    leaveAndComeBack();
    EXPECT_EQ(form.windowTitle(),
              QStringLiteral("Week at Glance From Thursday, December 31, 2026"));
    EXPECT_EQ(day(1).Tasks().Item(0).text, "New Year");
    EXPECT_EQ(day(2).slotRect(0min), midnight);
}

TEST_F(WeekataGlanceTest, StandsInTheMiddleOfTheScreenWheneverItBecomesActive) {
    open();
    const QPoint middle = form.screen()->availableGeometry().center();
    form.move(0, 0);
    leaveAndComeBack();
    EXPECT_LE((form.frameGeometry().center() - middle).manhattanLength(), 2);
}

TEST_F(WeekataGlanceTest, CloseAndEscapeCloseIt) {
    open();
    QTest::mouseClick(&closeButton(), Qt::LeftButton);
    EXPECT_FALSE(form.isVisible());
    open();
    QTest::keyClick(&form, Qt::Key_Escape);
    EXPECT_FALSE(form.isVisible());
}

}  // namespace
}  // namespace velmora::test
