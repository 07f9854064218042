#include "core/CloseDown.h"

#include <utility>

#include "platform/Failure.h"

namespace velmora {

CloseDown::CloseDown(Tray& tray, CloseDownParts parts) : tray_(tray), parts_(std::move(parts)) {}

bool CloseDown::run() {
    if (done_)
        return true;
    ignoringErrors(parts_.commitEditors);
    if (!parts_.mayClose())
        return false;
    done_ = true;
    ignoringErrors(parts_.endScans);
    ignoringErrors([&] { tray_.DeleteIcon(); });
    return true;
}

}  // namespace velmora
