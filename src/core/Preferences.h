#pragma once

#include <functional>
#include <string>

#include "core/SettingsStore.h"
#include "core/SettingsTable.h"
#include "platform/CodePage.h"
#include "platform/Files.h"
#include "platform/Messages.h"
#include "platform/Sound.h"
#include "platform/StatusLine.h"

namespace velmora {

// What the dialog of the preferences does.
class Preferences {
  public:
    // What follows when the settings are stored.
    struct Effects {
        std::function<void(const std::string& folder)> movePlanner;  // may be empty
        std::function<void()> setDayLimits;
    };

    // All must outlive this object. `systemFolder` is where programs of the system lie.
    struct Parts {
        SettingsStore& settings;
        const Files& files;
        Sound& sound;
        Messages& messages;
        StatusLine& status;
        const CodePage& codePage;
        // Runs what may meet the locks of another copy; as PatientCommand::run.
        std::function<void(const std::function<void()>& work)> patiently;
        std::string systemFolder;
        Effects effects;
    };
    explicit Preferences(Parts parts) : parts_(std::move(parts)) {}

    // One value for each of preferenceRows().
    [[nodiscard]] PreferenceValues shown() const;

    // Stores all values, or none; an end of the planner's hours before their start follows it. Then
    // the planner goes to its folder, and the day view gets its hours. False when nothing was
    // stored; the user has been told why then.
    bool apply(PreferenceValues values);

    // Plays the sound file of this path.
    void playNow(const std::string& path);

    // Asks for a file; nothing when the user calls it off.
    [[nodiscard]] std::optional<std::string> chooseSound();
    [[nodiscard]] std::optional<std::string> chooseProgram();

  private:
    Parts parts_;
};

// The end of the planner's hours, at least as late as the start.
[[nodiscard]] int endOfHours(int start, int end);

}  // namespace velmora
