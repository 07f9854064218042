#pragma once

#include "core/SharedState.h"
#include "phonebook/PhonebookPane.h"
#include "phonebook/PhonebookStore.h"

namespace velmora {

// The entry that the commands on an entry act on: the first of the open book that the selected
// line of the list names. A company's line names no person who works there, and no line names no
// entry.
class SelectedEntry {
  public:
    // All must outlive this object.
    SelectedEntry(const SharedState& state, const PhonebookStore& store, const PhonebookPane& pane)
        : state_(state), store_(store), pane_(pane) {}

    // Its record, read anew; one whose fields are all empty when there is none. Throws Failure.
    [[nodiscard]] PhonebookRecord read() const;

  private:
    const SharedState& state_;
    const PhonebookStore& store_;
    const PhonebookPane& pane_;
};

}  // namespace velmora
