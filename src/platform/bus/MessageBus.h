#pragma once

#include <systemd/sd-bus.h>

#include <functional>
#include <memory>
#include <vector>

#include "platform/Polled.h"

namespace velmora {

// A connection to one of the desktop's message buses. Nothing here waits for the bus, and there may
// be none.
class MessageBus final : public Polled {
  public:
    enum class Kind { System, Session };

    explicit MessageBus(Kind kind) : kind_(kind) {}

    // `join` is called with each new connection, to ask for what is wanted of it, and may only use
    // operations that do not wait. Its captures must outlive the bus. To be called before the bus
    // has begun.
    void onConnection(std::function<void(sd_bus& connection)> join) {
        joins_.push_back(std::move(join));
    }

    // `end` is called when a connection has broken off. Its captures must outlive the bus.
    void onEnd(std::function<void()> end) { ends_.push_back(std::move(end)); }

    [[nodiscard]] bool begin() override;
    [[nodiscard]] Wait wait() const override;
    [[nodiscard]] bool goOn() override;

  private:
    struct Close {
        // What is still to be sent is dropped: to send it might take long.
        void operator()(sd_bus* connection) const { sd_bus_close_unref(connection); }
    };

    Kind kind_;
    std::vector<std::function<void(sd_bus& connection)>> joins_;
    std::vector<std::function<void()>> ends_;
    std::unique_ptr<sd_bus, Close> connection_;
};

// What was asked for of a connection, such as a signal or an answer; given up with this.
struct BusSlotEnd {
    void operator()(sd_bus_slot* slot) const { sd_bus_slot_unref(slot); }
};
using BusSlot = std::unique_ptr<sd_bus_slot, BusSlotEnd>;

}  // namespace velmora
