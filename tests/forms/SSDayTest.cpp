#include "platform/controls/SSDay.h"

#include <gtest/gtest.h>

#include <QAccessible>
#include <QImage>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QScrollBar>
#include <QTest>
#include <QVBoxLayout>
#include <cmath>
#include <string>
#include <vector>

#include "platform/Failure.h"
#include "platform/controls/CalendarAccessibility.h"
#include "platform/qt/Theme.h"

namespace velmora {
namespace {

using namespace std::chrono;
using Events = std::vector<std::string>;

minutes at(int hour, int minute = 0) {
    return hours(hour) + minutes(minute);
}

// A day view in a window with another control, and a listener that writes down what it is told and
// what the block it is told of holds at that time.
class SSDayTest : public testing::Test {
  protected:
    static void SetUpTestSuite() { registerCalendarAccessibility(); }

    SSDayTest() {
        auto* layout = new QVBoxLayout(&window);
        layout->addWidget(&day);
        layout->addWidget(&other);
        window.resize(500, 1250);  // high enough for the whole day
        day.connect(&day, &SSDay::beforeEdit, [this] {
            if (reload)
                reload();
        });
        day.connect(&day, &SSDay::OnTaskEditBegin, [this](int index, bool exists) {
            events.push_back("begin " + std::to_string(index) + (exists ? " exists" : " new"));
        });
        day.connect(&day, &SSDay::OnTaskEditEnd, [this](int index, bool keepRefresh, bool save) {
            events.push_back("end " + std::to_string(index) + (keepRefresh ? " keep" : "") +
                             (save ? " save" : "") + ": " + inBlock(index) + " of " +
                             std::to_string(day.Tasks().Count()));
        });
        day.connect(&day, &SSDay::OnTaskRemove, [this] {
            const int index = day.SelectedIndex();
            events.push_back("remove " + std::to_string(index) + " " +
                             day.Tasks().Item(index).TagVariant);
        });
        window.show();
        window.activateWindow();
        day.setFocus();
        EXPECT_TRUE(QTest::qWaitForWindowActive(&window));
    }

    std::string inBlock(int index) {
        if (index < 0)
            return "none";
        const DayTask& task = day.Tasks().Item(index);
        return task.BeginTime + "-" + task.EndTime + " " + task.text;
    }

    void add(const char* begin, const char* end, const char* text, const char* tag) {
        day.Tasks().Add(begin, end, text);
        day.Tasks().setTagVariant(day.Tasks().Count() - 1, tag);
    }
    void addTwo() {
        add("09:00 AM", "10:00 AM", "first", "tag1");
        add("1:00 PM", "2:00 PM", "second", "tag2");
    }

    QPlainTextEdit* editor() { return day.findChild<QPlainTextEdit*>(); }
    void type(const QString& text) { QTest::keyClicks(editor(), text); }
    void key(Qt::Key key, Qt::KeyboardModifiers modifiers = {}) {
        QTest::keyClick(&day, key, modifiers);
    }
    void editorKey(Qt::Key key, Qt::KeyboardModifiers modifiers = {}) {
        QTest::keyClick(editor(), key, modifiers);
    }

    QPoint inSlot(minutes time) { return day.slotRect(time).center(); }
    QPoint lowerBar(int index) {
        const QRect rect = day.blockRect(index);
        return {rect.center().x(), rect.bottom()};
    }
    QPoint upperBar(int index) {
        return {day.blockRect(index).center().x(), day.blockRect(index).top()};
    }

    void send(QEvent::Type type, const QPoint& point) {
        const bool held = type != QEvent::MouseButtonRelease;
        QMouseEvent event(type, point, day.mapToGlobal(point),
                          type == QEvent::MouseMove ? Qt::NoButton : Qt::LeftButton,
                          held ? Qt::LeftButton : Qt::NoButton, Qt::NoModifier);
        QApplication::sendEvent(&day, &event);
    }
    void drag(const QPoint& from, const QPoint& to) {
        send(QEvent::MouseButtonPress, from);
        send(QEvent::MouseMove, (from + to) / 2);
        send(QEvent::MouseMove, to);
        send(QEvent::MouseButtonRelease, to);
    }
    // The distance of so many slots.
    QPoint slotsHigh(int count) { return {0, day.slotRect(at(12)).height() * count}; }

