#pragma once

#include <QObject>
#include <functional>
#include <map>
#include <string>
#include <string_view>

#include "core/CommandTable.h"

class QAction;
class QMenu;
class QMenuBar;

namespace velmora {

class MenuTap;

// The menu bar made from the table of commands. An item's object name is the name of its command.
class CommandMenus final : public QObject {
    Q_OBJECT

  public:
    explicit CommandMenus(QMenuBar* bar);

    // The item of a command, or nullptr.
    [[nodiscard]] QAction* item(std::string_view name) const;

    // Adds an item of the bar to another menu, too. That is an action of its own, which does and
    // shows what the item does: assistive tools take an action for part of one menu only.
    void addTo(QMenu& menu, std::string_view name);

    // Reports the items of another menu, too, as far as they came by addTo().
    void watch(QMenu* menu) const;

    void setItemsEnabled(const std::function<bool(std::string_view command)>& enabled);

  signals:
    void chosen(const velmora::MenuRow& row);

    // A menu of the bar is about to open.
    void opening(const velmora::MenuRow& head);

    // The pointer has come to rest on an item.
    void highlighted(const velmora::MenuRow& row);

  private:
    void addHead(QMenuBar* bar, const MenuRow& row);
    void addItem(const MenuRow& row);

    std::map<std::string_view, QAction*> items_;
    std::map<const QAction*, const MenuRow*> rows_;
    MenuTap* tap_ = nullptr;
    QMenu* menu_ = nullptr;  // the one being filled
};

}  // namespace velmora
