#pragma once

#include "docpad/FocusedText.h"

namespace velmora {

// Cut, Copy and Paste of the Edit menu, on the control that has the focus, whichever it is.
// Failures are passed over.
class ClipboardCommands {
  public:
    ClipboardCommands(FocusedText& focused, ClipboardText& clipboard)
        : focused_(focused), clipboard_(clipboard) {}

    // With nothing selected Cut and Copy leave the clipboard empty.
    void EditCut();
    void EditCopy();
    void EditPaste();

  private:
    FocusedText& focused_;
    ClipboardText& clipboard_;
};

}  // namespace velmora
