#pragma once

#include <QObject>

#include "app/CalendarPhonebookPane.h"
#include "app/EntryForms.h"
#include "app/World.h"
#include "core/CommandSet.h"
#include "core/PatientCommand.h"
#include "core/PendingWish.h"
#include "core/SharedState.h"
#include "core/forms/Calendar.h"
#include "phonebook/EntryCommands.h"
#include "phonebook/EntryRecovery.h"
#include "phonebook/EntryResume.h"
#include "phonebook/EntryWriter.h"
#include "phonebook/FileBooks.h"
#include "phonebook/LetterView.h"
#include "phonebook/PhonebookStore.h"
#include "platform/qt/QtUserInput.h"

namespace velmora {

// Builds the phonebook and connects it with the main window.
class PhonebookRoom {
  public:
    // All must outlive the room.
    PhonebookRoom(World& world, SharedState& state, Calendar& calendar);

    void bindCommands(CommandSet& commands);

    [[nodiscard]] Books& books() { return books_; }
    [[nodiscard]] const PhonebookStore& store() const { return store_; }
    [[nodiscard]] EntryWriter& writer() { return writer_; }
    [[nodiscard]] LetterView& letters() { return letters_; }
    [[nodiscard]] EntryCommands& entries() { return entries_; }

    // A step of the start-up list.
    void showLetterA() { letters_.LetterClick(0); }

    // Offers the entry that was in its form when an earlier session was cut short.
    void offerRecovery() { entryResume_.offer(); }

    // Keeps the entry in an open form for the next start.
    void keepForNextStart() { entryForms_.keepForNextStart(); }

    // What is kept stays as it is from here on.
    void sealKept() { entryRecovery_.seal(); }

  private:
    void connect();

    Calendar& calendar_;
    FileBooks books_;
    PhonebookStore store_;
    EntryWriter writer_;
    CalendarPhonebookPane pane_;
    LetterView letters_;
    QtUserInput input_;
    PatientCommand patient_;
    PendingWish pendingWish_;
    EntryRecovery entryRecovery_;
    EntryForms entryForms_;
    EntryCommands entries_;
    EntryResume entryResume_;
    QObject connections_;  // ends them all before what they call is gone
};

}  // namespace velmora
