#pragma once

#include "platform/UserInput.h"

namespace velmora::test {

// Counts how often input was shut out.
class FakeUserInput final : public UserInput {
  public:
    int times = 0;
    bool isOut = false;

  protected:
    void shutOut() override {
        ++times;
        isOut = true;
    }
    void letIn() override { isOut = false; }
};

}  // namespace velmora::test
