#include "app/AlarmRoom.h"

#include "core/forms/LeftColumn.h"
#include "core/forms/StatusBar.h"
#include "platform/controls/SSMonth.h"

namespace velmora {

AlarmRoom::AlarmRoom(World& world, Calendar& calendar, Notices& notices)
    : world_(world),
      calendar_(calendar),
      sound_(world.files),
      alarmSound_(world.settings, world.files, sound_),
      windows_(world.codePage, {.ok = [this] { alerts_.Ok(); },
                                .snooze = [this](int minutes) { alerts_.Snooze(minutes); }}),
      announced_(windows_, notices, world.codePage),
      alerts_(world.settings, world.clock, announced_),
      tick_(world.settings, world.clock, alarmSound_, alerts_, announced_, world.loop),
      editor_(world.settings, world.clock,
              [&calendar] { return calendar.leftColumn().month()->date(); }) {
    QObject::connect(&calendar, &Calendar::alarmsDue, &connections_, [this] { tick_.run(); });
}

void AlarmRoom::bindCommands(CommandSet& commands) {
    commands.bind(Commands::alset, [this] { presentForm(); });
}

void AlarmRoom::presentForm() {
    if (!form_) {
        form_ = std::make_unique<Alarm>(editor_, world_.codePage, &calendar_);
        QObject::connect(form_.get(), &Alarm::characterReplaced, &connections_,
                         [this] { calendar_.status().show(kCharacterReplaced); });
    }
    form_->present();
}

}  // namespace velmora
