#pragma once

#include <chrono>
#include <functional>

#include "platform/WorkOwner.h"

namespace velmora {

// The one loop that runs everything. Whoever yields must survive what can happen meanwhile: forms
// closed, the program asked to end, the same command started again.
class EventLoop {
  public:
    virtual ~EventLoop() = default;

    // Lets all pending events run, user input too. Cheap enough to call for every record.
    virtual void yield() = 0;

    // Events run until the time has passed or the program is ending.
    virtual void waitFor(std::chrono::milliseconds duration) = 0;

    // Nothing runs: no event, no timer, no painting.
    virtual void freeze(std::chrono::milliseconds duration) = 0;

    // Runs `work` once, from the loop, after the present event has ended; not at all when its owner
    // is gone by then.
    virtual void post(const WorkOwner& owner, std::function<void()> work) = 0;

    // True from the moment the program is closing: a scan that yields stops then.
    [[nodiscard]] virtual bool closing() const = 0;
};

}  // namespace velmora
