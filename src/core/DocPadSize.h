#pragma once

#include "core/MainForm.h"
#include "core/PaneSwitch.h"
#include "core/SharedState.h"
#include "platform/StatusLine.h"

namespace velmora {

// DocPad takes over the whole window and goes back to its column.
class DocPadSize {
  public:
    DocPadSize(MainForm& form, SharedState& state, PaneSwitch& panes)
        : form_(form), state_(state), panes_(panes) {}

    // Does nothing when DocPad is maximised already.
    void maximise();

    // Undoes every step of maximise(); does nothing when DocPad is in its column.
    void restore();

    [[nodiscard]] bool maximised() const { return maximised_; }

  private:
    MainForm& form_;
    SharedState& state_;
    PaneSwitch& panes_;
    bool maximised_ = false;
};

}  // namespace velmora
