#pragma once

#include <QObject>
#include <functional>
#include <memory>
#include <string>

#include "app/CalendarPhonebookPane.h"
#include "app/World.h"
#include "core/CommandSet.h"
#include "core/PrintJobs.h"
#include "core/SharedState.h"
#include "core/forms/Calendar.h"
#include "phonebook/HitListPrint.h"
#include "phonebook/LetterView.h"
#include "phonebook/PhonebookStore.h"
#include "phonebook/forms/Form4.h"
#include "phonebook/forms/Other.h"

namespace velmora {

// Builds the search of the books and the list of associates, and connects them with the main
// window.
class SearchRoom {
  public:
    // All must outlive the room. `flipCheck1` flips the main window's hidden check box; `openHelp`
    // shows the help page of a topic.
    SearchRoom(World& world, SharedState& state, Calendar& calendar, const PhonebookStore& store,
               LetterView& letters, PrintJobs& printing, std::function<void()> flipCheck1,
               std::function<void(const std::string& topic)> openHelp);

    void bindCommands(CommandSet& commands);

  private:
    // The forms are made when they are first asked for.
    [[nodiscard]] Form4& searchForm();
    [[nodiscard]] Other& associatesForm();

    World& world_;
    SharedState& state_;
    Calendar& calendar_;
    const PhonebookStore& store_;
    LetterView& letters_;
    std::function<void()> flipCheck1_;
    std::function<void(const std::string& topic)> openHelp_;
    CalendarPhonebookPane pane_;
    HitListPrint hitListPrint_;
    std::unique_ptr<Form4> searchForm_;
    std::unique_ptr<Other> associatesForm_;
    QObject connections_;  // ends them all before what they call is gone
};

}  // namespace velmora
