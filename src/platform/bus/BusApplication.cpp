#include "platform/bus/BusApplication.h"

#include <utility>

#include "platform/bus/BusValues.h"

namespace velmora {
namespace {

constexpr const char* kInterface = "org.freedesktop.Application";
constexpr std::size_t kMostLinks = 16;

// Reads what the desktop tells of itself, which comes last in each call.
std::string readToken(sd_bus_message& call) {
    const BusValues platform = readBusValues(call);
    const std::string token = platform.text("activation-token");
    return token.empty() ? platform.text("desktop-startup-id") : token;
}

std::vector<std::string> readLinks(sd_bus_message& call) {
    std::vector<std::string> links;
    if (sd_bus_message_enter_container(&call, SD_BUS_TYPE_ARRAY, "s") <= 0)
        return links;
    const char* link = nullptr;
    while (sd_bus_message_read_basic(&call, SD_BUS_TYPE_STRING, &link) > 0)
        if (links.size() < kMostLinks)
            links.emplace_back(link);
    (void)sd_bus_message_exit_container(&call);
    return links;
}

}  // namespace

const sd_bus_vtable BusApplication::operations[] = {
    SD_BUS_VTABLE_START(0),
    SD_BUS_METHOD("Activate", "a{sv}", "", BusApplication::onActivate, SD_BUS_VTABLE_UNPRIVILEGED),
    SD_BUS_METHOD("Open", "asa{sv}", "", BusApplication::onOpen, SD_BUS_VTABLE_UNPRIVILEGED),
    SD_BUS_METHOD("ActivateAction", "sava{sv}", "", BusApplication::onAction,
                  SD_BUS_VTABLE_UNPRIVILEGED),
    SD_BUS_VTABLE_END};

BusApplication::BusApplication(MessageBus& bus, std::string name, Wishes wishes)
    : name_(std::move(name)), wishes_(std::move(wishes)) {
    bus.onConnection([this](sd_bus& connection) { join(connection); });
    bus.onEnd([this] {
        object_.reset();
        nameAsked_.reset();
    });
}

std::string BusApplication::path() const {
    std::string path = '/' + name_;
    for (char& c : path)
        if (c == '.')
            c = '/';
        else if (c == '-')
            c = '_';
    return path;
}

// The object first: whoever sees the name finds it.
void BusApplication::join(sd_bus& connection) {
    sd_bus_slot* slot = nullptr;
    if (sd_bus_add_object_vtable(&connection, &slot, path().c_str(), kInterface,
                                 static_cast<const sd_bus_vtable*>(operations), this) < 0)
        return;
    object_.reset(slot);
    slot = nullptr;
    if (sd_bus_request_name_async(
            &connection, &slot, name_.c_str(), SD_BUS_NAME_QUEUE,
            [](sd_bus_message*, void*, sd_bus_error*) { return 0; }, nullptr) >= 0)
        nameAsked_.reset(slot);
}

int BusApplication::onActivate(sd_bus_message* call, void* application, sd_bus_error*) noexcept {
    static_cast<BusApplication*>(application)->wishes_.activate(readToken(*call));
    return sd_bus_reply_method_return(call, "");
}

int BusApplication::onOpen(sd_bus_message* call, void* application, sd_bus_error*) noexcept {
    const std::vector<std::string> links = readLinks(*call);
    static_cast<BusApplication*>(application)->wishes_.open(links, readToken(*call));
    return sd_bus_reply_method_return(call, "");
}

// There are no actions in the desktop entry.
int BusApplication::onAction(sd_bus_message* call, void*, sd_bus_error*) noexcept {
    return sd_bus_reply_method_errorf(call, SD_BUS_ERROR_NOT_SUPPORTED, "There is no such action.");
}

}  // namespace velmora
