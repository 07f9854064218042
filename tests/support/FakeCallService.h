#pragma once

#include <functional>
#include <string>
#include <utility>

#include "platform/CallService.h"

namespace velmora::test {

// A telephone service that reports what the test tells it to.
class FakeCallService final : public CallService {
  public:
    explicit FakeCallService(std::string name = "modem") : name_(std::move(name)) {}

    [[nodiscard]] std::string name() const override { return name_; }
    void listen(std::function<void(const CallReport& report)> onReport) override {
        onReport_ = std::move(onReport);
    }

    [[nodiscard]] bool isHeard() const { return static_cast<bool>(onReport_); }
    void ring(const CallReport& report) const { onReport_(report); }

  private:
    std::string name_;
    std::function<void(const CallReport& report)> onReport_;
};

}  // namespace velmora::test
