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
    ignoringErrors(parts_.keepForms);
    finish();
    return true;
}

void CloseDown::runWithoutAsking() {
    if (done_)
        return;
    done_ = true;
    keepAll();
    finish();
}

// What may have to wait for another program comes last.
void CloseDown::keepAll() {
    ignoringErrors(parts_.keepText);
    ignoringErrors(parts_.keepForms);
    ignoringErrors(parts_.commitEditors);
}

void CloseDown::finish() {
    ignoringErrors(parts_.sealKept);
    // Without it the window opens as before: not worth a question at the end.
    ignoringErrors(parts_.keepWindow);
    ignoringErrors(parts_.endScans);
    ignoringErrors([&] { tray_.DeleteIcon(); });
}

}  // namespace velmora
