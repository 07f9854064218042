#include "core/forms/Calendar.h"

#include <gtest/gtest.h>

#include <QAccessible>
#include <QAction>
#include <QCheckBox>
#include <QLabel>
#include <QMenuBar>
#include <QPushButton>
#include <QScreen>
#include <QScrollBar>
#include <QSignalSpy>
#include <QTest>
#include <QTimer>
#include <QToolButton>
#include <set>

#include "core/CommandTable.h"
#include "core/forms/ClockLabel.h"
#include "core/forms/CommandMenus.h"
#include "core/forms/Desk.h"
#include "core/forms/DocPadColumn.h"
#include "core/forms/LeftColumn.h"
#include "core/forms/PhonebookPage.h"
#include "core/forms/PlannerPage.h"
#include "core/forms/Rail.h"
#include "core/forms/StatusBar.h"
#include "core/forms/ToolStrip.h"
#include "forms/CalendarFixture.h"
#include "forms/Widgets.h"
#include "platform/controls/EntryCard.h"
#include "platform/controls/EntryList.h"
#include "platform/controls/Keypad.h"
#include "platform/controls/LetterTabs.h"
#include "platform/controls/PadEdit.h"
#include "platform/controls/PaneButton.h"
#include "platform/controls/SSDay.h"
#include "platform/controls/SSMonth.h"
#include "platform/controls/TrashCan.h"
#include "platform/qt/QtText.h"
#include "telephony/forms/DialerPage.h"

