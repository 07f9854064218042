#pragma once

#include <functional>
#include <string>
#include <vector>

#include "platform/bus/MessageBus.h"

namespace velmora {

// The program as the desktop finds it on the session bus (org.freedesktop.Application), to start it
// and to hand links over.
class BusApplication {
  public:
    // What the desktop wishes. `token` is that with which it lets a window come to the front, or
    // empty. Both let no events run.
    struct Wishes {
        std::function<void(const std::string& token)> activate;
        std::function<void(const std::vector<std::string>& links, const std::string& token)> open;
    };

    // `name` is that of the desktop entry, such as "org.example.Program". Another copy of the
    // program may have it already: then this one waits until that ends. To be made before the bus
    // begins, and to outlive it.
    BusApplication(MessageBus& bus, std::string name, Wishes wishes);

    // The object on the bus: the name with "/" for ".".
    [[nodiscard]] std::string path() const;

  private:
    void join(sd_bus& connection);
    static int onActivate(sd_bus_message* call, void* application, sd_bus_error* error) noexcept;
    static int onOpen(sd_bus_message* call, void* application, sd_bus_error* error) noexcept;
    static int onAction(sd_bus_message* call, void* application, sd_bus_error* error) noexcept;
    static const sd_bus_vtable operations[];

    std::string name_;
    Wishes wishes_;
    BusSlot object_;
    BusSlot nameAsked_;
};

}  // namespace velmora
