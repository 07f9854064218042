#pragma once

#include <string>

#include "core/MainFormPlace.h"
#include "platform/TrayIcon.h"

namespace velmora {

// The program's place in the tray.
class Tray {
  public:
    Tray(TrayIcon& icon, MainFormPlace& place) : icon_(icon), place_(place) {}

    // Adds the icon with its tip. Without a tray on the desktop nothing happens.
    void InitTray();

    void DeleteIcon() { icon_.remove(); }

    // A left or right double-click brings the window back; every other message is nothing.
    void OnTrayMessage(unsigned message);

  private:
    TrayIcon& icon_;
    MainFormPlace& place_;
};

}  // namespace velmora