    QWidget window;
    SSDay day{CodePage::western()};
    QLineEdit other;
    Events events;
    std::function<void()> reload;
};

// --- Creation ---

TEST_F(SSDayTest, TypingIntoASlotCreatesABlockOfHalfAnHourThatEnterSaves) {
    QTest::mouseClick(&day, Qt::LeftButton, {}, inSlot(at(14, 30)));
    QTest::keyClicks(&day, QStringLiteral("D"));
    EXPECT_EQ(events, Events{"begin 0 new"});
    type(QStringLiteral("entist"));
    EXPECT_EQ(day.Tasks().Item(0).text, "");
    editorKey(Qt::Key_Return);
    EXPECT_EQ(events, (Events{"begin 0 new", "end 0 save: 02:30 PM-03:00 PM Dentist of 1"}));
    EXPECT_FALSE(day.isEditing());
    EXPECT_TRUE(day.hasFocus());
    EXPECT_EQ(day.SelectedIndex(), 0);
}

TEST_F(SSDayTest, DraggingOverSlotsCreatesABlockOfThatLength) {
    addTwo();
    drag(inSlot(at(16)), inSlot(at(14, 30)));  // upwards counts as well
    type(QStringLiteral("x"));
    editorKey(Qt::Key_Enter);
    EXPECT_EQ(events, (Events{"begin 2 new", "end 2 save: 02:30 PM-04:30 PM x of 3"}));
}

TEST_F(SSDayTest, ADoubleClickOnASlotCreatesABlock) {
    QTest::mouseDClick(&day, Qt::LeftButton, {}, inSlot(at(0)));
    type(QStringLiteral("x"));
    editorKey(Qt::Key_Return);
    EXPECT_EQ(events, (Events{"begin 0 new", "end 0 save: 12:00 AM-12:30 AM x of 1"}));
}

TEST_F(SSDayTest, ABlockInTheLastSlotEndsWithTheDay) {
    QTest::mouseDClick(&day, Qt::LeftButton, {}, inSlot(at(23, 30)));
    type(QStringLiteral("x"));
    editorKey(Qt::Key_Return);
    EXPECT_EQ(events.back(), "end 0 save: 11:30 PM-11:59 PM x of 1");
}

TEST_F(SSDayTest, EscapeDropsANewBlockAfterTheEndWasTold) {
    addTwo();
    QTest::mouseDClick(&day, Qt::LeftButton, {}, inSlot(at(16)));
    type(QStringLiteral("text"));
    editorKey(Qt::Key_Escape);
    EXPECT_EQ(events, (Events{"begin 2 new", "end -1: none of 3"}));
    EXPECT_EQ(day.Tasks().Count(), 2);
    EXPECT_FALSE(editor()->isVisible());
}

TEST_F(SSDayTest, ANewBlockLeftEmptyIsDropped) {
    QTest::mouseDClick(&day, Qt::LeftButton, {}, inSlot(at(16)));
    editorKey(Qt::Key_Return);
    EXPECT_EQ(events, (Events{"begin 0 new", "end -1: none of 1"}));
    EXPECT_EQ(day.Tasks().Count(), 0);
}

TEST_F(SSDayTest, FocusGoingToAnotherControlSavesOnce) {
    QTest::mouseDClick(&day, Qt::LeftButton, {}, inSlot(at(16)));
    type(QStringLiteral("x"));
    other.setFocus();
    EXPECT_EQ(events, (Events{"begin 0 new", "end 0 save: 04:00 PM-04:30 PM x of 1"}));
    EXPECT_TRUE(other.hasFocus());
}

TEST_F(SSDayTest, EnterFollowedByALossOfTheFocusIsOneEnd) {
    QTest::mouseDClick(&day, Qt::LeftButton, {}, inSlot(at(16)));
    type(QStringLiteral("x"));
    editorKey(Qt::Key_Return);
    other.setFocus();
    EXPECT_EQ(events.size(), 2U);
}

TEST_F(SSDayTest, AClickOnAnotherPlaceOfTheDaySaves) {
    addTwo();
    QTest::mouseDClick(&day, Qt::LeftButton, {}, inSlot(at(16)));
    type(QStringLiteral("x"));
    QTest::mouseClick(&day, Qt::LeftButton, {}, inSlot(at(20)));
    EXPECT_EQ(events, (Events{"begin 2 new", "end 2 save: 04:00 PM-04:30 PM x of 3"}));
}

TEST_F(SSDayTest, AnotherWindowThatComesUpLeavesTheEditorOpen) {
    QTest::mouseDClick(&day, Qt::LeftButton, {}, inSlot(at(16)));
    type(QStringLiteral("x"));
    QWidget alert;
    alert.show();
    alert.activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&alert));
    EXPECT_TRUE(day.isEditing());
    alert.close();
    window.activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
    EXPECT_TRUE(day.isEditing());
    EXPECT_EQ(events, Events{"begin 0 new"});
}

