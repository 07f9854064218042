#include "app/PaperRoom.h"

#include <utility>

#include "core/forms/StatusBar.h"

namespace velmora {

PaperRoom::PaperRoom(World& world, SharedState& state, Calendar& calendar,
                     const PhonebookStore& store, PrintJobs& printing,
                     std::function<void()> openPreferences)
    : world_(world),
      calendar_(calendar),
      openPreferences_(std::move(openPreferences)),
      pane_(calendar),
      entry_(state, store, pane_),
      entryPrint_({printing, entry_, pane_, world.settings, calendar.status(), world.codePage}),
      fonts_(world.codePage),
      targets_(world.printer, world.printService, world.codePage),
      editor_({printing, world.settings, entry_, fonts_, world.messages, world.codePage}) {}

void PaperRoom::bindCommands(CommandSet& commands) {
    commands.bind(Commands::prntentry, [this] { entryPrint_.PrintEntry(); });
    commands.bind(Commands::envmnu, [this] { envelope().present(); });
}

void PaperRoom::showEnvelopeAnew() {
    if (form_)
        form_->showPicture();
}

// A form that was only hidden keeps what was typed into it.
Envelope& PaperRoom::envelope() {
    if (form_)
        return *form_;
    editor_.load();
    form_ =
        std::make_unique<Envelope>(Envelope::Parts{editor_, world_.settings, world_.printMetrics,
                                                   targets_, calendar_.status(), world_.codePage},
                                   &calendar_);
    QObject::connect(form_.get(), &Envelope::preferencesWanted, &connections_,
                     [this] { openPreferences_(); });
    QObject::connect(form_.get(), &Envelope::unloaded, &connections_, [this] {
        form_.release()->deleteLater();  // it is still telling of its end
    });
    return *form_;
}

}  // namespace velmora
