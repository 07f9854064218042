#pragma once

#include <QObject>
#include <memory>

#include "accessories/DesktopCommands.h"
#include "accessories/RunProgram.h"
#include "accessories/forms/Form5.h"
#include "app/DesktopTools.h"
#include "app/World.h"
#include "core/CommandSet.h"
#include "core/forms/Calendar.h"
#include "platform/ProgramStarter.h"

namespace velmora {

// Connects the commands that start other programs, and the one that ends the session, with the main
// window.
class SystemRoom {
  public:
    // All must outlive the room.
    SystemRoom(World& world, Calendar& calendar, ProgramStarter& programs);

    void bindCommands(CommandSet& commands);

  private:
    [[nodiscard]] Form5& form();

    World& world_;
    Calendar& calendar_;
    DesktopTools tools_;
    DesktopCommands desktop_;
    RunProgram program_;
    std::unique_ptr<Form5> form_;  // made when it is wanted
    QObject connections_;          // ends them all before what they call is gone
};

}  // namespace velmora
