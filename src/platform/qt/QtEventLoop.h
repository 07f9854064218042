#pragma once

#include <QObject>
#include <chrono>

#include "platform/EventLoop.h"

namespace velmora {

// The event loop of the application.
class QtEventLoop final : public EventLoop {
  public:
    // Where the last turn ended just now there is none: a turn takes as long as the look at many
    // records. Events wait a few milliseconds at most.
    void yield() override;
    void waitFor(std::chrono::milliseconds duration) override;
    void freeze(std::chrono::milliseconds duration) override;
    void post(const WorkOwner& owner, std::function<void()> work) override;
    [[nodiscard]] bool closing() const override { return closing_; }

    // From now on closing() is true, waits end at once and posted work no longer runs.
    void beginClosing();

  private:
    QObject receiver_;  // posted work dies with the loop
    bool closing_ = false;
    std::chrono::steady_clock::time_point lastTurn_{};
};

}  // namespace velmora
