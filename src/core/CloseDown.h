#pragma once

#include <functional>

#include "core/Tray.h"

namespace velmora {

// What other subsystems do while the program ends.
struct CloseDownParts {
    std::function<void()> commitEditors;  // what is being typed into the day view is stored
    std::function<bool()> mayClose;       // asks about unsaved text; false keeps the program going
    std::function<void()> keepText;       // DocPad's unsaved text goes to its recovery file
    std::function<void()> keepForms;      // and so does what stands in open forms
    std::function<void()> sealKept;       // from here on what is kept stays as it is
    std::function<void()> keepWindow;     // its size is remembered for the next start
    std::function<void()> endScans;       // whoever yields stops at the next record
};

// The one way out: window closed, menu, toolbar, end of the desktop session, a signal.
//
// A session first has every program get ready, for an end that another program may still call off;
// keepAll() is for that, and the end itself comes later.
class CloseDown {
  public:
    CloseDown(Tray& tray, CloseDownParts parts);

    // False when the program goes on because unsaved text could not be saved. Once it has run
    // through, further calls do nothing and return true.
    bool run();

    // The end that can not wait for an answer: what is unsaved is kept for the next start.
    void runWithoutAsking();

    // What runWithoutAsking() does for the data alone. The program may go on.
    void keepAll();

    [[nodiscard]] bool done() const { return done_; }

  private:
    void finish();

    Tray& tray_;
    CloseDownParts parts_;
    bool done_ = false;
};

}  // namespace velmora
