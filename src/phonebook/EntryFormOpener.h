#pragma once

#include "phonebook/EntryEditor.h"

namespace velmora {

// Opens the entry form.
class EntryFormOpener {
  public:
    virtual ~EntryFormOpener() = default;

    // Shows the form modally and returns when it has closed. Throws Failure when the values to
    // begin with can not be had; the form is not shown then.
    virtual void openEntryForm(EntryEditor& editor) = 0;
};

}  // namespace velmora
