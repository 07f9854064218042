#pragma once

#include <QObject>

#include "app/CalendarPhonebookPane.h"
#include "app/World.h"
#include "core/CommandSet.h"
#include "core/SharedState.h"
#include "core/forms/Calendar.h"
#include "phonebook/SelectedEntry.h"
#include "platform/ProgramStarter.h"
#include "platform/qt/DesktopPrograms.h"
#include "platform/serial/PosixModemPort.h"
#include "telephony/Dialer.h"
#include "telephony/DialerPane.h"
#include "telephony/ExternalDialer.h"
#include "telephony/PhoneLog.h"

namespace velmora {

class DialerPage;

// The Dialer pane as the main window knows it.
[[nodiscard]] Calendar::Dialer partsOf(DialerPage& page);

// The buttons that dial and hang up, as the dialer sees them.
class CalendarDialerPane final : public DialerPane {
  public:
    CalendarDialerPane(Calendar& calendar, DialerPage& page) : calendar_(calendar), page_(page) {}

    [[nodiscard]] std::string number() const override { return calendar_.number(); }
    void enableSend(bool enabled) override;
    void enableHangUp(bool enabled) override;
    void showCallHangUp(bool shown) override;

  private:
    Calendar& calendar_;
    DialerPage& page_;
};

// Builds the dialer and connects it with the main window.
class DialerRoom final : public QObject {
  public:
    // All must outlive the room.
    DialerRoom(World& world, const SharedState& state, Calendar& calendar, DialerPage& page,
               const PhonebookStore& phonebook);

    void bindCommands(CommandSet& commands);

  protected:
    // A digit that no text control took is typed on the keypad while that is in view.
    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    void connectKeypad();
    void connectCalls();
    void press(char key);

    Calendar& calendar_;
    DialerPage& page_;
    CalendarPhonebookPane list_;
    SelectedEntry entry_;
    CalendarDialerPane pane_;
    PosixModemPort port_;
    PhoneLog log_;
    Dialer dialer_;
    QtProgramStarter starter_;
    NoKeystrokes keys_;
    ExternalDialer externalDialer_;
    QObject connections_;  // ends them all before what they call is gone
};

}  // namespace velmora
