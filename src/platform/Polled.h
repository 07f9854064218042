#pragma once

#include <chrono>
#include <optional>

namespace velmora {

// Work that waits for the system, such as a connection: it tells what it waits for, and goes on
// when that is there. No operation waits by itself.
class Polled {
  public:
    struct Wait {
        int descriptor = -1;  // negative: it waits for the time alone
        bool toRead = false;
        bool toWrite = false;
        std::optional<std::chrono::microseconds> atMost;  // nothing: as long as it takes
    };

    virtual ~Polled() = default;

    // Begins; false when there is nothing to be had now.
    [[nodiscard]] virtual bool begin() = 0;

    // What to wait for. To be asked after begin() and each goOn() that gave true.
    [[nodiscard]] virtual Wait wait() const = 0;

    // Does what can be done at once. False when all is over: it may be begun again, but not soon.
    [[nodiscard]] virtual bool goOn() = 0;
};

}  // namespace velmora
