#pragma once

#include <QObject>

class QMenuBar;
class QShortcutEvent;
class QWidget;

namespace velmora {

// Where a head of the menu bar and a button share an access key, such as Alt+F, the key opens the
// menu. By itself the toolkit would move from one to the other at each press.
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
