#pragma once

#include <chrono>

namespace velmora {

// How long locks of other programs may hold up this one, taken over all the calls that meet them:
// a handler that meets the same lock five times waits once. What has been waited is forgotten a
// little at a time, and is all forgotten after five times as long.
class Patience {
  public:
    using Duration = std::chrono::steady_clock::duration;

    // `most`: the longest wait in one piece.
    explicit Patience(std::chrono::milliseconds most) : most_(most) {}
    Patience(const Patience&) = delete;
    Patience& operator=(const Patience&) = delete;

    // Waits some milliseconds, more of them the more often the same lock has been waited for
    // before. False, without waiting, when the patience is at its end.
    [[nodiscard]] bool wait(int timesBefore);

    // While one lives the longest wait is another one, counted anew.
    class Replaced {
      public:
        Replaced(Patience& patience, std::chrono::milliseconds most)
            : patience_(patience), most_(patience.most_), spent_(patience.spent_) {
            patience.most_ = most;
            patience.spent_ = {};
        }
        ~Replaced() {
            patience_.most_ = most_;
            patience_.spent_ = spent_;
        }
        Replaced(const Replaced&) = delete;
        Replaced& operator=(const Replaced&) = delete;

      private:
        Patience& patience_;
        Duration most_;
        Duration spent_;
    };

    // While one lives nothing is waited for.
    class Suspended {
      public:
        explicit Suspended(Patience& patience) : patience_(patience) { ++patience_.suspended_; }
        ~Suspended() { --patience_.suspended_; }
        Suspended(const Suspended&) = delete;
        Suspended& operator=(const Suspended&) = delete;

      private:
        Patience& patience_;
    };

  private:
    Duration most_;
    Duration spent_{};
    std::chrono::steady_clock::time_point last_;
    int suspended_ = 0;
};

}  // namespace velmora
