#pragma once

#include <QSize>

#include "core/MainFormPlace.h"

class QMainWindow;

namespace velmora {

class Desk;

// Keeps the main window in its shape and on the screen.
class CalendarPlace final : public MainFormPlace {
  public:
    // Less only where the screen is smaller.
    static constexpr QSize kLeastSize{1024, 560};

    // Both must outlive this object.
    CalendarPlace(QMainWindow& window, Desk& desk) : window_(window), desk_(desk) {}

    // Gives the window the size of the first time.
    void takeFirstSize();

    void setShape(const WindowShape& shape) override { shape_ = shape; }
    [[nodiscard]] WindowShape shape() const override;
    void showCentred(int raise) override;
    void bringToFront() override;

    // To be called when the window is painted. Only then is it known what the window manager has
    // drawn around it, and what reaches beyond the screen since it was shown is brought back once.
    void keepOnScreen();

  private:
    void takeShape();

    QMainWindow& window_;
    Desk& desk_;
    WindowShape shape_;  // wanted at the next showing
    bool kept_ = false;  // on the screen, since it was shown in the middle of it
};

}  // namespace velmora
