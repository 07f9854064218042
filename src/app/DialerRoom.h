#pragma once

#include <QObject>

#include "core/forms/Calendar.h"

namespace velmora {

class DialerPage;

// The Dialer pane as the main window knows it.
[[nodiscard]] Calendar::Dialer partsOf(DialerPage& page);

// Connects the Dialer pane with the main window.
class DialerRoom {
  public:
    // Both must outlive the room.
    DialerRoom(Calendar& calendar, DialerPage& page);

  private:
    void connectKeypad();
    void connectWhatIsNotBuilt();

    Calendar& calendar_;
    DialerPage& page_;
    QObject connections_;  // ends them all before what they call is gone
};

}  // namespace velmora