namespace velmora {
namespace {

class CalendarTest : public test::CalendarFixture {
  protected:
    Desk& desk() { return *calendar.findChild<Desk*>(); }
};

TEST_F(CalendarTest, BeginsWithThePlannerAndADisabledList) {
    EXPECT_EQ(calendar.windowTitle(), "Velmora");
    EXPECT_TRUE(calendar.dayViewShown());
    EXPECT_FALSE(calendar.leftColumn().list()->isEnabled());
    EXPECT_TRUE(calendar.leftColumn().month()->isVisible());
    EXPECT_FALSE(calendar.leftColumn().yellowLabel()->isVisible());
    EXPECT_FALSE(calendar.leftColumn().whiteLabel()->isVisible());
    EXPECT_TRUE(calendar.rail().paneButton(Pane::Planner)->raised());
    EXPECT_EQ(calendar.docPadCaption(), "DocPad");
    auto* hidden = calendar.findChild<QCheckBox*>("Check1");
    ASSERT_NE(hidden, nullptr);
    EXPECT_FALSE(hidden->isVisible());
    EXPECT_EQ(hidden->text(), "Don't Delete -- Required");
}

TEST_F(CalendarTest, TheClockAndTheDialedNumberAreReadToAssistiveTools) {
    const auto told = [this](const char* name) {
        return QAccessible::queryAccessibleInterface(&test::named<QWidget>(calendar, name))
            ->text(QAccessible::Name);
    };
    calendar.clock().setClockText("10:42 AM");
    EXPECT_EQ(told("Label8"), "10:42 AM");
    EXPECT_EQ(told("Label16"), "No number");
    calendar.setLastNumber("555-0113");
    EXPECT_EQ(told("Label16"), "555-0113");
    calendar.setLastNumber("");
    EXPECT_EQ(told("Label16"), "No number");
}

TEST_F(CalendarTest, ALabelThatIsCutShortTellsItsWholeInAToolTip) {
    auto& panel = test::named<QLabel>(calendar, "StatusBar1_2");
    calendar.status().show("short");
    EXPECT_EQ(test::toolTipAt(panel, {5, 5}), QString());
    calendar.status().show("<b>" + std::string(300, 'm'));
    EXPECT_TRUE(test::toolTipAt(panel, {5, 5}).contains("&lt;b&gt;" + QString(300, 'm')));
}

TEST_F(CalendarTest, LabelsAndButtonsHaveTheirCaptions) {
    EXPECT_EQ(calendar.leftColumn().yellowLabel()->text(), "Yellow Pages");
    EXPECT_EQ(calendar.leftColumn().whiteLabel()->text(), "White Pages");
    EXPECT_EQ(calendar.leftColumn().yearButton()->text(), "Yea&r");
    EXPECT_EQ(calendar.phonebookPage().mailButton()->text(), "&E-Mail");
    EXPECT_EQ(calendar.phonebookPage().webButton()->text(), "&Web");
    EXPECT_EQ(calendar.phonebookPage().fileButton()->text(), "Open &File");
    EXPECT_EQ(dialerPage->sendButton()->text(), "&Send");
    EXPECT_EQ(dialerPage->hangUpButton()->text(), "&Hang Up");
    EXPECT_EQ(dialerPage->backButton()->text(), "&Back");
    EXPECT_EQ(dialerPage->clearButton()->text(), "&Clear All");
    EXPECT_EQ(dialerPage->externalButton()->text(), "&External Dialer");
    EXPECT_EQ(calendar.docPad().growButton()->toolTip(), "Maximize DocPad");
    EXPECT_EQ(calendar.docPad().shrinkButton()->toolTip(), "Minimize DocPad");
}

TEST_F(CalendarTest, TheMenuBarIsTheTreeOfCommands) {
    for (const MenuRow& row : menuTree()) {
        if (isSeparator(row) || isHead(row))
            continue;
        QAction* item = calendar.menus().item(row.name);
        ASSERT_NE(item, nullptr) << row.name;
        EXPECT_EQ(item->text(), latin(row.caption));
        EXPECT_EQ(item->isCheckable(), row.checkable);
    }
    QStringList bar;
    for (const QAction* head : calendar.menuBar()->actions())
        bar << head->text();
    EXPECT_EQ(bar, (QStringList{"&File", "&Edit", "F&ont", "&Planner", "P&honebook", "&Dialer",
                                "&Calculator", "&Alarm", "&Task List", "&Help"}));
}

TEST_F(CalendarTest, AMenuItemAndItsKeyReportTheSameCommand) {
    std::vector<std::string> chosen;
    QObject::connect(&calendar.menus(), &CommandMenus::chosen,
                     [&](const MenuRow& row) { chosen.emplace_back(row.name); });
    QObject::connect(&calendar.mainKeys(), &ToolStrip::chosen,
                     [&](const ToolRow& row) { chosen.emplace_back(row.command); });
    calendar.menus().item("savmnu")->trigger();
    QTest::mouseClick(calendar.mainKeys().button("Save"), Qt::LeftButton);
    EXPECT_EQ(chosen, (std::vector<std::string>{"savmnu", "savmnu"}));
}

TEST_F(CalendarTest, AFlipOfTheHiddenBoxIsHeardBeforeItReturns) {
    int flips = 0;
    QObject::connect(&calendar, &Calendar::check1Flipped, [&] { ++flips; });
    calendar.flipCheck1();
    EXPECT_EQ(flips, 1);
    calendar.flipCheck1();
    EXPECT_EQ(flips, 2);
}

TEST_F(CalendarTest, DocPadsSizeButtonsTellThePointer) {
    QSignalSpy grow(&calendar.docPad(), &DocPadColumn::growHovered);
    QSignalSpy shrink(&calendar.docPad(), &DocPadColumn::shrinkHovered);
    QEnterEvent enter({5, 5}, {5, 5}, {5, 5});
    QCoreApplication::sendEvent(calendar.docPad().growButton(), &enter);
    EXPECT_EQ(grow.count(), 1);
    QCoreApplication::sendEvent(calendar.docPad().shrinkButton(), &enter);
    EXPECT_EQ(shrink.count(), 1);
    EXPECT_EQ(grow.count(), 1);
}

TEST_F(CalendarTest, DocPadIsNarrowInItsColumnAndWideWhenItFillsTheWindow) {
    EXPECT_LT(calendar.docPadBox().width, 8000);
    calendar.fillWithDocPad();
    EXPECT_GE(calendar.docPadBox().width, 9600);
    EXPECT_TRUE(calendar.text().hasFocus());
    EXPECT_FALSE(calendar.leftColumn().isVisible());
    calendar.putDocPadBack({});
    EXPECT_LT(calendar.docPadBox().width, 8000);
    EXPECT_TRUE(calendar.leftColumn().isVisible());
}

TEST_F(CalendarTest, OnAWideScreenTheSurplusGoesToThePane) {
    calendar.resize(1920, 1080);
    QCoreApplication::processEvents();
    EXPECT_LT(calendar.docPadBox().width, 8000);
    EXPECT_EQ(calendar.docPad().width(), 520);
}

TEST_F(CalendarTest, NothingIsClippedAtTheSmallestSize) {
    calendar.resize(calendar.minimumSize());
    for (const Pane pane : {Pane::Planner, Pane::Phonebook, Pane::Dialer}) {
        calendar.raisePaneButton(pane);
        QCoreApplication::processEvents();
        for (const auto* button : calendar.findChildren<QAbstractButton*>())
            if (button->isVisible()) {
                const auto* caption = button->findChild<QLabel*>();
                const QFontMetrics metrics =
                    caption ? caption->fontMetrics() : button->fontMetrics();
                const int text = metrics.horizontalAdvance(button->text());
                EXPECT_GE(button->width(), text) << button->objectName().toStdString();
                const QRect place(button->mapTo(&calendar, QPoint(0, 0)), button->size());
                EXPECT_TRUE(calendar.rect().contains(place)) << button->objectName().toStdString();
            }
    }
}

// Each picture of a small window has its measures; so has the next larger one.
TEST_F(CalendarTest, TakesItsSmallFormBelowACertainSizeAndItsUsualOneAgain) {
    std::vector<bool> told;
    QObject::connect(&calendar, &Calendar::smallChanged,
                     [&](bool small) { told.push_back(small); });
    const auto widthOf = [this](const QSize& size) {
        calendar.resize(size);
        QCoreApplication::processEvents();
        return std::pair(calendar.rail().width(), calendar.leftColumn().width());
    };
    EXPECT_EQ(widthOf({1144, 640}), std::pair(88, 248));
    EXPECT_EQ(widthOf({1143, 640}), std::pair(76, 224));
    EXPECT_EQ(widthOf({1200, 639}), std::pair(76, 224));
    EXPECT_EQ(widthOf({1144, 640}), std::pair(88, 248));
    EXPECT_EQ(told, (std::vector{true, false}));
}

TEST_F(CalendarTest, TheSmallFormHasItsMeasures) {
    calendar.resize(1024, 566);
    QCoreApplication::processEvents();
    EXPECT_EQ(calendar.rail().paneButton(Pane::Phonebook)->size(), QSize(68, 54));
    EXPECT_EQ(calendar.rail().trash()->size(), QSize(48, 48));
    EXPECT_EQ(calendar.docPad().width(), 280);
    EXPECT_EQ(calendar.plannerPage().dateLine()->height(), 36);
    EXPECT_EQ(calendar.plannerPage().width(), 412);
    calendar.raisePaneButton(Pane::Phonebook);
    QCoreApplication::processEvents();
    const LetterTabs& tabs = *calendar.phonebookPage().letterTabs();
    EXPECT_EQ(tabs.height(), calendar.phonebookPage().card()->height());
    for (const auto* tab : tabs.findChildren<QWidget*>()) {
        EXPECT_GE(tab->height(), 15);
        EXPECT_TRUE(tabs.rect().contains(tab->geometry())) << tab->objectName().toStdString();
    }
    EXPECT_EQ(calendar.phonebookPage().contactKeys()->button("New")->width(), 30);
    EXPECT_EQ(calendar.phonebookPage().mailButton()->height(), 28);
    calendar.raisePaneButton(Pane::Dialer);
    QCoreApplication::processEvents();
    EXPECT_EQ(dialerPage->sendButton()->width(), 132);
    EXPECT_GE(dialerPage->keypad()->findChild<QWidget*>("Command8")->height(), 60);
}

TEST_F(CalendarTest, OnAScreenThatIsSmallerStillDocPadGivesWayAndTheRestScrolls) {
    calendar.setMinimumSize(1, 1);
    calendar.resize(958, 506);
    for (const Pane pane : {Pane::Planner, Pane::Phonebook, Pane::Dialer}) {
        calendar.raisePaneButton(pane);
        QCoreApplication::processEvents();
        EXPECT_GE(calendar.docPad().width(), 200);
        EXPECT_LE(calendar.docPad().width(), 280 - (1024 - 958));
        EXPECT_FALSE(desk().horizontalScrollBar()->isVisible());
        for (const auto* strip : calendar.findChildren<ToolStrip*>())
            for (const auto* key : strip->findChildren<QToolButton*>())
                if (key->isVisible()) {
                    const QRect place(key->mapTo(&calendar, QPoint(0, 0)), key->size());
                    EXPECT_TRUE(calendar.rect().contains(place)) << key->objectName().toStdString();
                }
        auto& clock = test::named<QLabel>(calendar, "Label8");
        EXPECT_LE(clock.mapTo(&calendar, QPoint(clock.width(), 0)).x(), calendar.width());
    }
    calendar.raisePaneButton(Pane::Phonebook);
    QCoreApplication::processEvents();
    EXPECT_TRUE(desk().verticalScrollBar()->isVisible()) << "27 letters have no room";
    calendar.raisePaneButton(Pane::Planner);
    QCoreApplication::processEvents();
    EXPECT_FALSE(desk().verticalScrollBar()->isVisible()) << "the day has";
}

TEST_F(CalendarTest, EveryControlThatTakesTheFocusHasANameToBeSpoken) {
    for (const auto* widget : calendar.findChildren<QWidget*>()) {
        if (!(widget->focusPolicy() & Qt::TabFocus))
            continue;
        const auto* button = qobject_cast<const QAbstractButton*>(widget);
        const QString name =
            button && !button->text().isEmpty() ? button->text() : widget->accessibleName();
        const bool isCard = widget == calendar.phonebookPage().card();  // named by its text
        EXPECT_TRUE(isCard || !name.isEmpty())
            << widget->objectName().toStdString() << " " << widget->metaObject()->className();
    }
}

TEST_F(CalendarTest, TheTabKeyVisitsTheControlsInReadingOrder) {
    calendar.setControlState(PaneControl::List1, ControlState::Enabled);
    calendar.raisePaneButton(Pane::Phonebook);
    calendar.leftColumn().month()->setFocus();
    QStringList visited;
    std::set<QWidget*> seen;
    while (seen.insert(QApplication::focusWidget()).second && seen.size() < 200) {
        visited << QApplication::focusWidget()->objectName();
        const bool text = QApplication::focusWidget() == &calendar.text();
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab,
                        text ? Qt::ControlModifier : Qt::NoModifier);
    }
    const QStringList order{"SSMonth1",
                            "Command1",
                            "PhonebookToolbar_Yellow",
                            "PhonebookToolbar_White",
                            "List1",
                            "VLMToolbar_New",
                            "Label17",
                            "Command3",
                            "Command4",
                            "TButtonMove",
                            "Text4",
                            "Toolbar3",
                            "MainToolbar_Save",
                            "MainToolbar_Exit",
                            "Picture1_0",
                            "Picture1_2"};
    qsizetype last = -1;
    for (const QString& name : order) {
        const qsizetype at = visited.indexOf(name);
        EXPECT_GT(at, last) << name.toStdString() << " in " << visited.join(" ").toStdString();
        last = at;
    }
}

TEST_F(CalendarTest, TheIconThatCancelsAPrintJobIsThereOnlyWhileItCan) {
    auto& icon = test::named<QToolButton>(calendar, "Image8");
    int cancelled = 0, hovered = 0;
    QObject::connect(&calendar.rail(), &Rail::cancelChosen, [&] { ++cancelled; });
    QObject::connect(&calendar.rail(), &Rail::cancelHovered, [&] { ++hovered; });
    EXPECT_FALSE(icon.isVisible());
    calendar.rail().showCancelIcon(true);
    EXPECT_TRUE(icon.isVisible());
    QEvent enter(QEvent::Enter);
    QCoreApplication::sendEvent(&icon, &enter);
    QTest::mouseClick(&icon, Qt::LeftButton);
    EXPECT_EQ(hovered, 1);
    EXPECT_EQ(cancelled, 1);
    calendar.rail().showCancelIcon(false);
    EXPECT_FALSE(icon.isVisible());
}

TEST_F(CalendarTest, TheStatusTextStaysUntilTheNextOne) {
    calendar.status().show("Click a letter.");
    QTest::mouseMove(&calendar, QPoint(600, 400));
    EXPECT_EQ(calendar.status().text(), "Click a letter.");
    calendar.status().show("");
    EXPECT_EQ(calendar.status().text(), "");
}

// 25 seconds to the millisecond: two looks in every minute.
TEST_F(CalendarTest, LooksForAlarmsFromItsStartAlsoWhileMinimised) {
    auto& timer = test::named<QTimer>(calendar, "Timer3");
    EXPECT_TRUE(timer.isActive());
    EXPECT_EQ(timer.interval(), 25000);
    EXPECT_EQ(timer.timerType(), Qt::PreciseTimer);
    int looks = 0;
    QObject::connect(&calendar, &Calendar::alarmsDue, [&] { ++looks; });
    calendar.showMinimized();
    timer.setInterval(1);
    EXPECT_TRUE(QTest::qWaitFor([&] { return looks >= 2; }));
}

TEST_F(CalendarTest, ARefusedCloseKeepsTheWindow) {
    bool may = false;
    int closings = 0;
    calendar.onCloseRequest([&] { return may; });
    QObject::connect(&calendar, &Calendar::closing, [&] { ++closings; });
    calendar.close();
    EXPECT_TRUE(calendar.isVisible());
    EXPECT_EQ(closings, 0);
    may = true;
    calendar.close();
    EXPECT_FALSE(calendar.isVisible());
    EXPECT_EQ(closings, 1);
}

}  // namespace
}  // namespace velmora
