#include "app/FaxRoom.h"

#include "core/forms/StatusBar.h"

namespace velmora {

FaxRoom::FaxRoom(World& world, Calendar& calendar, const PadText& text, PrintJobs& printing)
    : world_(world),
      calendar_(calendar),
      fax_({printing, text, calendar.status(), world.messages}) {}

void FaxRoom::bindCommands(CommandSet& commands) {
    commands.bind(Commands::faxmnu, [this] { showForm(); });
}

void FaxRoom::showForm() {
    if (!form_)
        form_ = std::make_unique<Faxer>(fax_, world_.codePage, &calendar_);
    form_->present();
}

}  // namespace velmora
