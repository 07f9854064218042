#pragma once

#include <functional>

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
    // `openListing` opens the dialog that prints a listing. All must outlive the room.
    PrintRoom(World& world, Calendar& calendar, PrintJobs& printing,
              std::function<void()> openListing);

    void bindCommands(CommandSet& commands);

  private:
    void printDay();
    void printWhatIsOnShow();

    World& world_;
    Calendar& calendar_;
    PrintJobs& printing_;
    std::function<void()> openListing_;
    QtPrinterQuestion question_;
    PrinterSetup setup_;
};

}  // namespace velmora
