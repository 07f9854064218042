#pragma once

#include <QObject>
#include <functional>
#include <memory>
#include <string>
#include <string_view>

#include "app/World.h"
#include "core/CommandSet.h"
#include "core/PatientCommand.h"
#include "core/Preferences.h"
#include "core/forms/Calendar.h"
#include "core/forms/Setup.h"
#include "platform/Sound.h"
#include "platform/qt/QtUserInput.h"

namespace velmora {

// Builds the preferences and connects them with what they change.
class PreferencesRoom {
  public:
    // What other rooms do.
    struct Links {
        std::function<void(const std::string& folder)> movePlanner;
        std::function<void()> setDayLimits;
        std::function<void()> showEnvelope;  // anew, if it is open
        std::function<void(std::string_view topic)> help;
    };

    // All must outlive the room.
    PreferencesRoom(World& world, Calendar& calendar, Sound& sound, Links links);

    void bindCommands(CommandSet& commands);

    void open();

  private:
    [[nodiscard]] Setup& form();

    World& world_;
    Calendar& calendar_;
    Links links_;
    QtUserInput input_;
    PatientCommand patient_;
    Preferences preferences_;
    std::unique_ptr<Setup> form_;  // made when it is wanted
    QObject connections_;          // ends them all before what they call is gone
};

}  // namespace velmora
