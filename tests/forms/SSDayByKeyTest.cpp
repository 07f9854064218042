#include <gtest/gtest.h>

#include <QAccessible>
#include <QClipboard>
#include <QContextMenuEvent>
#include <QGuiApplication>
#include <QPlainTextEdit>
#include <QSignalSpy>
#include <string>
#include <vector>

#include "forms/Widgets.h"
#include "platform/controls/CalendarAccessibility.h"
#include "platform/controls/SSDay.h"
#include "platform/qt/Theme.h"

namespace velmora {
namespace {

using namespace std::chrono;
using Events = std::vector<std::string>;

minutes at(int hour, int minute = 0) {
    return hours(hour) + minutes(minute);
}

// A day view that can be used without a pointer, or without eyes.
class SSDayByKeyTest : public testing::Test {
  protected:
    static void SetUpTestSuite() { registerCalendarAccessibility(); }

    SSDayByKeyTest() {
        day.resize(460, 1250);  // high enough for the whole day
        day.connect(&day, &SSDay::OnTaskEditBegin, [this](int index, bool) {
            events.push_back("begin " + std::to_string(index));
        });
        day.connect(&day, &SSDay::OnTaskEditEnd, [this](int index, bool, bool save) {
            const DayTask& task = day.Tasks().Item(index);
            events.push_back("end " + std::to_string(index) + (save ? " save " : " ") +
                             task.BeginTime + "-" + task.EndTime);
        });
        test::showActive(day);
        day.setFocus();
    }

    void add(const char* begin, const char* end, const char* text) {
        day.Tasks().Add(begin, end, text);
        day.Tasks().setTagVariant(day.Tasks().Count() - 1, "tag");
    }
    void key(Qt::Key key, Qt::KeyboardModifiers modifiers = {}) {
        QTest::keyClick(&day, key, modifiers);
    }
    void held(Qt::Key key, Qt::KeyboardModifiers modifiers, int repetitions) {
        QTest::keyPress(&day, key, modifiers);
        for (int i = 0; i < repetitions; ++i) {
            QKeyEvent up(QEvent::KeyRelease, key, modifiers, QString(), true);
            QCoreApplication::sendEvent(&day, &up);
            QKeyEvent down(QEvent::KeyPress, key, modifiers, QString(), true);
            QCoreApplication::sendEvent(&day, &down);
        }
    }
    void askForMenu(QContextMenuEvent::Reason reason, QPoint place) {
        QContextMenuEvent event(reason, place, day.mapToGlobal(place));
        QCoreApplication::sendEvent(&day, &event);
    }
    QString caretName() {
        QAccessibleInterface* interface = QAccessible::queryAccessibleInterface(&day);
        QAccessibleInterface* caret = interface->focusChild();
        return caret ? caret->text(QAccessible::Name) : QString();
    }

