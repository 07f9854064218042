#pragma once

#include <chrono>
#include <string>
#include <vector>

namespace velmora {

// Several services may tell of the same call: the telephone that is paired with the desktop, and
// the modem with the same line. Reports of one number by different services within five seconds
// are one call; a service never repeats itself, so its own reports are calls each.
class CallMerger {
  public:
    using Time = std::chrono::steady_clock::time_point;
    static constexpr std::chrono::seconds kSameCall{5};

    // True when `service` tells of a call that no other one has told of. Numbers are compared by
    // their digits, where they have any: each service sets its own marks between them.
    [[nodiscard]] bool isNew(const std::string& service, const std::string& number, Time now);

  private:
    struct Call {
        std::string number;
        Time at;                            // of its first report
        std::vector<std::string> services;  // that have told of it
    };
    std::vector<Call> calls_;  // of the last seconds, the oldest first
};

}  // namespace velmora
