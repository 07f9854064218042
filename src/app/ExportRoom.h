#pragma once

#include <functional>
#include <string>

#include "app/World.h"
#include "core/CommandSet.h"
#include "core/PrintJobs.h"
#include "core/SharedState.h"
#include "core/forms/Calendar.h"
#include "exchange/Export.h"
#include "phonebook/PhonebookStore.h"
#include "platform/files/PosixReplacement.h"

namespace velmora {

// Connects the export of the phonebooks with the main window.
class ExportRoom {
  public:
    // All must outlive the room. `endProgram` ends it with a message.
    ExportRoom(World& world, SharedState& state, Calendar& calendar, const PhonebookStore& store,
               LongJobs& jobs, ReportState& reports,
               std::function<void(const std::string& utf8Text)> endProgram);

    void bindCommands(CommandSet& commands);

  private:
    PosixReplacements replacements_;
    Export export_;
};

}  // namespace velmora
