#pragma once

#include "app/World.h"
#include "core/CommandSet.h"
#include "core/PrinterSetup.h"
#include "core/forms/Calendar.h"
#include "core/forms/PrinterDialog.h"

namespace velmora {

// Connects the printer with the commands of the main window that print, and with the one that
// chooses it. Other rooms print on World::printer.
class PrintRoom {
  public:
    // Both must outlive the room.
    PrintRoom(World& world, Calendar& calendar);

    void bindCommands(CommandSet& commands);

  private:
    void printDay();
    void printWhatIsOnShow();

    World& world_;
    Calendar& calendar_;
    QtPrinterQuestion question_;
    PrinterSetup setup_;
};

}  // namespace velmora
