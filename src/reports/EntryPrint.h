#pragma once

#include "core/PrintJobs.h"
#include "core/SettingsStore.h"
#include "phonebook/PhonebookPane.h"
#include "phonebook/SelectedEntry.h"

namespace velmora {

// Prints the selected entry on a sheet of its own, in the face of the entry list: as the Complete
// Report prints an entry, with neither a head nor a new page.
class EntryPrint {
  public:
    // All must outlive it.
    struct Parts {
        PrintJobs& printing;
        const SelectedEntry& entry;
        const PhonebookPane& pane;
        const SettingsStore& settings;
        StatusLine& status;
        const CodePage& codePage;
    };

    explicit EntryPrint(const Parts& parts) : parts_(parts) {}

    // Events run while it prints. Prints nothing when no line is selected or no entry fits it. A
    // failure is told on the status line.
    void PrintEntry();

  private:
    Parts parts_;
};

}  // namespace velmora
