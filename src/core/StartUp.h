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
    std::function<void()> watchMenus;           // menu highlights begin to drive the status line
    std::function<void()> showLetterA;          // a click on the first letter tab
    std::function<void()> openPlannerDatabase;  // and stand on its first row
    std::function<void()> showEvents;           // the events of today come into view
    std::function<void()> keepEventsInFront;    // of all windows; loads them if they are not
    std::function<void()> setDayLimits;         // the last and the first line of the day view
    std::function<void()> reopenDocument;       // the last DocPad document, if it is to be kept
    std::function<void()> colourCalendars;      // styles, then the days that hold rows
    std::function<void()> showToday;            // the month reports its first date
};

// Everything that happens between the making of the main window and its first event, in order.
class StartUp {
  public:
    StartUp(SharedState& state, MainForm& form, const SettingsStore& settings, ClockLine& clockLine,
            Tray& tray, const Clock& clock, const LocaleFormats& locale, StartUpParts parts);

    void run();

  private:
    void restoreFonts();
    void openEvents();

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
[[nodiscard]] FontChoice storedFont(const SettingsStore& settings, const FontKey& key);

}  // namespace velmora
