#pragma once

#include "core/SettingsStore.h"

namespace velmora {

// How the main window lay on the screen. Lengths are device-independent px.
struct WindowShape {
    int width = 0;  // of its inside when it is not maximized; 0 for the size of the first start
    int height = 0;
    bool maximized = false;
    int docPadWidth = 0;  // of DocPad's column; 0 as long as the user has not chosen one

    friend bool operator==(const WindowShape&, const WindowShape&) = default;
};

// The shape kept last; that of the first start when there is none, or none that makes sense.
[[nodiscard]] WindowShape storedWindowShape(const SettingsStore& settings);

// Writes nothing when the shape is the one that is kept already. Throws Failure.
void keepWindowShape(SettingsStore& settings, const WindowShape& shape);

}  // namespace velmora
