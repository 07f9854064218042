#include "core/DocPadSize.h"

#include "platform/Messages.h"

namespace velmora {

void DocPadSize::maximise() {
    if (maximised_)
        return;
    maximised_ = true;
    form_.setYearButtonEnabled(false);
    state_.SavedDocPadBox = form_.docPadBox();
    form_.setMaximiseButtonShown(false);
    form_.fillWithDocPad();
    form_.setCaption(form_.docPadCaption());
    form_.setRestoreButtonShown(true);
    form_.setControlState(PaneControl::Command26, ControlState::Disabled);
    form_.setControlState(PaneControl::Picture4, ControlState::Hidden);
    form_.setControlState(PaneControl::Command5, ControlState::Disabled);
}

void DocPadSize::restore() {
    if (!maximised_)
        return;
    maximised_ = false;
    form_.setRestoreButtonShown(false);
    form_.putDocPadBack(state_.SavedDocPadBox);
    form_.setCaption(kApplicationTitle);
    form_.setMaximiseButtonShown(true);
    form_.setYearButtonEnabled(true);
    if (panes_.current() != Pane::Phonebook)
        return;
    form_.setControlState(PaneControl::Command26, ControlState::Enabled);
    form_.setControlState(PaneControl::Picture4, ControlState::Shown);
    form_.setControlState(PaneControl::Command5, ControlState::Enabled);
}

}  // namespace velmora
