#include "core/forms/CommandMenus.h"

#include <QAction>
#include <QKeySequence>
#include <QMenu>
#include <QMenuBar>

#include "platform/qt/MenuTap.h"
#include "platform/qt/MenuTwin.h"
#include "platform/qt/QtText.h"

namespace velmora {
CommandMenus::CommandMenus(QMenuBar* bar) : QObject(bar) {
    for (const MenuRow& row : menuTree()) {
        if (row.level == 0 && isHead(row)) {
            addHead(bar, row);
            continue;
        }
        if (row.level == 0)
            menu_ = nullptr;
        if (menu_ && isSeparator(row))
            menu_->addSeparator()->setObjectName(latin(row.name));
        else
            addItem(row);
        if (row.level == 0)
            bar->addAction(items_.at(row.name));
    }
    tap_ = new MenuTap(
        [this](const QAction& action) {
            if (const auto found = rows_.find(&action); found != rows_.end())
                emit highlighted(*found->second);
        },
        this);
    tap_->watch(bar);
    for (QMenu* menu : bar->findChildren<QMenu*>())
        watch(menu);
}

void CommandMenus::addTo(QMenu& menu, std::string_view name) {
    QAction* original = items_.at(name);
    rows_.emplace(addTwin(menu, *original), rows_.at(original));
}

void CommandMenus::watch(QMenu* menu) const {
    tap_->watch(menu);
}

void CommandMenus::addHead(QMenuBar* bar, const MenuRow& row) {
    menu_ = bar->addMenu(latin(row.caption));
    menu_->setObjectName(latin(row.name));
    menu_->setToolTipsVisible(false);
    connect(menu_, &QMenu::aboutToShow, this, [this, &row] { emit opening(row); });
}

void CommandMenus::addItem(const MenuRow& row) {
    auto* action = new QAction(latin(row.caption), this);
    action->setObjectName(latin(row.name));
    action->setCheckable(row.checkable);
    action->setMenuRole(QAction::NoRole);
    if (!row.shortcut.empty())
        action->setShortcut(QKeySequence(latin(row.shortcut)));
    connect(action, &QAction::triggered, this, [this, action, &row] {
        if (row.checkable)
            action->setChecked(!action->isChecked());  // the command decides about the tick
        emit chosen(row);
    });
    items_.emplace(row.name, action);
    rows_.emplace(action, &row);
    if (menu_)
        menu_->addAction(action);
}

QAction* CommandMenus::item(std::string_view name) const {
    const auto found = items_.find(name);
    return found == items_.end() ? nullptr : found->second;
}

void CommandMenus::setItemsEnabled(const std::function<bool(std::string_view command)>& enabled) {
    for (const auto& [name, action] : items_)
        action->setEnabled(enabled(name));
}

}  // namespace velmora
