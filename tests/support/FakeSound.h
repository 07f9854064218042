#pragma once

#include <string>
#include <utility>
#include <vector>

#include "platform/Sound.h"

namespace velmora::test {

// Writes down what would be heard: "play PATH" and "beeps".
class FakeSound final : public Sound {
  public:
    void play(const std::string& path) override { heard_.push_back("play " + path); }
    void beepThreeTimes() override { heard_.emplace_back("beeps"); }

    // The sounds since the last call.
    std::vector<std::string> takeHeard() { return std::exchange(heard_, {}); }

  private:
    std::vector<std::string> heard_;
};

}  // namespace velmora::test
