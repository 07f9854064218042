#include "telephony/PhoneLogViewer.h"

#include "platform/Failure.h"

namespace velmora {

void PhoneLogViewer::view() {
    if (docPad_.changed() &&
        !messages_.ask("View Phone Log?",
                       "Are you sure you wish to view/annotate the phone log? Doing so will clear "
                       "DocPad's contents.",
                       Answer::No))
        return;
    try {
        log_.createIfMissing();
        if (!docPad_.loadFile(log_.path())) {
            messages_.tell(kTooLongTitle, "The phone log is too large.");
            view_.setTitle("DocPad");
            return;
        }
    } catch (const Failure& failure) {
        messages_.standardError(failure.what());
        return;
    }
    dialog_.setFileName(log_.documentPath());
    docPad_.showCaption("DocPad - PHONELOG.TXT");
}

}  // namespace velmora
