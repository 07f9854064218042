#include "core/forms/ContextMenus.h"

#include <QAccessible>
#include <QAction>
#include <QClipboard>
#include <QContextMenuEvent>
#include <QGuiApplication>
#include <QMenu>
#include <QMenuBar>
#include <QPushButton>
#include <QSignalSpy>
#include <set>
#include <string>
#include <vector>

#include "core/forms/CommandMenus.h"
#include "core/forms/LeftColumn.h"
#include "core/forms/PhonebookPage.h"
#include "forms/CalendarFixture.h"
#include "forms/Widgets.h"
#include "platform/controls/CalendarAccessibility.h"
#include "platform/controls/EntryCard.h"
#include "platform/controls/EntryList.h"
#include "platform/controls/SSMonth.h"

namespace velmora {
namespace {

using Texts = std::vector<std::string>;

// The main window in the Phonebook pane with two entries; commands only write down that they ran.
class ContextMenusTest : public test::CalendarFixture {
  protected:
    static void SetUpTestSuite() { registerCalendarAccessibility(); }

    ContextMenusTest() {
        calendar.menus().setItemsEnabled([this](auto name) { return isBound(name); });
        QObject::connect(&calendar.menus(), &CommandMenus::chosen,
                         [this](const MenuRow& row) { ran.emplace_back(row.name); });
        QObject::connect(calendar.phonebookPage().moveButton(), &QPushButton::clicked,
                         [this] { ran.emplace_back("move"); });
        QObject::connect(&list, &EntryList::lineClicked, [this] { ran.emplace_back("show"); });
        calendar.raisePaneButton(Pane::Phonebook);
        list.setEnabled(true);
        list.setLines({"Adams, Al", "Baker, Bo"});
        calendar.setDateLine("Friday, March 20, 2026");
    }
    ~ContextMenusTest() override {
        while (QWidget* popup = QApplication::activePopupWidget())
            popup->close();
    }

    [[nodiscard]] bool isBound(std::string_view name) const {
        return unbound.find(std::string(name)) == unbound.end();
    }

    template <typename Widget>
    static void ask(Widget& widget, QContextMenuEvent::Reason reason, QPoint place = {}) {
        QContextMenuEvent event(reason, place, widget.mapToGlobal(place));
        QCoreApplication::sendEvent(&widget, &event);
    }
    QPoint onLine(int row) { return list.visualRect(list.model()->index(row, 0)).center(); }
    void askOnLine(int row) {
        QTest::mousePress(list.viewport(), Qt::RightButton, {}, onLine(row));
        ask(*list.viewport(), QContextMenuEvent::Mouse, onLine(row));
    }
    void askOnDay(unsigned day) {
        const auto date = std::chrono::year(2026) / 3 / std::chrono::day(day);
        ask(month, QContextMenuEvent::Mouse, month.dateRect(date).center());
    }

    // The menu that is open; the test ends where none is.
    static QMenu& menu() {
        auto* open = qobject_cast<QMenu*>(QApplication::activePopupWidget());
        if (!open)
            throw std::runtime_error("no menu is open");
        return *open;
    }
    // Its items as they are read: text and key, "-" for a separator, "(...)" where disabled.
    static Texts items() {
        Texts result;
        for (const QAction* item : menu().actions()) {
            QString text = item->isSeparator() ? QStringLiteral("-") : item->text();
            if (!item->isSeparator() && !item->shortcut().isEmpty())
                text += QLatin1Char(' ') + item->shortcut().toString();
            result.push_back((item->isEnabled() ? text : QLatin1Char('(') + text + QLatin1Char(')'))
                                 .toStdString());
        }
        return result;
    }
    static void pick(const char* text, QMenu& from = menu()) {
        for (QAction* item : from.actions())
            if (item->text() == QString::fromLatin1(text))
                return item->trigger();
        throw std::runtime_error(std::string("no item ") + text);
    }

