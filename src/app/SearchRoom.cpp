#include "app/SearchRoom.h"

#include <QPushButton>
#include <utility>

#include "core/HelpTopics.h"
#include "core/forms/PhonebookPage.h"
#include "core/forms/StatusBar.h"

namespace velmora {

SearchRoom::SearchRoom(World& world, SharedState& state, Calendar& calendar,
                       const PhonebookStore& store, LetterView& letters, PrintJobs& printing,
                       std::function<void()> flipCheck1,
                       std::function<void(const std::string& topic)> openHelp)
    : world_(world),
      state_(state),
      calendar_(calendar),
      store_(store),
      letters_(letters),
      flipCheck1_(std::move(flipCheck1)),
      openHelp_(std::move(openHelp)),
      pane_(calendar),
      hitListPrint_(printing, world.settings, world.clock, world.locale) {
    QObject::connect(calendar.phonebookPage().associatesButton(), &QPushButton::clicked,
                     &connections_, [this] { associatesForm().findOthers(); });
}

void SearchRoom::bindCommands(CommandSet& commands) {
    commands.bind(Commands::searchi, [this] { searchForm().present(); });
}

Form4& SearchRoom::searchForm() {
    if (!searchForm_) {
        searchForm_ = std::make_unique<Form4>(
            DatabaseSearchParts{state_, world_.settings, store_, letters_, world_.messages,
                                calendar_.status(), world_.loop, flipCheck1_},
            hitListPrint_, world_.codePage, &calendar_);
        QObject::connect(searchForm_.get(), &Form4::helpWanted, searchForm_.get(),
                         [this](const QString& window) {
                             openHelp_(std::string(helpTopicOf(window.toStdString())));
                         });
    }
    return *searchForm_;
}

Other& SearchRoom::associatesForm() {
    if (!associatesForm_)
        associatesForm_ =
            std::make_unique<Other>(store_, pane_, calendar_.status(), world_.messages, &calendar_);
    return *associatesForm_;
}

}  // namespace velmora
