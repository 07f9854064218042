#pragma once

#include <QObject>

#include "app/CalendarPhonebookPane.h"
#include "app/World.h"
#include "core/CommandSet.h"
#include "core/SharedState.h"
#include "core/forms/Calendar.h"
#include "phonebook/SelectedEntry.h"
#include "platform/qt/DesktopPrograms.h"
#include "telephony/MailAndWeb.h"

namespace velmora {

// Connects the commands that hand an entry to the programs outside with the main window.
class OutsideRoom {
  public:
    // All must outlive the room.
    OutsideRoom(World& world, const SharedState& state, Calendar& calendar,
                const PhonebookStore& phonebook);

    void bindCommands(CommandSet& commands);

    [[nodiscard]] ProgramStarter& programs() { return starter_; }
    [[nodiscard]] MailAndWeb& mailAndWeb() { return mailAndWeb_; }

  private:
    QtProgramStarter starter_;
    DesktopOpener opener_;
    CalendarPhonebookPane pane_;
    SelectedEntry entry_;
    MailAndWeb mailAndWeb_;
    QObject connections_;  // ends them all before what they call is gone
};

}  // namespace velmora
