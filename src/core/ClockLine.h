#pragma once

#include "core/ClockFace.h"
#include "core/SettingsStore.h"
#include "platform/Clock.h"
#include "platform/Format.h"

namespace velmora {

// The clock of the main window and its 24-hour switch.
class ClockLine {
  public:
    ClockLine(ClockFace& face, SettingsStore& settings, const Clock& clock,
              const LocaleFormats& locale)
        : face_(face), settings_(settings), clock_(clock), locale_(locale) {}

    // Ticks or unticks the menu item as the setting says.
    void restore();

    // Twice a second: writes the time when its text has changed.
    void tick();

    // The user picked the menu item: flips its tick and remembers it. The tick stays flipped when
    // the setting can not be saved. Throws Failure.
    void toggleTwentyFourHours();

  private:
    ClockFace& face_;
    SettingsStore& settings_;
    const Clock& clock_;
    const LocaleFormats& locale_;
};

}  // namespace velmora
