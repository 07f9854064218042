#include "app/PhonebookRoom.h"

#include <QPushButton>

#include "core/forms/LeftColumn.h"
#include "core/forms/PhonebookPage.h"
#include "core/forms/StatusBar.h"
#include "platform/controls/EntryList.h"
#include "platform/controls/LetterTabs.h"
#include "platform/files/FileStampOf.h"
#include "platform/files/ProgramFolder.h"

namespace velmora {

PhonebookRoom::PhonebookRoom(World& world, SharedState& state, Calendar& calendar)
    : calendar_(calendar),
      books_(
          world.files, world.locations,
          [&world](const std::string& path) { return fileStampOf(world.files.nativePath(path)); }),
      store_(books_, world.codePage),
      writer_(store_, world.messages),
      pane_(calendar),
      letters_(state, store_, pane_),
      patient_(world.loop, calendar.status(), input_),
      pendingWish_(
          state, [this](int kind) { letters_.SelectBook(static_cast<std::int16_t>(kind)); },
          [this](int index) { letters_.LetterClick(index); }),
      entryRecovery_(world.codePage.fromUtf8(configurationFolder().utf8()), world.files,
                     world.runningPrograms),
      entryForms_({world.messages, calendar.status(), world.codePage, entryRecovery_, calendar}),
      entries_({state, world.settings, store_, writer_, letters_, world.messages,
                [&calendar] { calendar.flipCheck1(); },
                [this](const std::function<void()>& work) { patient_.run(work); }},
               pane_, calendar.status(), entryForms_),
      entryResume_(entryRecovery_, entries_, world.messages) {
    connect();
}

void PhonebookRoom::connect() {
    QObject::connect(calendar_.phonebookPage().letterTabs(), &LetterTabs::clicked, &connections_,
                     [this](int index) { letters_.LetterClick(index); });
    QObject::connect(calendar_.leftColumn().list(), &EntryList::lineClicked, &connections_,
                     [this] { letters_.ListClick(); });
    QObject::connect(calendar_.phonebookPage().moveButton(), &QPushButton::clicked, &connections_,
                     [this] { entries_.moveEntry(); });
    QObject::connect(&calendar_, &Calendar::check1Flipped, &connections_,
                     [this] { pendingWish_.flipped(); });
}

void PhonebookRoom::bindCommands(CommandSet& commands) {
    commands.bind(Commands::addmnu, [this] { entries_.newEntry(); });
    commands.bind(Commands::chngmnu, [this] { entries_.changeEntry(); });
    commands.bind(Commands::Delete, [this] { entries_.deleteEntry(); });
    commands.bind(Commands::Yellow, [this] { letters_.SelectBook(kYellowPages); });
    commands.bind(Commands::White, [this] { letters_.SelectBook(kWhitePages); });
}

}  // namespace velmora
