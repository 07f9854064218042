#pragma once

#include <QObject>
#include <QPointer>
#include <QSystemTrayIcon>
#include <functional>

#include "platform/TrayIcon.h"

namespace velmora {

// The icon in the tray of the desktop, where there is one.
class QtTrayIcon final : public QObject, public TrayIcon {
    Q_OBJECT

  public:
    explicit QtTrayIcon(std::function<void(unsigned message)> onMessage);
    ~QtTrayIcon() override;

    void add(const std::string& tip) override;
    void remove() override;

  protected:
    // Sees the second press of a right double-click, which the toolkit drops.
    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    std::function<void(unsigned message)> onMessage_;
    QPointer<QSystemTrayIcon> icon_;
};

}  // namespace velmora