TEST_F(SSDayTest, HidingTheViewSaves) {
    QTest::mouseDClick(&day, Qt::LeftButton, {}, inSlot(at(16)));
    type(QStringLiteral("x"));
    day.hide();
    EXPECT_EQ(events, (Events{"begin 0 new", "end 0 save: 04:00 PM-04:30 PM x of 1"}));
}

TEST_F(SSDayTest, ABlockWhoseSaveWasRefusedIsNewAgainNextTime) {
    QTest::mouseDClick(&day, Qt::LeftButton, {}, inSlot(at(16)));
    type(QStringLiteral("x"));
    editorKey(Qt::Key_Return);  // the listener gives no tag
    key(Qt::Key_F2);
    editorKey(Qt::Key_Return);
    day.Tasks().setTagVariant(0, "tag");
    key(Qt::Key_F2);
    EXPECT_EQ(events, (Events{"begin 0 new", "end 0 save: 04:00 PM-04:30 PM x of 1", "begin 0 new",
                              "end 0 save: 04:00 PM-04:30 PM x of 1", "begin 0 exists"}));
    day.commitEditor();
}

// --- Edits ---

TEST_F(SSDayTest, AnEditKeepsTheTimesAsTheyWereWritten) {
    addTwo();
    QTest::mouseDClick(&day, Qt::LeftButton, {}, day.blockRect(1).center());
    type(QStringLiteral(" more"));
    editorKey(Qt::Key_Return);
    EXPECT_EQ(events, (Events{"begin 1 exists", "end 1 save: 1:00 PM-2:00 PM second more of 2"}));
}

TEST_F(SSDayTest, EscapeRestoresAnEditedBlock) {
    addTwo();
    day.setSelectedIndex(0);
    key(Qt::Key_F2);
    type(QStringLiteral("other"));
    editorKey(Qt::Key_Escape);
    EXPECT_EQ(events, (Events{"begin 0 exists", "end 0: 09:00 AM-10:00 AM first of 2"}));
}

TEST_F(SSDayTest, AnExistingBlockEmptiedIsSavedEmpty) {
    addTwo();
    day.setSelectedIndex(0);
    key(Qt::Key_F2);
    editor()->selectAll();
    editorKey(Qt::Key_Delete);
    editorKey(Qt::Key_Return);
    EXPECT_EQ(events, (Events{"begin 0 exists", "end 0 save: 09:00 AM-10:00 AM  of 2"}));
}

TEST_F(SSDayTest, LinesComeAndGoWithCrLf) {
    add("09:00 AM", "10:00 AM", "one\r\ntwo\xA0!", "tag");
    day.setSelectedIndex(0);
    key(Qt::Key_F2);
    editorKey(Qt::Key_Return, Qt::ShiftModifier);
    type(QStringLiteral("three"));
    editorKey(Qt::Key_Return, Qt::ControlModifier);
    type(QStringLiteral("four"));
    editorKey(Qt::Key_Return);
    EXPECT_EQ(day.Tasks().Item(0).text, "one\r\ntwo\xA0!\r\nthree\r\nfour");
}

