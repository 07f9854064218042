#pragma once

#include <functional>

#include "core/Tray.h"

namespace velmora {

// What other subsystems do while the program ends, in this order. None of them may keep the
// window open.
struct CloseDownParts {
    std::function<void()> endScans;  // whoever yields stops at the next record
};

// The one way out: window closed, menu, toolbar, end of the desktop session.
class CloseDown {
  public:
    CloseDown(Tray& tray, CloseDownParts parts);

    // Runs once; a second call does nothing.
    void run();

    [[nodiscard]] bool done() const { return done_; }

  private:
    Tray& tray_;
    CloseDownParts parts_;
    bool done_ = false;
};

}  // namespace velmora
