#pragma once

#include <string>

#include "core/MainForm.h"
#include "platform/TrayIcon.h"

namespace velmora {

// The program's place in the tray.
class Tray {
  public:
    Tray(TrayIcon& icon, MainForm& form) : icon_(icon), form_(form) {}

    // Adds the icon with its tip. Without a tray on the desktop nothing happens.
    void InitTray();

    void DeleteIcon() { icon_.remove(); }

    // A left or right double-click brings the window back; every other message is nothing.
    void OnTrayMessage(unsigned message);

  private:
    TrayIcon& icon_;
    MainForm& form_;
};

}  // namespace velmora
