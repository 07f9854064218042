#pragma once

#include <string>
#include <string_view>

#include "core/SettingsStore.h"
#include "platform/CodePage.h"
#include "platform/EventLoop.h"
#include "platform/Messages.h"
#include "telephony/CallerId.h"

namespace velmora {

// The serial line of a modem that tells who is calling, and the timer that looks after it.
class CallerPort {
  public:
    virtual ~CallerPort() = default;

    // All but the last throw Failure when they do not work.
    virtual void open(int number) = 0;
    virtual void send(std::string_view bytes) = 0;
    // All that has come in since the last read; empty when nothing has.
    [[nodiscard]] virtual std::string read() = 0;
    virtual void close() = 0;
};

class CallerTimer {
  public:
    virtual ~CallerTimer() = default;
    virtual void enable(bool enabled) = 0;
};

// The road by which a modem would tell the caller's number in its own words. It is switched off:
// what comes in is not looked at, and nothing prepares the modem. Telephone services tell it
// instead.
class CallerModem {
  public:
    // All must outlive this object.
    struct Parts {
        CallerPort& port;
        CallerTimer& timer;
        const SettingsStore& settings;
        Messages& messages;
        EventLoop& loop;
        const CodePage& codePage;
        CallerId& callerId;
    };
    explicit CallerModem(const Parts& parts) : parts_(parts) {}

    // The timer's tick, and the port's word that something came in: does nothing.
    void onModem();

    // What onModem() would do: a number that stands in what came in is a call.
    void readCall();

    // Tells the modem to report numbers, where the setting wants it; the window stands still for
    // three seconds. The port is closed in the end, the timer runs on after a good answer.
    void InitCallerID();

  private:
    [[nodiscard]] bool modemAgrees(int port);

    Parts parts_;
};

}  // namespace velmora
