#include "core/Tray.h"

#include "platform/Messages.h"

namespace velmora {
namespace {

constexpr std::size_t kLongestTip = 63;

}  // namespace

void Tray::InitTray() {
    icon_.add(std::string(kApplicationTitle).substr(0, kLongestTip));
}

void Tray::OnTrayMessage(unsigned message) {
    if (message == TrayIcon::kLeftDoubleClick || message == TrayIcon::kRightDoubleClick)
        place_.bringToFront();
}

}  // namespace velmora
