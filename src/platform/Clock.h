#pragma once

#include <chrono>

namespace velmora {

// A moment of local civil time, to the second, as the clock on the wall shows it.
using Moment = std::chrono::local_seconds;

[[nodiscard]] inline std::chrono::year_month_day dateOf(Moment moment) {
    return std::chrono::year_month_day(std::chrono::floor<std::chrono::days>(moment));
}

// Counted from midnight.
[[nodiscard]] inline std::chrono::seconds timeOfDay(Moment moment) {
    return moment - std::chrono::floor<std::chrono::days>(moment);
}

class Clock {
  public:
    virtual ~Clock() = default;

    // The present moment. Asked anew wherever the program says "now", never kept.
    [[nodiscard]] virtual Moment now() const = 0;
};

}  // namespace velmora
