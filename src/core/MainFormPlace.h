#pragma once

#include "core/WindowShape.h"

namespace velmora {

// Where the main window stands on the screen. Lengths are twips: 15 to a logical pixel.
class MainFormPlace {
  public:
    virtual ~MainFormPlace() = default;

    // How the window was when it was closed last; to be called before it shows.
    virtual void setShape(const WindowShape& shape) = 0;
    [[nodiscard]] virtual WindowShape shape() const = 0;

    // Shows the window in the middle of the screen, its top raised by `raise`, in the shape that
    // was set as far as the screen has room for it.
    virtual void showCentred(int raise) = 0;

    // Out of the task bar, to the front, without staying above other windows.
    virtual void bringToFront() = 0;
};

}  // namespace velmora