    Texts ran;
    QMenu scheduling;
    const QList<QAction*> ways{
        scheduling.addAction(QStringLiteral("&Schedule Meeting")),
        scheduling.addAction(QStringLiteral("&Call"), [this] { ran.emplace_back("Callmnu"); })};
    std::set<std::string> unbound;
    EntryList& list = *calendar.leftColumn().list();
    EntryCard& card = *calendar.phonebookPage().card();
    SSMonth& month = *calendar.leftColumn().month();
    ContextMenus menus{calendar,
                       {.isBound = [this](std::string_view name) { return isBound(name); },
                        .run = [this](std::string_view name) { ran.emplace_back(name); },
                        .scheduling = ways}};
};

// --- The list ---

TEST_F(ContextMenusTest, ALineHasItsFiveItems) {
    card.setText("Al Adams\r\n");
    askOnLine(0);
    EXPECT_EQ(items(), (Texts{"&Change Entry...", "&Delete Entry...", "&Move Entry", "Copy Ctrl+C",
                              "-", "&Schedule on Friday, March 20, 2026"}));
    EXPECT_EQ(list.selectedLine(), "Adams, Al");
}

TEST_F(ContextMenusTest, TheItemsOfALineRunTheCommandsOfTheWindow) {
    card.setText("Al Adams\r\n");
    askOnLine(1);
    ran.clear();
    pick("&Change Entry...");
    pick("&Delete Entry...");
    pick("&Move Entry");
    pick("Copy");
    EXPECT_EQ(ran, (Texts{"chngmnu", "Delete", "move"}));
    EXPECT_EQ(QGuiApplication::clipboard()->text(), QStringLiteral("Al Adams\n"));
}

TEST_F(ContextMenusTest, ALineIsScheduledByTheNineCommandsOfTheSchedulingMenu) {
    list.selectLine("Adams, Al");
    ask(list, QContextMenuEvent::Keyboard);
    QMenu* submenu = menu().actions().back()->menu();
    ASSERT_NE(submenu, nullptr);
    EXPECT_TRUE(submenu->isEnabled());
    ASSERT_EQ(submenu->actions().size(), ways.size());
    for (qsizetype i = 0; i < ways.size(); ++i)
        EXPECT_EQ(submenu->actions()[i]->text(), ways[i]->text());
    pick("&Call", *submenu);
    EXPECT_EQ(ran, Texts{"Callmnu"});
}

TEST_F(ContextMenusTest, WhileTheCardIsEmptyThereIsNothingToCopy) {
    list.selectLine("Adams, Al");
    ask(list, QContextMenuEvent::Keyboard);
    EXPECT_EQ(items()[3], "(Copy Ctrl+C)");
}

TEST_F(ContextMenusTest, CommandsThatAreNotBoundAreDisabledThereToo) {
    unbound = {"chngmnu", "Delete", "faxmnu"};
    calendar.menus().setItemsEnabled([this](auto name) { return isBound(name); });
    askOnLine(0);
    EXPECT_EQ(items()[0], "(&Change Entry...)");
    EXPECT_EQ(items()[1], "(&Delete Entry...)");
}

TEST_F(ContextMenusTest, EnterShowsTheEntryAndChangesItAndDelDeletesIt) {
    list.selectLine("Adams, Al");
    list.setFocus();
    QTest::keyClick(&list, Qt::Key_Return);
    EXPECT_EQ(ran, (Texts{"show", "chngmnu"}));
    ran.clear();
    QTest::keyClick(&list, Qt::Key_Delete);
    EXPECT_EQ(ran, Texts{"Delete"});
}

TEST_F(ContextMenusTest, ControlCInTheListCopiesTheCard) {
    list.selectLine("Adams, Al");
    card.setText("Mr. Al Adams\r\n");
    list.setFocus();
    QTest::keyClick(&list, Qt::Key_C, Qt::ControlModifier);
    EXPECT_EQ(QGuiApplication::clipboard()->text(), QStringLiteral("Mr. Al Adams\n"));
}

// --- The card ---

TEST_F(ContextMenusTest, TheCardHasTheCommandsOfTheEntry) {
    card.setText("Al Adams\r\n");
    ask(card, QContextMenuEvent::Mouse, {50, 50});
    EXPECT_EQ(items(),
              (Texts{"Copy Ctrl+C", "&Change Entry...", "-", "&Dial Phone Number",
                     "Dial &Work Number", "Dial &Other Number", "&Fax Entry", "Send Entr&y E-Mail",
                     "&Go to Entry's Web Page", "-", "&Envelope...", "Print C&urrent Entry"}));
    pick("&Fax Entry");
    EXPECT_EQ(ran, Texts{"faxmnu"});
}

TEST_F(ContextMenusTest, AnEmptyCardHasNoMenu) {
    ask(card, QContextMenuEvent::Mouse, {50, 50});
    EXPECT_EQ(QApplication::activePopupWidget(), nullptr);
}

TEST_F(ContextMenusTest, TheCardIsAText) {
    card.setText("Al Adams\r\n");
    QAccessibleInterface* told = QAccessible::queryAccessibleInterface(&card);
    EXPECT_EQ(told->role(), QAccessible::StaticText);
    EXPECT_EQ(told->text(QAccessible::Name), QStringLiteral("Al Adams\n"));
}

// --- The day ---

TEST_F(ContextMenusTest, ABlockIsEditedCopiedAndRemoved) {
    calendar.raisePaneButton(Pane::Planner);
    SSDay& day = calendar.day();
    day.Tasks().Add("09:00 AM", "10:00 AM", "first");
    ask(day, QContextMenuEvent::Mouse, day.blockRect(0).center());
    EXPECT_EQ(items(), (Texts{"&Edit F2", "Copy Ctrl+C", "-", "&Remove Del"}));
    pick("Copy");
    EXPECT_EQ(QGuiApplication::clipboard()->text(), QStringLiteral("first"));
    pick("&Edit");
    EXPECT_TRUE(day.isEditing());
    pick("&Remove");
    EXPECT_EQ(day.Tasks().Count(), 0);
}

// --- The month ---

TEST_F(ContextMenusTest, ADayIsChosenFirstAndHasItsCommands) {
    list.selectLine("Adams, Al");
    QObject::connect(&month, &SSMonth::selectionChanged, &month,
                     [this](const std::string& date) { calendar.setDateLine("The " + date); });
    askOnDay(25);
    EXPECT_EQ(month.Date(), "03/25/2026");
    EXPECT_EQ(items(),
              (Texts{"&Schedule on The 03/25/2026", "-", "&Week at a Glance...",
                     "Print Events of &the Day", "&Datewarden", "-", "&Go To Today Ctrl+T"}));
    pick("&Datewarden");
    EXPECT_EQ(ran, Texts{"evmnu"});
}

TEST_F(ContextMenusTest, ADayCanNotBeScheduledOnWithoutASelectedLine) {
    askOnDay(25);
    EXPECT_EQ(items()[0], "(&Schedule on Friday, March 20, 2026)");
}

TEST_F(ContextMenusTest, BesideTheDaysOfTheMonthThereIsNoMenu) {
    ask(month, QContextMenuEvent::Mouse, {20, 3});
    EXPECT_EQ(QApplication::activePopupWidget(), nullptr);
}

TEST_F(ContextMenusTest, TheMenuKeyBringsTheChosenDayBackIntoView) {
    month.setDate("03/25/2026");
    QTest::mouseClick(&month, Qt::LeftButton, {}, {month.width() - 100, 15});  // leafs on
    ask(month, QContextMenuEvent::Keyboard);
    EXPECT_FALSE(month.dateRect(month.date()).isEmpty());
    EXPECT_EQ(month.Date(), "03/25/2026");
    EXPECT_EQ(menu().objectName(), QStringLiteral("MonthMenu"));
}

TEST_F(ContextMenusTest, TheMenusStandInTheMenuBarWhereAssistiveToolsFindThem) {
    askOnLine(0);
    EXPECT_TRUE(calendar.menuBar()->actions().contains(menu().menuAction()));
    EXPECT_FALSE(menu().menuAction()->isVisible());
}

}  // namespace
}  // namespace velmora
