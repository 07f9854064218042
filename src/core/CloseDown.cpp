#include "core/CloseDown.h"

#include <utility>

#include "platform/Failure.h"

namespace velmora {

CloseDown::CloseDown(Tray& tray, CloseDownParts parts) : tray_(tray), parts_(std::move(parts)) {}

void CloseDown::run() {
    if (std::exchange(done_, true))
        return;
    ignoringErrors(parts_.endScans);
    ignoringErrors([&] { tray_.DeleteIcon(); });
}

}  // namespace velmora
