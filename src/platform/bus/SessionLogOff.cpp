#include "platform/bus/SessionLogOff.h"

#include <array>
#include <cstdint>
#include <memory>
#include <utility>

namespace velmora {
namespace {

constexpr std::uint64_t kPatience = 5'000'000;  // microseconds, for one answer

// What is handed over with the request.
enum class Arguments {
    None,
    Unasked,  // the user has been asked already: number 1
    Quietly,  // without a dialog, and with saving allowed
};

struct Manager {
    const char* name;
    const char* path;
    const char* interface;
    const char* operation;
    Arguments arguments = Arguments::None;
    // One that is started when it is asked: only where this name tells that its desktop runs.
    const char* desktop = nullptr;
};

constexpr auto kManagers = std::to_array<Manager>({
    {"org.gnome.SessionManager", "/org/gnome/SessionManager", "org.gnome.SessionManager", "Logout",
     Arguments::Unasked},
    {"org.kde.Shutdown", "/Shutdown", "org.kde.Shutdown", "logout", Arguments::None,
     "org.kde.ksmserver"},
    {"org.kde.LogoutPrompt", "/LogoutPrompt", "org.kde.LogoutPrompt", "promptLogout",
     Arguments::None, "org.kde.ksmserver"},
    {"org.xfce.SessionManager", "/org/xfce/SessionManager", "org.xfce.Session.Manager", "Logout",
     Arguments::Quietly},
    {"org.lxqt.session", "/LXQtSession", "org.lxqt.session", "logout"},
});

struct MessageEnd {
    void operator()(sd_bus_message* message) const { sd_bus_message_unref(message); }
};
using BusMessage = std::unique_ptr<sd_bus_message, MessageEnd>;

BusMessage makeCall(sd_bus* connection, const char* name, const char* path, const char* interface,
                    const char* operation) {
    sd_bus_message* call = nullptr;
    if (sd_bus_message_new_method_call(connection, &call, name, path, interface, operation) < 0)
        return nullptr;
    return BusMessage(call);
}

void append(sd_bus_message* call, Arguments arguments) {
    if (arguments == Arguments::Unasked)
        sd_bus_message_append(call, "u", 1U);
    if (arguments == Arguments::Quietly)
        sd_bus_message_append(call, "bb", 0, 1);
}

}  // namespace

SessionLogOff::SessionLogOff(std::function<void(bool taken)> answered)
    : answered_(std::move(answered)), bus_(MessageBus::Kind::Session) {
    bus_.onConnection([this](sd_bus& connection) {
        connection_ = &connection;
        ask(false);
    });
}

bool SessionLogOff::begin() {
    if (!done_ && bus_.begin())
        return true;
    finish(false);
    return false;
}

bool SessionLogOff::goOn() {
    if (bus_.goOn() && !done_)
        return true;
    answer_.reset();
    finish(false);
    return false;
}

void SessionLogOff::ask(bool mayStart) {
    const Manager& manager = kManagers.at(manager_);
    step_ = mayStart ? Step::AskToStart : Step::Ask;
    const BusMessage call =
        makeCall(connection_, manager.name, manager.path, manager.interface, manager.operation);
    if (call) {
        append(call.get(), manager.arguments);
        sd_bus_message_set_auto_start(call.get(), mayStart ? 1 : 0);
    }
    send(call.get());
}

void SessionLogOff::lookForDesktop() {
    step_ = Step::LookForDesktop;
    const BusMessage call = makeCall(connection_, "org.freedesktop.DBus", "/org/freedesktop/DBus",
                                     "org.freedesktop.DBus", "NameHasOwner");
    if (call)
        sd_bus_message_append(call.get(), "s", kManagers.at(manager_).desktop);
    send(call.get());
}

void SessionLogOff::send(sd_bus_message* call) {
    const auto onAnswer = [](sd_bus_message* answer, void* self, sd_bus_error*) noexcept {
        int yes = 0;
        const bool failed = sd_bus_message_is_method_error(answer, nullptr) != 0;
        if (!failed)
            (void)sd_bus_message_read(answer, "b", &yes);
        static_cast<SessionLogOff*>(self)->take(failed, yes != 0);
        return 0;
    };
    sd_bus_slot* slot = nullptr;
    if (!call || sd_bus_call_async(connection_, &slot, call, onAnswer, this, kPatience) < 0)
        return finish(false);
    answer_.reset(slot);
}

// An answer to the step that was taken last.
void SessionLogOff::take(bool failed, bool yes) {
    if (step_ == Step::LookForDesktop)
        return !failed && yes ? ask(true) : next();
    if (!failed)
        return finish(true);
    if (step_ == Step::Ask && kManagers.at(manager_).desktop)
        return lookForDesktop();
    next();
}

void SessionLogOff::next() {
    if (++manager_ < kManagers.size())
        ask(false);
    else
        finish(false);
}

void SessionLogOff::finish(bool taken) {
    if (!std::exchange(done_, true))
        answered_(taken);
}

}  // namespace velmora
