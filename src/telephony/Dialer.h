#pragma once

#include <string>

#include "core/SettingsStore.h"
#include "phonebook/SelectedEntry.h"
#include "platform/CodePage.h"
#include "platform/EventLoop.h"
#include "platform/Messages.h"
#include "platform/ModemPort.h"
#include "platform/StatusLine.h"
#include "telephony/DialerPane.h"
#include "telephony/PhoneLog.h"

namespace velmora {

// Dials through the modem: from the keypad and from an entry. While a call is off hook the port
// stays open; closing it ends the call.
class Dialer {
  public:
    // All must outlive the dialer.
    struct Parts {
        ModemPort& port;
        SettingsStore& settings;
        const SelectedEntry& entry;
        PhoneLog& log;
        DialerPane& pane;
        StatusLine& status;
        Messages& messages;
        EventLoop& loop;
        const CodePage& codePage;
    };
    explicit Dialer(const Parts& parts) : parts_(parts) {}

    // Dials `number`, from which the user's own area code is cut off. The window stands still for
    // three seconds, between the two texts that the modem gets. A port that can not be opened or
    // written to ends the call in silence; no failure leaves this function.
    void DialNumber(std::string& number);

    // "&Send": dials the display's number, which stays as it is and is remembered for the next
    // start. Throws Failure when it can not be remembered.
    void Send();

    // Dials `field` of the selected entry. A failure to read the book is thrown.
    void dialEntry(Field field);

    // The two hang-up buttons: of the keypad's pane and over an entry's card.
    void hangUp();
    void hangUpCall();

  private:
    void dial(std::string& number);
    void endCall();

    Parts parts_;
};

}  // namespace velmora
