#pragma once

#include "app/World.h"
#include "core/CommandSet.h"
#include "core/PrintJobs.h"
#include "core/PrinterSetup.h"
#include "core/forms/Calendar.h"
#include "core/forms/PrinterDialog.h"

namespace velmora {

// Connects the printer with the commands of the main window that print, and with the one that
// chooses it.
class PrintRoom {
  public:
    // All must outlive the room.
    PrintRoom(World& world, Calendar& calendar, PrintJobs& printing);

    void bindCommands(CommandSet& commands);

  private:
    void printDay();
    void printWhatIsOnShow();

    World& world_;
    Calendar& calendar_;
    PrintJobs& printing_;
    QtPrinterQuestion question_;
    PrinterSetup setup_;
};

}  // namespace velmora
