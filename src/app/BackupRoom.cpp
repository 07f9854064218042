#include "app/BackupRoom.h"

#include "core/forms/JobBar.h"
#include "core/forms/StatusBar.h"

namespace velmora {

BackupRoom::BackupRoom(World& world, Calendar& calendar, Books& books, LongJobs& jobs)
    : world_(world),
      calendar_(calendar),
      backup_({jobs, calendar.status().job(), books, world.locations, world.files, replacements_,
               volumes_, world.messages, world.codePage}) {}

void BackupRoom::bindCommands(CommandSet& commands) {
    commands.bind(Commands::backupmnu, [this] { showForm(); });
}

void BackupRoom::showForm() {
    if (!form_)
        form_ = std::make_unique<Form11>(backup_, world_.codePage, &calendar_);
    form_->present();
}

}  // namespace velmora
