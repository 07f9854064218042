#pragma once

#include <chrono>
#include <optional>
#include <string>

namespace velmora {

// Several services may tell of the same call: the telephone that is paired with the desktop, and
// the modem with the same line. Reports of one number by different services within five seconds
// are one call; a service never repeats itself, so its own reports are calls each.
class CallMerger {
  public:
    using Time = std::chrono::steady_clock::time_point;
    static constexpr std::chrono::seconds kSameCall{5};

    // True when `service` tells of a call that no other one has told of.
    [[nodiscard]] bool isNew(const std::string& service, const std::string& number, Time now) {
        const bool known = last_ && last_->number == number && last_->service != service &&
                           now - last_->at <= kSameCall;
        if (!known)
            last_ = Report{service, number, now};
        return !known;
    }

  private:
    struct Report {
        std::string service;
        std::string number;
        Time at;
    };
    std::optional<Report> last_;
};

}  // namespace velmora
