#pragma once

#include <functional>

#include "core/SharedState.h"

namespace velmora {

// What the hidden check box does when a dialog flips it: the dialog's wish, stored in PendingBook
// and PendingLetter, is carried out by the main window, book first, and forgotten.
class PendingWish {
  public:
    PendingWish(SharedState& state, std::function<void(int kind)> selectBook,
                std::function<void(int index)> letterClick);

    // Runs at every flip, ticking or unticking.
    void flipped();

  private:
    SharedState& state_;
    std::function<void(int kind)> selectBook_;
    std::function<void(int index)> letterClick_;
};

}  // namespace velmora