TEST_F(SSDayTest, ATextThatWasNotChangedStaysAsItWas) {
    add("09:00 AM", "10:00 AM", "one\ntwo\rthree", "tag");
    day.setSelectedIndex(0);
    key(Qt::Key_F2);
    editorKey(Qt::Key_Return);
    EXPECT_EQ(day.Tasks().Item(0).text, "one\ntwo\rthree");
}

TEST_F(SSDayTest, ACharacterThatTheCodePageLacksBecomesAQuestionMarkAtOnce) {
    int replaced = 0;
    day.connect(&day, &SSDay::characterReplaced, [&] { ++replaced; });
    QTest::mouseDClick(&day, Qt::LeftButton, {}, inSlot(at(16)));
    editor()->insertPlainText(QString::fromUtf8("a\u4e2d\U0001F600b\u00e9"));
    EXPECT_EQ(editor()->toPlainText(), QString::fromUtf8("a??b\u00e9"));
    EXPECT_EQ(replaced, 1);
    editorKey(Qt::Key_Return);
    EXPECT_EQ(day.Tasks().Item(0).text, "a??b\xE9");
}

TEST_F(SSDayTest, TypingOnASelectedBlockEditsItAndLosesNothing) {
    addTwo();
    day.setSelectedIndex(0);
    QTest::keyClicks(&day, QStringLiteral("!"));
    editorKey(Qt::Key_Return);
    EXPECT_EQ(events, (Events{"begin 0 exists", "end 0 save: 09:00 AM-10:00 AM first! of 2"}));
}

TEST_F(SSDayTest, CallersCanHaveTheEditorSaved) {
    addTwo();
    day.commitEditor();
    EXPECT_TRUE(events.empty());
    QTest::mouseDClick(&day, Qt::LeftButton, {}, inSlot(at(16)));
    type(QStringLiteral("x"));
    day.commitEditor();
    day.commitEditor();
    EXPECT_EQ(events, (Events{"begin 2 new", "end 2 save: 04:00 PM-04:30 PM x of 3"}));
}

// --- Drags ---

TEST_F(SSDayTest, DraggingALowerBarReportsBeginAndEndWithTheNewEnd) {
    addTwo();
    drag(lowerBar(1), lowerBar(1) + slotsHigh(1));
    EXPECT_EQ(events, (Events{"begin 1 exists", "end 1 save: 1:00 PM-02:30 PM second of 2"}));
}

TEST_F(SSDayTest, DraggingAnUpperBarMovesTheBeginOnly) {
    addTwo();
    drag(upperBar(0), upperBar(0) - slotsHigh(2));
    EXPECT_EQ(events, (Events{"begin 0 exists", "end 0 save: 08:00 AM-10:00 AM first of 2"}));
}

TEST_F(SSDayTest, DragsSnapToFiveMinutes) {
    addTwo();
    drag(lowerBar(0), lowerBar(0) + QPoint(0, slotsHigh(1).y() / 3));
    EXPECT_EQ(day.Tasks().Item(0).EndTime, "10:10 AM");
}

TEST_F(SSDayTest, DraggingABlockMovesBothItsTimes) {
    addTwo();
    const QPoint middle = day.blockRect(0).center();
    drag(middle, middle + slotsHigh(4));
    EXPECT_EQ(events, (Events{"begin 0 exists", "end 0 save: 11:00 AM-12:00 PM first of 2"}));
}

TEST_F(SSDayTest, ABarBetweenTwoTouchingBlocksBelongsToTheUpperOnesEnd) {
    add("09:00 AM", "10:00 AM", "upper", "tag1");
    add("10:00 AM", "11:00 AM", "lower", "tag2");
    drag(upperBar(1), upperBar(1) + slotsHigh(1));
    EXPECT_EQ(events, (Events{"begin 0 exists", "end 0 save: 09:00 AM-10:30 AM upper of 2"}));
    EXPECT_EQ(day.Tasks().Item(1).BeginTime, "10:00 AM");
}

