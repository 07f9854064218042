#pragma once

#include <functional>

#include "core/ClockLine.h"
#include "core/DataLocations.h"
#include "core/MainForm.h"
#include "core/PaneSwitch.h"
#include "core/SettingsStore.h"
#include "core/SharedState.h"
#include "core/Tray.h"
#include "platform/Clock.h"
#include "platform/Format.h"

namespace velmora {

// What other subsystems do while the program starts. Each may throw Failure; the next step runs
// all the same.
struct StartUpParts {
    std::function<void()> watchMenus;   // menu highlights begin to drive the status line
    std::function<void()> showLetterA;  // a click on the first letter tab
};

// Everything that happens between the making of the main window and its first event, in order.
class StartUp {
  public:
    StartUp(SharedState& state, MainForm& form, const SettingsStore& settings, ClockLine& clockLine,
            Tray& tray, const Clock& clock, const LocaleFormats& locale, StartUpParts parts);

    void run();

  private:
    void restoreFonts();

    SharedState& state_;
    MainForm& form_;
    const SettingsStore& settings_;
    ClockLine& clockLine_;
    Tray& tray_;
    const Clock& clock_;
    const LocaleFormats& locale_;
    StartUpParts parts_;
};

// The font of three settings: face, size and colour, each only when it is not empty. A colour
// that is no whole number of 32 bits is left out.
[[nodiscard]] FontChoice storedFont(const SettingsStore& settings, std::string_view key);

}  // namespace velmora
