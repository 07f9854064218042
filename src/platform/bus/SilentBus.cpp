#include "platform/bus/SilentBus.h"

#include <poll.h>
#include <systemd/sd-bus.h>

#include <algorithm>
#include <cstdlib>
#include <memory>

namespace velmora {
namespace {

using Clock = std::chrono::steady_clock;

struct CloseBus {
    void operator()(sd_bus* bus) const { sd_bus_close_unref(bus); }
};

// Waits until the bus has something to say, or there is something to be said to it.
void await(sd_bus* bus, std::chrono::milliseconds atMost) {
    pollfd waited{.fd = sd_bus_get_fd(bus),
                  .events = static_cast<short>(std::max(sd_bus_get_events(bus), 0)),
                  .revents = 0};
    (void)::poll(&waited, 1, static_cast<int>(atMost.count()));
}

// False only for a bus that is there and says nothing.
bool speaks(std::chrono::milliseconds limit) {
    sd_bus* opened = nullptr;
    if (sd_bus_open_user(&opened) < 0)
        return true;  // the toolkit learns as quickly that there is none
    const std::unique_ptr<sd_bus, CloseBus> bus(opened);
    const auto end = Clock::now() + limit;
    for (auto now = Clock::now(); now < end; now = Clock::now()) {
        const int done = sd_bus_process(opened, nullptr);
        if (done < 0 || sd_bus_is_ready(opened) > 0)
            return true;
        if (done == 0)
            await(opened, std::chrono::ceil<std::chrono::milliseconds>(end - now));
    }
    return false;
}

}  // namespace

void forgetSilentSessionBus(std::chrono::milliseconds limit) {
    if (!speaks(limit))
        setenv("DBUS_SESSION_BUS_ADDRESS", "unix:path=/dev/null", 1);
}

}  // namespace velmora