TEST_F(SSDayTest, APressOnABarWithoutADragReportsNothing) {
    addTwo();
    QTest::mouseClick(&day, Qt::LeftButton, {}, lowerBar(0));
    EXPECT_TRUE(events.empty());
    EXPECT_EQ(day.SelectedIndex(), 0);
}

TEST_F(SSDayTest, EscapeEndsADragWithTheOldTimes) {
    addTwo();
    send(QEvent::MouseButtonPress, lowerBar(1));
    const QPoint away = lowerBar(1) + slotsHigh(2);
    send(QEvent::MouseMove, away);
    key(Qt::Key_Escape);
    send(QEvent::MouseButtonRelease, away);
    EXPECT_EQ(events, (Events{"begin 1 exists", "end 1: 1:00 PM-2:00 PM second of 2"}));
}

TEST_F(SSDayTest, ADragBackToWhereItBeganStoresNothing) {
    addTwo();
    const QPoint bar = lowerBar(1);
    send(QEvent::MouseButtonPress, bar);
    send(QEvent::MouseMove, bar + slotsHigh(2));
    send(QEvent::MouseMove, bar);
    send(QEvent::MouseButtonRelease, bar);
    EXPECT_EQ(events, (Events{"begin 1 exists", "end 1: 1:00 PM-2:00 PM second of 2"}));
}

TEST_F(SSDayTest, ADragOfABlockThatIsNotStoredBeginsAsNew) {
    add("09:00 AM", "10:00 AM", "x", "");
    drag(lowerBar(0), lowerBar(0) + slotsHigh(1));
    EXPECT_EQ(events, (Events{"begin 0 new", "end 0 save: 09:00 AM-10:30 AM x of 1"}));
}

// --- Removal ---

TEST_F(SSDayTest, DeleteReportsTheRemovalWhileTheBlockIsThereAndThenTakesItAway) {
    addTwo();
    day.setSelectedIndex(1);
    key(Qt::Key_Delete);
    EXPECT_EQ(events, Events{"remove 1 tag2"});
    ASSERT_EQ(day.Tasks().Count(), 1);
    EXPECT_EQ(day.Tasks().Item(0).text, "first");
    EXPECT_EQ(day.SelectedIndex(), -1);
}

TEST_F(SSDayTest, RemovingTheSelectedBlockByCommandDoesTheSame) {
    addTwo();
    day.removeSelected();
    EXPECT_TRUE(events.empty());
    day.setSelectedIndex(0);
    day.removeSelected();
    EXPECT_EQ(events, Events{"remove 0 tag1"});
    EXPECT_EQ(day.Tasks().Count(), 1);
}

TEST_F(SSDayTest, NothingSelectedOrNoTagReportsNoRemoval) {
    add("09:00 AM", "10:00 AM", "x", "");
    key(Qt::Key_Delete);
    EXPECT_EQ(day.Tasks().Count(), 1);
    day.setSelectedIndex(0);
    key(Qt::Key_Delete);
    EXPECT_TRUE(events.empty());
    EXPECT_EQ(day.Tasks().Count(), 0);
}

TEST_F(SSDayTest, AnOpenEditorOfTheBlockEndsUnsavedBeforeItsRemoval) {
    addTwo();
    day.setSelectedIndex(0);
    key(Qt::Key_F2);
    type(QStringLiteral("typed"));
    day.removeSelected();
    EXPECT_EQ(events,
              (Events{"begin 0 exists", "end 0: 09:00 AM-10:00 AM first of 2", "remove 0 tag1"}));
}

TEST_F(SSDayTest, DeleteInsideTheEditorRemovesNoBlock) {
    addTwo();
    day.setSelectedIndex(0);
    key(Qt::Key_F2);
    editorKey(Qt::Key_Delete);
    EXPECT_EQ(events, Events{"begin 0 exists"});
    editorKey(Qt::Key_Escape);
    EXPECT_EQ(day.Tasks().Count(), 2);
}

