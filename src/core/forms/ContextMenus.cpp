#include "core/forms/ContextMenus.h"

#include <QAction>
#include <QLabel>
#include <QMenu>
#include <QMenuBar>
#include <QPushButton>
#include <utility>

#include "core/forms/Calendar.h"
#include "core/forms/CommandMenus.h"
#include "core/forms/LeftColumn.h"
#include "core/forms/PhonebookPage.h"
#include "core/forms/PlannerPage.h"
#include "platform/controls/EntryCard.h"
#include "platform/controls/EntryList.h"
#include "platform/controls/SSDay.h"
#include "platform/controls/SSMonth.h"
#include "platform/qt/MenuTwin.h"

namespace velmora {
namespace {

constexpr const char* kScheduling = "Scheduling";

}  // namespace

ContextMenus::ContextMenus(Calendar& calendar, Commands commands)
    : calendar_(calendar), commands_(std::move(commands)) {
    connectList();
    connectCard();
    connectDay();
    connectMonth();
}

// --- What brings them up, and their keys ---

void ContextMenus::connectList() {
    EntryList* list = calendar_.leftColumn().list();
    connect(list, &EntryList::menuWanted, this, [this](const QPoint& place) {
        if (!listMenu_)
            listMenu_ = makeListMenu();
        listMenu_->popup(place);
    });
    connect(list, &EntryList::lineActivated, this, [this, list] {
        emit list->lineClicked();  // the card may still be empty
        commands_.run("chngmnu");
    });
    connect(list, &EntryList::removeWanted, this, [this] { commands_.run("Delete"); });
    connect(list, &EntryList::copyWanted, this, [this] {
        if (!calendar_.phonebookPage().card()->text().empty())
            calendar_.phonebookPage().card()->copy();
    });
}

void ContextMenus::connectCard() {
    connect(calendar_.phonebookPage().card(), &EntryCard::menuWanted, this,
            [this](const QPoint& place) {
                if (!cardMenu_)
                    cardMenu_ = makeCardMenu();
                cardMenu_->popup(place);
            });
}

void ContextMenus::connectDay() {
    connect(&calendar_.day(), &SSDay::menuWanted, this, [this](const QPoint& place) {
        if (!dayMenu_)
            dayMenu_ = makeDayMenu();
        dayMenu_->popup(place);
    });
}

void ContextMenus::connectMonth() {
    connect(calendar_.leftColumn().month(), &SSMonth::menuWanted, this,
            [this](const QPoint& place) {
                if (!monthMenu_)
                    monthMenu_ = makeMonthMenu();
                monthMenu_->popup(place);
            });
}

// --- What stands in them ---

// In the menu bar, though never seen there, so that assistive tools find the items.
QMenu* ContextMenus::makeMenu(const char* name) {
    auto* menu = new QMenu(calendar_.menuBar());
    menu->setObjectName(QString::fromLatin1(name));
    calendar_.menuBar()->addMenu(menu);
    menu->menuAction()->setVisible(false);
    calendar_.menus().watch(menu);
    return menu;
}

QMenu* ContextMenus::makeListMenu() {
    QMenu* menu = makeMenu("ListMenu");
    addOfMenuBar(menu, {"chngmnu"});
    addItem(menu, "&Delete Entry...", "", [this] {
        commands_.run("Delete");
    })->setEnabled(commands_.isBound("Delete"));
    addItem(menu, "&Move Entry", "", [this] { calendar_.phonebookPage().moveButton()->click(); });
    addCopyOfCard(menu);
    menu->addSeparator();
    QMenu* scheduling = addScheduling(menu);
    connect(menu, &QMenu::aboutToShow, this, [this, scheduling] { nameDate(scheduling); });
    return menu;
}

QMenu* ContextMenus::makeCardMenu() {
    QMenu* menu = makeMenu("CardMenu");
    addCopyOfCard(menu);
    addOfMenuBar(menu, {"chngmnu"});
    menu->addSeparator();
    addOfMenuBar(menu, {"dialp", "dialwn", "DialoOtherMnu", "faxmnu", "emailmnu", "webmnu"});
    menu->addSeparator();
    addOfMenuBar(menu, {"envmnu", "prntentry"});
    return menu;
}

QMenu* ContextMenus::makeDayMenu() {
    QMenu* menu = makeMenu("DayMenu");
    SSDay* day = &calendar_.day();
    addItem(menu, "&Edit", "F2", [day] { day->editSelected(); });
    addItem(menu, "Copy", "Ctrl+C", [day] { day->copySelected(); });
    menu->addSeparator();
    addItem(menu, "&Remove", "Del", [day] { day->removeSelected(); });
    return menu;
}

QMenu* ContextMenus::makeMonthMenu() {
    QMenu* menu = makeMenu("MonthMenu");
    QMenu* scheduling = addScheduling(menu);
    connect(menu, &QMenu::aboutToShow, this, [this, scheduling] {
        nameDate(scheduling);
        scheduling->setEnabled(calendar_.leftColumn().list()->hasSelection());
    });
    menu->addSeparator();
    addOfMenuBar(menu, {"weekat", "prntcal", "evmnu"});
    menu->addSeparator();
    addOfMenuBar(menu, {"totoday"});
    return menu;
}

QMenu* ContextMenus::addScheduling(QMenu* menu) const {
    auto* scheduling = new QMenu(menu);
    scheduling->setObjectName(QLatin1String(kScheduling));
    for (QAction* command : commands_.scheduling)
        addTwin(*scheduling, *command);
    if (commands_.schedulingShown)
        connect(scheduling, &QMenu::aboutToShow, this, commands_.schedulingShown);
    menu->addMenu(scheduling);
    return scheduling;
}

void ContextMenus::nameDate(QMenu* scheduling) const {
    QString date = calendar_.plannerPage().dateLine()->text();
    date.replace(QLatin1Char('&'), QLatin1String("&&"));
    scheduling->setTitle(QStringLiteral("&Schedule on ") + date);
}

// The key is shown only: the control that has the focus obeys it by itself.
QAction* ContextMenus::addItem(QMenu* menu, const char* caption, const char* key,
                               const std::function<void()>& work) const {
    QAction* item = menu->addAction(QString::fromLatin1(caption));
    item->setShortcut(QKeySequence(QString::fromLatin1(key)));
    item->setShortcutContext(Qt::WidgetShortcut);
    connect(item, &QAction::triggered, this, [work] { work(); });
    return item;
}

void ContextMenus::addOfMenuBar(QMenu* menu, std::initializer_list<std::string_view> names) const {
    for (const std::string_view name : names)
        calendar_.menus().addTo(*menu, name);
}

void ContextMenus::addCopyOfCard(QMenu* menu) const {
    EntryCard* card = calendar_.phonebookPage().card();
    QAction* copy = addItem(menu, "Copy", "Ctrl+C", [card] { card->copy(); });
    connect(menu, &QMenu::aboutToShow, copy,
            [copy, card] { copy->setEnabled(!card->text().empty()); });
}

}  // namespace velmora
