#pragma once

#include "phonebook/EntryCommands.h"
#include "phonebook/EntryRecovery.h"
#include "platform/Messages.h"

namespace velmora {

// Offers the entries that stood in a form when a session was cut short.
class EntryResume {
  public:
    // All must outlive this object.
    EntryResume(EntryRecovery& recovery, EntryCommands& entries, Messages& messages)
        : recovery_(recovery), entries_(entries), messages_(messages) {}

    // To be called once at start. Asks about one after the other until one is wanted, and opens
    // the form with that; the rest waits for the next start. What is not wanted is removed.
    void offer();

  private:
    [[nodiscard]] bool wanted(const EntryDraft& draft);
    void goOnWith(const EntryRecovery::Kept& kept);

    EntryRecovery& recovery_;
    EntryCommands& entries_;
    Messages& messages_;
};

}  // namespace velmora
