#pragma once

#include <QObject>

class QMenuBar;
class QShortcutEvent;
class QWidget;

namespace velmora {

// Where a head of the menu bar shares its access key with a button, such as Alt+F, or with a head
// behind it, such as Alt+H, the key opens the first menu that has it. By itself the toolkit would
// move from one to the other at each press.
class MenuFirst final : public QObject {
    Q_OBJECT

  public:
    explicit MenuFirst(QMenuBar* bar);

    // Watches all buttons that are in `window` by now.
    void watchButtons(const QWidget& window);

    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    [[nodiscard]] bool openMenu(const QShortcutEvent& key);

    QMenuBar* bar_;
};

}  // namespace velmora