// --- Listeners that change the tasks ---

TEST_F(SSDayTest, AListenerMayLoadTheDayAnewBeforeAnEditAndTheBlockKeepsItsIndex) {
    addTwo();
    reload = [this] {
        day.Tasks().RemoveAll();
        addTwo();
    };
    day.setSelectedIndex(1);
    key(Qt::Key_F2);
    type(QStringLiteral("!"));
    editorKey(Qt::Key_Return);
    day.setSelectedIndex(1);
    key(Qt::Key_Delete);
    drag(lowerBar(0), lowerBar(0) + slotsHigh(1));
    QTest::mouseDClick(&day, Qt::LeftButton, {}, inSlot(at(16)));
    editorKey(Qt::Key_Escape);
    EXPECT_EQ(events,
              (Events{"begin 1 exists", "end 1 save: 1:00 PM-2:00 PM second! of 2", "remove 1 tag2",
                      "begin 0 exists", "end 0 save: 09:00 AM-10:30 AM first of 2", "begin 2 new",
                      "end -1: none of 3"}));
}

TEST_F(SSDayTest, TasksTakenAwayUnderAnEditorDropItWithoutAWord) {
    addTwo();
    day.setSelectedIndex(1);
    key(Qt::Key_F2);
    type(QStringLiteral("!"));
    day.Tasks().RemoveAll();
    EXPECT_FALSE(day.isEditing());
    EXPECT_FALSE(editor()->isVisible());
    EXPECT_EQ(events, Events{"begin 1 exists"});
    day.commitEditor();
    EXPECT_EQ(events.size(), 1U);
}

TEST_F(SSDayTest, AViewThatGoesWhileItsEditorIsOpenSaysNothing) {
    auto* passing = new SSDay(CodePage::western(), &window);
    window.layout()->addWidget(passing);
    passing->connect(passing, &SSDay::OnTaskEditEnd, [this] { events.push_back("end"); });
    passing->show();
    QTest::keyClicks(passing, QStringLiteral("x"));
    EXPECT_TRUE(passing->isEditing());
    delete passing;
    EXPECT_TRUE(events.empty());
}

// --- Keys, limits, looks ---

TEST_F(SSDayTest, ControlWithUpAndDownWalksTheBlocksInTime) {
    add("3:00 PM", "4:00 PM", "late", "t1");
    add("9:00 AM", "10:00 AM", "early", "t2");
    add("12:00 PM", "1:00 PM", "noon", "t3");
    key(Qt::Key_Home);
    Events seen;
    for (int i = 0; i < 4; ++i) {
        key(Qt::Key_Down, Qt::ControlModifier);
        seen.push_back(day.Tasks().Item(day.SelectedIndex()).text);
    }
    key(Qt::Key_Up, Qt::ControlModifier);
    seen.push_back(day.Tasks().Item(day.SelectedIndex()).text);
    EXPECT_EQ(seen, (Events{"early", "noon", "late", "late", "noon"}));
    key(Qt::Key_Down);
    EXPECT_EQ(day.SelectedIndex(), -1);
    QTest::keyClicks(&day, QStringLiteral("x"));
    EXPECT_EQ(day.Tasks().Item(3).BeginTime, "12:30 PM");
    day.commitEditor();
}

TEST_F(SSDayTest, BlocksOutsideTheLimitsStayAndCanBeReached) {
    day.setLastTime("5:00 PM");
    day.setFirstTime("8:00 AM");
    add("06:00 AM", "06:30 AM", "before", "t1");
    add("09:00 PM", "10:00 PM", "behind", "t2");
    ASSERT_EQ(day.Tasks().Count(), 2);
    for (int index : {0, 1}) {
        QTest::mouseClick(&day, Qt::LeftButton, {}, day.blockRect(index).center());
        EXPECT_EQ(day.SelectedIndex(), index);
    }
    day.Tasks().RemoveAll();
    EXPECT_TRUE(day.slotRect(at(6)).isEmpty());
    EXPECT_FALSE(day.slotRect(at(17, 30)).isEmpty());
}

