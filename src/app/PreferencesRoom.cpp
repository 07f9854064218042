#include "app/PreferencesRoom.h"

#include <utility>

#include "core/HelpTopics.h"
#include "core/forms/StatusBar.h"
#include "platform/files/SystemFolders.h"

namespace velmora {

PreferencesRoom::PreferencesRoom(World& world, Calendar& calendar, Sound& sound, Links links)
    : world_(world),
      calendar_(calendar),
      links_(std::move(links)),
      patient_(world.loop, calendar.status(), input_),
      preferences_({world.settings,
                    world.files,
                    sound,
                    world.messages,
                    calendar.status(),
                    world.codePage,
                    [this](const std::function<void()>& work) { patient_.run(work); },
                    kSystemPrograms,
                    {.movePlanner = links_.movePlanner, .setDayLimits = links_.setDayLimits}}) {}

void PreferencesRoom::bindCommands(CommandSet& commands) {
    commands.bind(Commands::Setupmnu, [this] { open(); });
}

void PreferencesRoom::open() {
    form().present();
}

Setup& PreferencesRoom::form() {
    if (form_)
        return *form_;
    form_ = std::make_unique<Setup>(preferences_, world_.codePage, &calendar_);
    Setup* form = form_.get();
    QObject::connect(form, &Setup::applied, &connections_, [this] { links_.showEnvelope(); });
    QObject::connect(form, &Setup::helpWanted, &connections_, [this](const QString& window) {
        links_.help(helpTopicOf(window.toStdString()));
    });
    QObject::connect(form, &Setup::characterReplaced, &connections_,
                     [this] { calendar_.status().show(kCharacterReplaced); });
    QObject::connect(form, &Setup::folderRefused, &connections_, [this] {
        world_.messages.warn(kApplicationTitle,
                             "The name of this folder has characters that Velmora can not write. "
                             "Please choose another folder or give it another name.");
    });
    return *form_;
}

}  // namespace velmora
