#pragma once

#include <chrono>

namespace velmora {

// A moment of local civil time, to the second, as the clock on the wall shows it.
using Moment = std::chrono::local_seconds;

class Clock {
  public:
    virtual ~Clock() = default;

    // The present moment. Asked anew wherever the program says "now", never kept.
    [[nodiscard]] virtual Moment now() const = 0;
};

}  // namespace velmora
