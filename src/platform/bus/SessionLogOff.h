#pragma once

#include <systemd/sd-bus.h>

#include <cstddef>
#include <functional>

#include "platform/bus/MessageBus.h"

namespace velmora {

// One request to the session manager of the desktop, over the session bus, to log the user off. The
// managers that are known are asked one behind the other, until one of them takes it; none is
// started that does not belong to the running desktop, and no session is ended by force.
class SessionLogOff final : public Polled {
  public:
    // `answered` is called once: with false when no manager has taken the request.
    explicit SessionLogOff(std::function<void(bool taken)> answered);

    [[nodiscard]] bool begin() override;
    [[nodiscard]] Wait wait() const override { return bus_.wait(); }
    [[nodiscard]] bool goOn() override;

  private:
    enum class Step { Ask, LookForDesktop, AskToStart };

    void next();
    void take(bool failed, bool yes);
    void ask(bool mayStart);
    void lookForDesktop();
    void send(sd_bus_message* call);
    void finish(bool taken);

    std::function<void(bool taken)> answered_;
    MessageBus bus_;
    sd_bus* connection_ = nullptr;
    std::size_t manager_ = 0;
    Step step_ = Step::Ask;
    bool done_ = false;
    BusSlot answer_;  // gone before the connection
};

}  // namespace velmora
