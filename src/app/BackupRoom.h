#pragma once

#include <memory>

#include "app/World.h"
#include "core/CommandSet.h"
#include "core/LongJobs.h"
#include "core/forms/Calendar.h"
#include "exchange/Backup.h"
#include "exchange/forms/Form11.h"
#include "phonebook/BookRecords.h"
#include "platform/files/MountedVolumes.h"
#include "platform/files/PosixReplacement.h"

namespace velmora {

// Connects the backup of the phonebooks with the main window.
class BackupRoom {
  public:
    // All must outlive the room.
    BackupRoom(World& world, Calendar& calendar, Books& books, LongJobs& jobs);

    void bindCommands(CommandSet& commands);

  private:
    void showForm();

    World& world_;
    Calendar& calendar_;
    MountedVolumes volumes_;
    PosixReplacements replacements_;
    Backup backup_;
    std::unique_ptr<Form11> form_;  // made when it is first asked for
};

}  // namespace velmora
