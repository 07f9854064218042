#pragma once

#include <QList>
#include <QObject>
#include <functional>
#include <string_view>

class QAction;
class QMenu;

namespace velmora {

class Calendar;

// The context menus of the main window: of a line of the list, of the entry's card, of a block of
// the day view and of a day of the month; and the keys that stand in them. They have no commands of
// their own: their items are those of the menu bar, run a command by its name, or do what the
// control itself does. Each is made when it is first wanted.
class ContextMenus final : public QObject {
    Q_OBJECT

  public:
    // What lies behind the items.
    struct Commands {
        std::function<bool(std::string_view name)> isBound;
        std::function<void(std::string_view name)> run;
        // The commands that make an appointment with the selected entry.
        QList<QAction*> scheduling;
        // Called whenever these come into view. May be empty.
        std::function<void()> schedulingShown{};
    };

    // `calendar` must outlive this object.
    ContextMenus(Calendar& calendar, Commands commands);

  private:
    void connectList();
    void connectCard();
    void connectDay();
    void connectMonth();

    [[nodiscard]] QMenu* makeMenu(const char* name);
    [[nodiscard]] QMenu* makeListMenu();
    [[nodiscard]] QMenu* makeCardMenu();
    [[nodiscard]] QMenu* makeDayMenu();
    [[nodiscard]] QMenu* makeMonthMenu();
    [[nodiscard]] QMenu* addScheduling(QMenu* menu) const;
    QAction* addItem(QMenu* menu, const char* caption, const char* key,
                     const std::function<void()>& work) const;
    void addOfMenuBar(QMenu* menu, std::initializer_list<std::string_view> names) const;
    void addCopyOfCard(QMenu* menu) const;
    void nameDate(QMenu* scheduling) const;

    Calendar& calendar_;
    Commands commands_;
    QMenu* listMenu_ = nullptr;
    QMenu* cardMenu_ = nullptr;
    QMenu* dayMenu_ = nullptr;
    QMenu* monthMenu_ = nullptr;
};

}  // namespace velmora
