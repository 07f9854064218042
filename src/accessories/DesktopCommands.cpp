#include "accessories/DesktopCommands.h"

namespace velmora {
namespace {

constexpr const char* kExitTitle = "Exit Windows";

}  // namespace

void DesktopCommands::RunExplorer() {
    tools_.openFileManager();
}

void DesktopCommands::RunControlPanel() {
    if (!tools_.openSettings())
        status_.show("No program for the settings of the system was found.");
}

void DesktopCommands::ExitWindowsSession() {
    if (asked_ || !messages_.confirm(kExitTitle, "This will end the current Windows Session."))
        return;
    asked_ = true;
    tools_.logOff([this](bool taken) {
        asked_ = false;
        if (!taken)
            messages_.tell(kExitTitle,
                           "Unable to Exit Windows at this time. Close all DOS sessions, and open "
                           "applications, then, try again.");
    });
}

}  // namespace velmora
