#pragma once

#include <string>

namespace velmora {

// The clock of the main window, and the menu item that chooses 24 hours, as logic sees them.
class ClockFace {
  public:
    virtual ~ClockFace() = default;

    virtual void setTwentyFourHourTick(bool ticked) = 0;
    [[nodiscard]] virtual bool twentyFourHourTick() const = 0;
    virtual void setClockText(const std::string& text) = 0;  // Label8, in code-page text
    [[nodiscard]] virtual std::string clockText() const = 0;
};

}  // namespace velmora
