#pragma once

#include <algorithm>
#include <string>
#include <vector>

#include "platform/RunningPrograms.h"

namespace velmora::test {

// Runs whose marks the test names.
class FakeRunningPrograms final : public RunningPrograms {
  public:
    [[nodiscard]] std::string ownMark() const override { return own; }
    [[nodiscard]] bool runs(const std::string& mark) const override {
        return std::find(running.begin(), running.end(), mark) != running.end();
    }

    std::string own = "this run";
    std::vector<std::string> running{"this run"};
};

}  // namespace velmora::test
