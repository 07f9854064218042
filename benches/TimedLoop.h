#pragma once

#include <algorithm>
#include <chrono>
#include <functional>

#include "benches/Samples.h"
#include "platform/qt/QtEventLoop.h"

namespace velmora::bench {

// The event loop of the program; keeps the longest time that events had to wait for a turn.
class TimedLoop final : public EventLoop {
  public:
    void yield() override {
        note();
        loop_.yield();
        lastTurn_ = std::chrono::steady_clock::now();
    }
    void waitFor(std::chrono::milliseconds duration) override {
        note();
        loop_.waitFor(duration);
        lastTurn_ = std::chrono::steady_clock::now();
    }
    void freeze(std::chrono::milliseconds duration) override { loop_.freeze(duration); }
    void post(const WorkOwner& owner, std::function<void()> work) override {
        loop_.post(owner, std::move(work));
    }
    [[nodiscard]] bool closing() const override { return loop_.closing(); }

    // What is measured begins, as with a click.
    void begin() {
        longestGap_ = Milliseconds(0);
        lastTurn_ = std::chrono::steady_clock::now();
    }

    // Since begin(); the time since the last turn counts.
    [[nodiscard]] Milliseconds longestGap() {
        note();
        return longestGap_;
    }

  private:
    void note() {
        longestGap_ =
            std::max(longestGap_, Milliseconds(std::chrono::steady_clock::now() - lastTurn_));
    }

    QtEventLoop loop_;
    Milliseconds longestGap_{0};
    std::chrono::steady_clock::time_point lastTurn_ = std::chrono::steady_clock::now();
};

}  // namespace velmora::bench
