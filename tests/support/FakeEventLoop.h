#pragma once

#include <deque>
#include <functional>
#include <utility>

#include "platform/EventLoop.h"

namespace velmora::test {

// Counts yields and waits, runs a hook in each yield, and keeps posted work until runPosted().
class FakeEventLoop final : public EventLoop {
  public:
    void yield() override {
        ++yields;
        if (onYield)
            onYield();
    }
    void waitFor(std::chrono::milliseconds duration) override { waited += duration; }
    void freeze(std::chrono::milliseconds duration) override { frozen += duration; }
    void post(const WorkOwner& owner, std::function<void()> work) override {
        posted_.push_back(owner.owning(std::move(work)));
    }
    [[nodiscard]] bool closing() const override { return isClosing; }

    void runPosted() {
        while (!posted_.empty()) {
            auto work = std::move(posted_.front());
            posted_.pop_front();
            work();
        }
    }

    int yields = 0;
    std::chrono::milliseconds waited{0};
    std::chrono::milliseconds frozen{0};
    std::function<void()> onYield;
    bool isClosing = false;

  private:
    std::deque<std::function<void()>> posted_;
};

}  // namespace velmora::test
