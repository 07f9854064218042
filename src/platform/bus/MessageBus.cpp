#include "platform/bus/MessageBus.h"

#include <poll.h>

#include <chrono>
#include <cstdint>

namespace velmora {
namespace {

// Messages that are dealt with in one turn: a flood of them leaves room for the window.
constexpr int kMessagesAtOnce = 16;

std::optional<std::chrono::microseconds> timeLeftOf(sd_bus* connection) {
    std::uint64_t due = 0;  // of the steady clock
    if (sd_bus_get_timeout(connection, &due) < 0 || due == UINT64_MAX)
        return std::nullopt;
    const auto now = std::chrono::duration_cast<std::chrono::microseconds>(
                         std::chrono::steady_clock::now().time_since_epoch())
                         .count();
    const auto passed = static_cast<std::uint64_t>(now);
    return std::chrono::microseconds(due > passed ? due - passed : 0);
}

}  // namespace

bool MessageBus::begin() {
    sd_bus* connection = nullptr;
    const int opened =
        kind_ == Kind::System ? sd_bus_open_system(&connection) : sd_bus_open_user(&connection);
    connection_.reset(connection);
    if (opened < 0)
        return false;
    for (const auto& join : joins_)
        join(*connection_);
    return true;
}

Polled::Wait MessageBus::wait() const {
    const int events = sd_bus_get_events(connection_.get());
    return {.descriptor = sd_bus_get_fd(connection_.get()),
            .toRead = events > 0 && (events & POLLIN) != 0,
            .toWrite = events > 0 && (events & POLLOUT) != 0,
            .atMost = timeLeftOf(connection_.get())};
}

bool MessageBus::goOn() {
    for (int i = 0; i < kMessagesAtOnce; ++i) {
        const int done = sd_bus_process(connection_.get(), nullptr);
        if (done == 0)
            return true;
        if (done < 0) {
            for (const auto& end : ends_)
                end();
            connection_.reset();
            return false;
        }
    }
    return true;
}

}  // namespace velmora
