#pragma once

#include <QObject>
#include <functional>

class QAction;
class QMenu;
class QMenuBar;

namespace velmora {

// Reports the items of menus and of the menu bar that the pointer comes to rest on. Items reached
// by the keyboard are not reported.
class MenuTap final : public QObject {
    Q_OBJECT

  public:
    explicit MenuTap(std::function<void(const QAction& item)> onHighlight,
                     QObject* parent = nullptr);

    void watch(QMenu* menu);
    void watch(QMenuBar* bar);

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    std::function<void(const QAction& item)> onHighlight_;
    const QAction* last_ = nullptr;
};

}  // namespace velmora
