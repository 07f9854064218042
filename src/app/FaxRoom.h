#pragma once

#include <memory>

#include "app/World.h"
#include "core/CommandSet.h"
#include "core/PrintJobs.h"
#include "core/forms/Calendar.h"
#include "docpad/PadText.h"
#include "telephony/Fax.h"
#include "telephony/forms/Faxer.h"

namespace velmora {

// Builds the fax and connects it with the main window.
class FaxRoom {
  public:
    // All must outlive the room.
    FaxRoom(World& world, Calendar& calendar, const PadText& text, PrintJobs& printing);

    void bindCommands(CommandSet& commands);

  private:
    void showForm();

    World& world_;
    Calendar& calendar_;
    Fax fax_;
    std::unique_ptr<Faxer> form_;  // made when it is first asked for
};

}  // namespace velmora
