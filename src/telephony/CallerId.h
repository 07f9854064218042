#pragma once

#include <optional>
#include <string>

#include "core/SettingsStore.h"
#include "phonebook/PhonebookStore.h"
#include "platform/EventLoop.h"
#include "platform/StatusLine.h"
#include "platform/TelephonyLine.h"
#include "telephony/CallerNumber.h"
#include "telephony/CallerReport.h"
#include "telephony/PhoneLog.h"

namespace velmora {

// Tells who is calling: the number on the status line and in the phone log, and every entry of both
// books that has it. No failure is reported: what can not be read yields nothing.
class CallerId {
  public:
    // All must outlive this object.
    struct Parts {
        const SettingsStore& settings;
        const PhonebookStore& store;
        PhoneLog& log;
        CallerReport& report;
        StatusLine& status;
        EventLoop& loop;
    };
    explicit CallerId(const Parts& parts) : parts_(parts) {}

    // Whether the setting says that the line is to be listened to.
    [[nodiscard]] static bool isSwitchedOn(const SettingsStore& settings) {
        return settings.read(keys::CallerIdAtStart);
    }

    // Listens to the line for as long as both live, if the setting says so now.
    void listenTo(TelephonyLine& line);

    // One incoming call. The setting may have changed since: then nothing happens, as when the
    // program is closing. Events run while the books are searched; a call that comes in then is
    // searched for first, in the same list, and the search under way goes on with its number.
    void onCall(const Caller& caller);

    // A call of this number, whatever the setting says.
    void onNumber(const std::string& number);

    // Shows the card of a line of the list, read anew; an empty one where the entry is gone.
    void showEntry(const std::string& line);

    // The number of the latest call, trimmed.
    [[nodiscard]] const std::string& callerNumber() const { return searched_.number(); }

  private:
    void searchBooks();
    void searchBook(const std::string& bookFile, char bookLetter);
    [[nodiscard]] std::optional<PhonebookRecord> entryOf(const std::string& line) const;

    Parts parts_;
    CallerNumber searched_{""};
};

}  // namespace velmora
