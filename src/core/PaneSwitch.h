#pragma once

#include "core/MainForm.h"
#include "core/Panes.h"
#include "platform/StatusLine.h"

namespace velmora {

// Shows one of the three panes. Everything that switches panes comes here: pane buttons, menus,
// toolbar keys and commands.
class PaneSwitch {
  public:
    PaneSwitch(MainForm& form, StatusLine& statusLine) : form_(form), statusLine_(statusLine) {}

    void show(Pane pane);

    // The pane in view. The window's design begins with the Planner.
    [[nodiscard]] Pane current() const { return current_; }

  private:
    MainForm& form_;
    StatusLine& statusLine_;
    Pane current_ = Pane::Planner;
};

}  // namespace velmora
