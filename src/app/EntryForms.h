#pragma once

#include <functional>

#include "phonebook/EntryFormOpener.h"
#include "phonebook/EntryRecovery.h"
#include "platform/CodePage.h"
#include "platform/Messages.h"
#include "platform/StatusLine.h"

class QWidget;

namespace velmora {

class AddForm;

// Opens the entry form over the main window, and keeps what is typed into it on the disk until it
// closes.
class EntryForms final : public EntryFormOpener {
  public:
    // All must outlive this object.
    struct Parts {
        Messages& messages;
        StatusLine& statusLine;
        const CodePage& codePage;
        EntryRecovery& recovery;
        QWidget& window;
    };
    explicit EntryForms(const Parts& parts) : parts_(parts) {}

    void openEntryForm(EntryEditor& editor) override;

    // What stands in an open form is kept for the next start, as the program may be about to end.
    void keepForNextStart();

  private:
    Parts parts_;
    std::function<void()> keepOpenForm_;  // while a form is open
};

}  // namespace velmora
