#include "app/ExportRoom.h"

#include <utility>

#include "core/forms/JobBar.h"
#include "core/forms/StatusBar.h"

namespace velmora {

ExportRoom::ExportRoom(World& world, SharedState& state, Calendar& calendar,
                       const PhonebookStore& store, LongJobs& jobs, ReportState& reports,
                       std::function<void(const std::string& utf8Text)> endProgram)
    : export_({jobs, calendar.status().job(), reports, state, store, world.settings, world.files,
               world.files, replacements_, world.messages, std::move(endProgram)}) {}

void ExportRoom::bindCommands(CommandSet& commands) {
    commands.bind(Commands::exportmnu, [this] { export_.run(); });
}

}  // namespace velmora
