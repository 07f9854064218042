#include "app/SearchRoom.h"

#include <QPushButton>
#include <utility>

#include "core/forms/PhonebookPage.h"
#include "core/forms/StatusBar.h"

namespace velmora {

SearchRoom::SearchRoom(World& world, SharedState& state, Calendar& calendar,
                       const PhonebookStore& store, LetterView& letters,
                       std::function<void()> flipCheck1,
                       std::function<void(const std::string& topic)> openHelp)
    : pane_(calendar),
      searchForm_({state, world.settings, store, letters, world.messages, calendar.status(),
                   world.loop, std::move(flipCheck1)},
                  world.codePage, &calendar),
      associatesForm_(store, pane_, calendar.status(), world.messages, &calendar) {
    QObject::connect(calendar.phonebookPage().associatesButton(), &QPushButton::clicked,
                     &associatesForm_, [this] { associatesForm_.findOthers(); });
    QObject::connect(
        &searchForm_, &Form4::helpWanted, &searchForm_,
        [openHelp = std::move(openHelp)](const QString& topic) { openHelp(topic.toStdString()); });
}

void SearchRoom::bindCommands(CommandSet& commands) {
    commands.bind("searchi", [this] { searchForm_.present(); });
}

}  // namespace velmora
