#include "app/SystemRoom.h"

#include "core/forms/StatusBar.h"

namespace velmora {

SystemRoom::SystemRoom(World& world, Calendar& calendar, ProgramStarter& programs)
    : world_(world),
      calendar_(calendar),
      tools_(programs, world.codePage),
      desktop_(tools_, world.messages, calendar.status()),
      program_(programs, world.messages) {}

void SystemRoom::bindCommands(CommandSet& commands) {
    commands.bind(Commands::runmnu, [this] { form().present(); });
    commands.bind(Commands::Explorer, [this] { desktop_.RunExplorer(); });
    commands.bind(Commands::Control, [this] { desktop_.RunControlPanel(); });
    commands.bind(Commands::exitwinmnu, [this] { desktop_.ExitWindowsSession(); });
}

Form5& SystemRoom::form() {
    if (!form_) {
        form_ = std::make_unique<Form5>(program_, world_.codePage, &calendar_);
        QObject::connect(form_.get(), &Form5::characterReplaced, &connections_,
                         [this] { calendar_.status().show(kCharacterReplaced); });
    }
    return *form_;
}

}  // namespace velmora
