#pragma once

#include <functional>

namespace velmora {

// What the desktop has beside Velmora: its file manager, its settings and the session itself.
class SystemTools {
  public:
    virtual ~SystemTools() = default;

    // Opens the user's own folder. Failures show nothing.
    virtual void openFileManager() = 0;

    // False when no program for the settings of the system was found.
    virtual bool openSettings() = 0;

    // Asks the session manager to log the user off, as its own menu does: it lets all programs
    // save, and any of them may call it off. Returns at once; `answered` is called later, once,
    // with false when no session manager has taken the request.
    virtual void logOff(std::function<void(bool taken)> answered) = 0;
};

}  // namespace velmora
