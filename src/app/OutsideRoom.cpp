#include "app/OutsideRoom.h"

#include <QPushButton>

#include "core/forms/PhonebookPage.h"

namespace velmora {

OutsideRoom::OutsideRoom(World& world, const SharedState& state, Calendar& calendar,
                         const PhonebookStore& phonebook)
    : starter_(world.codePage),
      opener_(starter_),
      pane_(calendar),
      entry_(state, phonebook, pane_),
      mailAndWeb_({world.settings, entry_, world.files, starter_, opener_, world.messages,
                   world.codePage, productAddresses(), world.locations.programFolder()}) {
    const PhonebookPage& page = calendar.phonebookPage();
    const auto onClick = [this](QPushButton* button, void (MailAndWeb::*command)()) {
        QObject::connect(button, &QPushButton::clicked, &connections_,
                         [this, command] { (mailAndWeb_.*command)(); });
    };
    onClick(page.mailButton(), &MailAndWeb::mailToEntry);
    onClick(page.webButton(), &MailAndWeb::goToEntrysPage);
    onClick(page.fileButton(), &MailAndWeb::openEntrysFile);
}

void OutsideRoom::bindCommands(CommandSet& commands) {
    commands.bind(Commands::emailmnu, [this] { mailAndWeb_.mailToEntry(); });
    commands.bind(Commands::webmnu, [this] { mailAndWeb_.goToEntrysPage(); });
    commands.bind(Commands::EMail, [this] { mailAndWeb_.runMailProgram(); });
    commands.bind(Commands::WebPage, [this] { mailAndWeb_.runBrowser(); });
}

}  // namespace velmora