TEST_F(SSDayTest, RefusesALimitThatIsNoTime) {
    EXPECT_THROW(day.setLastTime("24:00"), Failure);
    EXPECT_FALSE(day.slotRect(at(23)).isEmpty());
}

TEST_F(SSDayTest, OverlappingBlocksStandSideBySide) {
    add("9:00 AM", "10:00 AM", "a", "t1");
    add("9:30 AM", "10:30 AM", "b", "t2");
    EXPECT_FALSE(day.blockRect(0).intersects(day.blockRect(1)));
    EXPECT_EQ(day.blockRect(0).width() + 3 + day.blockRect(1).width(),
              day.blockRect(1).right() + 1 - day.blockRect(0).left());
}

TEST_F(SSDayTest, StartsOneSlotBeforeTheFirstBlockOrAtHalfPastSeven) {
    SSDay empty(CodePage::western());
    empty.resize(400, 300);
    empty.show();
    EXPECT_EQ(empty.slotRect(at(7, 30)).top(), 1);
    SSDay filled(CodePage::western());
    filled.resize(400, 300);
    filled.Tasks().Add("11:00 AM", "12:00 PM", "x");
    filled.show();
    EXPECT_EQ(filled.slotRect(at(10, 30)).top(), 1);
}

TEST_F(SSDayTest, TheWheelAndTheArrowsScroll) {
    SSDay low(CodePage::western());
    low.resize(400, 300);
    low.show();
    const auto* bar = low.findChild<QScrollBar*>();
    const int before = bar->value();
    QWheelEvent wheel(QPointF(200, 100), low.mapToGlobal(QPointF(200, 100)), {}, QPoint(0, -120),
                      Qt::NoButton, Qt::NoModifier, Qt::NoScrollPhase, false);
    QApplication::sendEvent(&low, &wheel);
    EXPECT_GT(bar->value(), before);
    QTest::keyClick(&low, Qt::Key_Home);
    EXPECT_EQ(bar->value(), 0);
    QTest::keyClick(&low, Qt::Key_End);
    EXPECT_EQ(bar->value(), bar->maximum());
}

TEST_F(SSDayTest, AReadOnlyViewTakesNoEdit) {
    add("9:00 AM", "10:00 AM", "a", "t1");
    day.setReadOnly(true);
    day.setSelectedIndex(0);
    EXPECT_EQ(day.SelectedIndex(), -1);
    QTest::mouseDClick(&day, Qt::LeftButton, {}, day.blockRect(0).center());
    QTest::mouseDClick(&day, Qt::LeftButton, {}, inSlot(at(16)));
    drag(lowerBar(0), lowerBar(0) + slotsHigh(2));
    QTest::keyClicks(&day, QStringLiteral("x"));
    for (const Qt::Key each : {Qt::Key_F2, Qt::Key_Delete, Qt::Key_Return})
        key(each);
    EXPECT_TRUE(events.empty());
    EXPECT_FALSE(day.isEditing());
    EXPECT_EQ(inBlock(0), "9:00 AM-10:00 AM a");
}

TEST_F(SSDayTest, TellsWhenThePointerMovesOverIt) {
    int moves = 0;
    day.connect(&day, &SSDay::pointerMoved, [&] { ++moves; });
    QMouseEvent move(QEvent::MouseMove, QPointF(100, 100), day.mapToGlobal(QPointF(100, 100)),
                     Qt::NoButton, Qt::NoButton, Qt::NoModifier);
    QApplication::sendEvent(&day, &move);
    EXPECT_EQ(moves, 1);
}

TEST_F(SSDayTest, TheSelectedIndexOutOfRangeIsNoSelection) {
    addTwo();
    day.setSelectedIndex(1);
    EXPECT_EQ(day.SelectedIndex(), 1);
    day.setSelectedIndex(2);
    EXPECT_EQ(day.SelectedIndex(), -1);
}

