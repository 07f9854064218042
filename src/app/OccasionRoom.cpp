#include "app/OccasionRoom.h"

#include <utility>

#include "core/forms/StatusBar.h"

namespace velmora {

OccasionRoom::OccasionRoom(World& world, Calendar& calendar, OccasionRoomParts parts)
    : world_(world),
      calendar_(calendar),
      parts_(std::move(parts)),
      datewarden_(world.settings, world.messages, world.clock),
      events_(world.settings, world.clock, world.locale, parts_.ring) {}

void OccasionRoom::bindCommands(CommandSet& commands) {
    commands.bind(Commands::evmnu, [this] { datewardenForm().present(); });
}

void OccasionRoom::showAtStart() {
    (void)eventsForm();
    const auto showLater = [this] {
        if (eventsForm_ && !eventsForm_->isVisible())
            eventsForm_->showBeside(calendar_);
    };
    QObject::connect(&calendar_, &Calendar::firstPainted, &connections_,
                     [this, showLater] { world_.loop.post(showing_, showLater); });
}

void OccasionRoom::keepInFront() {
    (void)eventsForm();
}

void OccasionRoom::showEvents() {
    eventsForm().presentBeside(calendar_);
}

Form7& OccasionRoom::datewardenForm() {
    if (!datewardenForm_) {
        datewardenForm_ =
            std::make_unique<Form7>(datewarden_, calendar_.status(), world_.codePage, &calendar_);
        QObject::connect(datewardenForm_.get(), &Form7::displayWanted, &connections_,
                         [this] { showEvents(); });
    }
    return *datewardenForm_;
}

Form8& OccasionRoom::eventsForm() {
    if (eventsForm_)
        return *eventsForm_;
    eventsForm_ = std::make_unique<Form8>(events_, world_.codePage);
    Form8* form = eventsForm_.get();
    QObject::connect(form, &QDialog::finished, &connections_, [this] { unloadEvents(); });
    QObject::connect(form, &Form8::datewardenWanted, &connections_,
                     [this] { datewardenForm().present(); });
    QObject::connect(form, &Form8::monthlyWanted, &connections_,
                     [this] { parts_.runCommand(Commands::monthlytasks); });
    QObject::connect(form, &Form8::weeklyWanted, &connections_,
                     [this] { parts_.runCommand(Commands::reptmnu); });
    // Queued: events run while it prints, and the form may be closed and gone by then.
    QObject::connect(
        form, &Form8::printWanted, &connections_,
        [this](const std::vector<std::string>& lines) { events_.Print(parts_.printing, lines); },
        Qt::QueuedConnection);
    return *form;
}

// The form is still telling of its end.
void OccasionRoom::unloadEvents() {
    eventsForm_.release()->deleteLater();
}

}  // namespace velmora
