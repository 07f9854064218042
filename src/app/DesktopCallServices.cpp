#include "app/DesktopCallServices.h"

#include "platform/bus/BusCalls.h"
#include "platform/bus/ModemManagerCalls.h"
#include "platform/qt/PollPump.h"

namespace velmora {
namespace {

// A bus and what drives it.
struct PumpedBus {
    explicit PumpedBus(MessageBus::Kind kind) : bus(kind) {}

    MessageBus bus;
    PollPump pump{bus};  // begins in the next turn of the event loop
};

// It goes with the last of the services that live on it.
std::shared_ptr<MessageBus> pumped(MessageBus::Kind kind) {
    const auto whole = std::make_shared<PumpedBus>(kind);
    return {whole, &whole->bus};
}

}  // namespace

std::vector<std::unique_ptr<CallService>> desktopCallServices() {
    const auto system = pumped(MessageBus::Kind::System);
    std::vector<std::unique_ptr<CallService>> services;
    services.push_back(std::make_unique<OfonoCalls>(system));
    services.push_back(std::make_unique<ModemManagerCalls>(system));
    services.push_back(std::make_unique<KdeConnectCalls>(pumped(MessageBus::Kind::Session)));
    return services;
}

}  // namespace velmora
