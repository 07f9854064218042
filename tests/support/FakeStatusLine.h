#pragma once

#include <string>

#include "platform/StatusLine.h"

namespace velmora::test {

// Keeps the last text.
class FakeStatusLine final : public StatusLine {
  public:
    void show(const std::string& newText) override { text = newText; }

    std::string text;
};

}  // namespace velmora::test