    SSDay day{CodePage::western()};
    Events events;
};

// --- Moving and lengthening ---

TEST_F(SSDayByKeyTest, AltWithDownAndUpMovesTheSelectedAppointmentByFiveMinutes) {
    add("09:00 AM", "10:00 AM", "first");
    day.setSelectedIndex(0);
    key(Qt::Key_Down, Qt::AltModifier);
    EXPECT_EQ(events, (Events{"begin 0", "end 0 save 09:05 AM-10:05 AM"}));
    key(Qt::Key_Up, Qt::AltModifier);
    EXPECT_EQ(events.back(), "end 0 save 09:00 AM-10:00 AM");
    EXPECT_EQ(day.SelectedIndex(), 0);
}

TEST_F(SSDayByKeyTest, AltAndShiftWithDownAndUpMoveItsEnd) {
    add("09:00 AM", "10:00 AM", "first");
    day.setSelectedIndex(0);
    key(Qt::Key_Down, Qt::AltModifier | Qt::ShiftModifier);
    EXPECT_EQ(events, (Events{"begin 0", "end 0 save 09:00 AM-10:05 AM"}));
    key(Qt::Key_Up, Qt::AltModifier | Qt::ShiftModifier);
    key(Qt::Key_Up, Qt::AltModifier | Qt::ShiftModifier);
    EXPECT_EQ(events.back(), "end 0 save 09:00 AM-09:55 AM");
}

TEST_F(SSDayByKeyTest, AHeldKeyIsStoredOnceWhenItIsLetGo) {
    add("09:00 AM", "10:00 AM", "first");
    day.setSelectedIndex(0);
    held(Qt::Key_Down, Qt::AltModifier, 11);
    EXPECT_EQ(events, Events{"begin 0"});
    QTest::keyRelease(&day, Qt::Key_Down, Qt::AltModifier);
    EXPECT_EQ(events, (Events{"begin 0", "end 0 save 10:00 AM-11:00 AM"}));
}

TEST_F(SSDayByKeyTest, EscapeWhileTheKeyIsHeldLeavesTheTimesAsTheyWere) {
    add("09:00 AM", "10:00 AM", "first");
    day.setSelectedIndex(0);
    held(Qt::Key_Down, Qt::AltModifier, 3);
    key(Qt::Key_Escape);
    QTest::keyRelease(&day, Qt::Key_Down, Qt::AltModifier);
    EXPECT_EQ(events, (Events{"begin 0", "end 0 09:00 AM-10:00 AM"}));
}

TEST_F(SSDayByKeyTest, AMoveThatIsUnderWayIsStoredWhenTheFocusGoes) {
    add("09:00 AM", "10:00 AM", "first");
    day.setSelectedIndex(0);
    held(Qt::Key_Up, Qt::AltModifier, 0);
    day.clearFocus();
    EXPECT_EQ(events, (Events{"begin 0", "end 0 save 08:55 AM-09:55 AM"}));
}

TEST_F(SSDayByKeyTest, AnAppointmentStaysWithinTheDayAndKeepsFiveMinutes) {
    add("11:30 PM", "11:59 PM", "late");
    add("12:00 PM", "12:10 PM", "short");
    day.setSelectedIndex(1);
    for (int i = 0; i < 4; ++i)
        key(Qt::Key_Up, Qt::AltModifier | Qt::ShiftModifier);
    EXPECT_EQ(day.Tasks().Item(1).EndTime, "12:05 PM");
    EXPECT_EQ(day.Tasks().Item(1).BeginTime, "12:00 PM");
    day.setSelectedIndex(0);
    held(Qt::Key_Down, Qt::AltModifier, 30);
    QTest::keyRelease(&day, Qt::Key_Down, Qt::AltModifier);
    EXPECT_EQ(day.Tasks().Item(0).EndTime, "11:59 PM");
}

TEST_F(SSDayByKeyTest, WithoutASelectionAltMovesNoAppointment) {
    add("09:00 AM", "10:00 AM", "first");
    key(Qt::Key_Down, Qt::AltModifier);
    EXPECT_TRUE(events.empty());
}

// --- Menu, copy, undo ---

TEST_F(SSDayByKeyTest, ARightPressOnABlockSelectsItAndAsksForItsMenu) {
    add("09:00 AM", "10:00 AM", "first");
    QSignalSpy wanted(&day, &SSDay::menuWanted);
    askForMenu(QContextMenuEvent::Mouse, day.blockRect(0).center());
    EXPECT_EQ(day.SelectedIndex(), 0);
    EXPECT_EQ(wanted.count(), 1);
}

TEST_F(SSDayByKeyTest, EmptyGroundHasNoMenu) {
    add("09:00 AM", "10:00 AM", "first");
    QSignalSpy wanted(&day, &SSDay::menuWanted);
    askForMenu(QContextMenuEvent::Mouse, day.slotRect(at(14)).center());
    askForMenu(QContextMenuEvent::Keyboard, {});
    EXPECT_EQ(wanted.count(), 0);
}

TEST_F(SSDayByKeyTest, TheMenuKeyOpensAtTheSelectedBlock) {
    add("09:00 AM", "10:00 AM", "first");
    day.setSelectedIndex(0);
    QSignalSpy wanted(&day, &SSDay::menuWanted);
    askForMenu(QContextMenuEvent::Keyboard, {});
    ASSERT_EQ(wanted.count(), 1);
    EXPECT_TRUE(day.blockRect(0).contains(day.mapFromGlobal(wanted[0][0].toPoint())));
}

TEST_F(SSDayByKeyTest, AReadOnlyCopyHasNoMenu) {
    add("09:00 AM", "10:00 AM", "first");
    day.setReadOnly(true);
    QSignalSpy wanted(&day, &SSDay::menuWanted);
    askForMenu(QContextMenuEvent::Mouse, day.blockRect(0).center());
    EXPECT_EQ(wanted.count(), 0);
}

TEST_F(SSDayByKeyTest, ControlCCopiesTheTextOfTheSelectedBlock) {
    add("09:00 AM", "10:00 AM", "M\xFCller\r\nsecond");
    day.setSelectedIndex(0);
    key(Qt::Key_C, Qt::ControlModifier);
    EXPECT_EQ(QGuiApplication::clipboard()->text(), QString::fromUtf8("Müller\nsecond"));
}

TEST_F(SSDayByKeyTest, ControlZAsksForTheRemovedAppointmentButNotInTheEditor) {
    add("09:00 AM", "10:00 AM", "first");
    QSignalSpy wanted(&day, &SSDay::undoWanted);
    key(Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(wanted.count(), 1);
    day.setSelectedIndex(0);
    day.editSelected();
    ASSERT_TRUE(day.isEditing());
    QTest::keyClick(day.findChild<QPlainTextEdit*>(), Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(wanted.count(), 1);
    EXPECT_TRUE(day.isEditing());
}

// --- What is told ---

TEST_F(SSDayByKeyTest, TheSlotUnderTheCaretIsToldToAssistiveTools) {
    add("09:00 AM", "10:00 AM", "first");
    add("09:15 AM", "09:45 AM", "second");
    QTest::mouseClick(&day, Qt::LeftButton, {}, day.slotRect(at(8)).center());
    EXPECT_EQ(caretName(), QString::fromUtf8("8:00 AM – 8:30 AM, free"));
    key(Qt::Key_Down);
    key(Qt::Key_Down);
    EXPECT_EQ(caretName(), QString::fromUtf8("9:00 AM – 9:30 AM, 2 appointments"));
    key(Qt::Key_Down);
    key(Qt::Key_Down);
    EXPECT_EQ(caretName(), QString::fromUtf8("10:00 AM – 10:30 AM, free"));
    day.setSelectedIndex(0);
    EXPECT_EQ(caretName(), QString::fromUtf8("first, 9:00 AM – 10:00 AM"));
}

TEST_F(SSDayByKeyTest, TheSlotStandsBehindTheBlocksAndIsNone) {
    add("09:00 AM", "10:00 AM", "first");
    QAccessibleInterface* interface = QAccessible::queryAccessibleInterface(&day);
    EXPECT_EQ(interface->child(0)->role(), QAccessible::ListItem);
    EXPECT_EQ(interface->child(1)->role(), QAccessible::Cell);
}

TEST_F(SSDayByKeyTest, AnEmptyDaySaysSoUntilThereIsABlock) {
    const QImage bare = day.grab().toImage();
    day.setEmptyText(QStringLiteral("No appointments on this day."));
    EXPECT_EQ(day.accessibleDescription(), QStringLiteral("No appointments on this day."));
    const QImage quiet = day.grab().toImage();
    EXPECT_NE(quiet, bare);
    const QRect second = day.slotRect(at(0, 30));
    EXPECT_NE(quiet.copy(second), bare.copy(second)) << "it stands in the second slot";
    QTest::mouseDClick(&day, Qt::LeftButton, {}, day.slotRect(at(14)).center());
    ASSERT_TRUE(day.isEditing());
    EXPECT_EQ(day.accessibleDescription(), QString());
    EXPECT_EQ(day.grab().toImage().copy(second), bare.copy(second));
}

TEST_F(SSDayByKeyTest, ATextThatIsCutShortHasAToolTipAndOneThatIsNotHasNone) {
    add("09:00 AM", "09:30 AM",
        "A <b>very</b> long text that no block of half an hour will ever have the place to show");
    add("11:00 AM", "12:00 PM", "short");
    const QString tip = test::toolTipAt(day, day.blockRect(0).center());
    EXPECT_TRUE(tip.contains(QStringLiteral("ever have the place to show"))) << tip.toStdString();
    EXPECT_TRUE(tip.contains(QStringLiteral("&lt;b&gt;")));
    EXPECT_TRUE(tip.contains(QStringLiteral("9:00 AM")));
    EXPECT_EQ(test::toolTipAt(day, day.blockRect(1).center()), QString());
}

}  // namespace
}  // namespace velmora
