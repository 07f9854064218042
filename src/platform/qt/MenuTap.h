#pragma once

#include <QObject>
#include <functional>

class QMenu;
class QAction;

namespace velmora {

// Reports the menu items that the pointer comes to rest on. Items reached by the keyboard are not
// reported.
class MenuTap final : public QObject {
    Q_OBJECT

  public:
    explicit MenuTap(std::function<void(const QAction& item)> onHighlight,
                     QObject* parent = nullptr);

    void watch(QMenu* menu);

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    std::function<void(const QAction& item)> onHighlight_;
    const QAction* last_ = nullptr;
};

}  // namespace velmora