TEST_F(SSDayTest, ShowsItsBlocksToAssistiveTools) {
    addTwo();
    QAccessibleInterface* interface = QAccessible::queryAccessibleInterface(&day);
    QAccessibleInterface* block = interface->child(0);
    EXPECT_EQ(block->text(QAccessible::Name), QString::fromUtf8("first, 9:00 AM \u2013 10:00 AM"));
    EXPECT_EQ(block->rect().size(), day.blockRect(0).size());
    EXPECT_FALSE(block->state().selected);
    block->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
    EXPECT_EQ(day.SelectedIndex(), 0);
    EXPECT_TRUE(block->state().selected);
}

TEST_F(SSDayTest, ABlockWithoutATagIsDrawnAndReadAsNotStored) {
    add("09:00 AM", "11:00 AM", "dentist", "");
    add("01:00 PM", "03:00 PM", "lunch", "tag");
    const auto inside = [this](int index) {
        const QRect block = day.blockRect(index);
        return day.grab().toImage().pixelColor(QPoint(block.right() - 12, block.top() + 20) *
                                               day.devicePixelRatio());
    };
    const Theme& theme = Theme::of(day);
    EXPECT_EQ(inside(0), theme.surface);
    EXPECT_EQ(inside(1), theme.tint);
    EXPECT_TRUE(day.part(0).name.endsWith(QLatin1String(", not stored")));
    EXPECT_FALSE(day.part(1).name.contains(QLatin1String("not stored")));
    day.Tasks().setTagVariant(0, "tag");
    EXPECT_EQ(inside(0), theme.tint);
    EXPECT_FALSE(day.part(0).name.contains(QLatin1String("not stored")));
}

TEST_F(SSDayTest, SaysOnItsPaperWhatIsToBeSaidOfTheDay) {
    const QImage before = day.grab().toImage();
    day.setNotice("This day can not be read: another program is using the planner.");
    EXPECT_NE(day.grab().toImage(), before);
    EXPECT_EQ(day.accessibleDescription(),
              "This day can not be read: another program is using the planner.");
    day.setNotice("");
    EXPECT_EQ(day.grab().toImage(), before);
}

TEST(DayPainter, LetsNoPhoneNumberBreak) {
    EXPECT_EQ(DayPainter::unbreakable(QStringLiteral("(312) 555-0142 - a-b ) x")),
              QString::fromUtf8("(312)\u00a0555\u20110142 - a-b )\u00a0x"));
}

// --- Fractional scales ---

TEST_F(SSDayTest, BlocksAreSharpAtEveryScaleWhenDrawnAndWhenCopied) {
    for (int i = 0; i < 6; ++i)
        add(("0" + std::to_string(i + 1) + ":05 AM").c_str(), "06:55 PM", "", "tag");
    for (const qreal scale : {1.0, 1.25, 1.5, 1.75, 2.0}) {
        SCOPED_TRACE(scale);
        const auto paint = [&] {
            QImage image((QSizeF(day.size()) * scale).toSize(), QImage::Format_RGB32);
            image.setDevicePixelRatio(scale);
            image.fill(Qt::white);
            day.render(&image);
            return image;
        };
        const QImage image = paint();
        EXPECT_EQ(image, paint());
        const QColor tint = Theme::of(day).tint;
        for (int i = 0; i < 6; ++i) {
            const QRectF block = day.blockRect(i);
            const int x = static_cast<int>((block.right() - 12) * scale);
            const int top = static_cast<int>(std::round(block.top() * scale));
            const int bottom = static_cast<int>(std::round(block.bottom() * scale));
            EXPECT_EQ(image.pixelColor(x, top), tint);
            EXPECT_EQ(image.pixelColor(x, bottom - 1), tint);
            EXPECT_NE(image.pixelColor(x, top - 1), tint);
            EXPECT_NE(image.pixelColor(x, bottom), tint);
        }
    }
}

}  // namespace
}  // namespace velmora
