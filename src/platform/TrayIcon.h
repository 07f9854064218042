#pragma once

#include <string>

namespace velmora {

// The program's icon in the desktop's tray. Its adapter reports the mouse by the numbers below.
class TrayIcon {
  public:
    static constexpr unsigned kLeftDoubleClick = 0x203;
    static constexpr unsigned kRightDoubleClick = 0x206;

    virtual ~TrayIcon() = default;

    // Does nothing where the desktop has no tray.
    virtual void add(const std::string& tip) = 0;
    virtual void remove() = 0;
};

}  // namespace velmora
