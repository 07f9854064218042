#pragma once

#include <functional>
#include <string>
#include <utility>

#include "phonebook/Entry.h"
#include "phonebook/EntryDraft.h"
#include "phonebook/EntryEditors.h"
#include "phonebook/EntryFormOpener.h"
#include "phonebook/PhonebookPane.h"
#include "platform/StatusLine.h"

namespace velmora {

// The commands on the entries of the book in use. A failure shows the standard error box and ends
// the command; the list is loaded anew and the program goes on.
class EntryCommands {
  public:
    // All must outlive the commands.
    EntryCommands(EntryEditorParts parts, PhonebookPane& pane, StatusLine& statusLine,
                  EntryFormOpener& opener)
        : parts_(std::move(parts)), pane_(pane), statusLine_(statusLine), opener_(opener) {}

    // Opens the form for a new entry.
    void newEntry();

    // The same, with values to begin with.
    void newEntryWith(const Entry& values);

    // Opens the form with the selected entry.
    void changeEntry();

    // Opens the form with what stood in it when an earlier session was cut short, and goes to the
    // book that it belongs to.
    void resume(const EntryDraft& draft);

    // Deletes the selected entry when the user confirms it.
    void deleteEntry();

    // Moves the selected entry to the other book when the user confirms it.
    void moveEntry();

    // A list line was dropped on the trash: deletes as deleteEntry() does, its question included.
    void dropOnTrash() { deleteEntry(); }

  private:
    void openForm(EntryEditor& editor);
    void confirmThen(const char* question, const std::function<void()>& work);
    [[nodiscard]] bool succeeds(const std::function<void()>& work);

    EntryEditorParts parts_;
    PhonebookPane& pane_;
    StatusLine& statusLine_;
    EntryFormOpener& opener_;
};

}  // namespace velmora
