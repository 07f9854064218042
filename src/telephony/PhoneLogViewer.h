#pragma once

#include "docpad/DialogState.h"
#include "docpad/DocPad.h"
#include "docpad/DocPadView.h"
#include "platform/Messages.h"
#include "telephony/PhoneLog.h"

namespace velmora {

// The command `viewmnu`: shows the phone log in DocPad, where it can be annotated and saved back.
class PhoneLogViewer {
  public:
    PhoneLogViewer(PhoneLog& log, DocPad& docPad, DocPadView& view, DialogState& dialog,
                   Messages& messages)
        : log_(log), docPad_(docPad), view_(view), dialog_(dialog), messages_(messages) {}

    // Asks when DocPad holds unsaved changes. A log that can not be read brings the standard error
    // box, and DocPad stays as it is.
    void view();

  private:
    PhoneLog& log_;
    DocPad& docPad_;
    DocPadView& view_;
    DialogState& dialog_;
    Messages& messages_;
};

}  // namespace velmora
