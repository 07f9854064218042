#pragma once

#include <string>

#include "platform/StatusLine.h"

namespace velmora::test {

// Keeps the last text; a file stands behind it in brackets.
class FakeStatusLine final : public StatusLine {
  public:
    void show(const std::string& newText) override { text = newText; }

    void showFile(const std::string& newText, const std::string& path) override {
        text = newText + "[" + path + "]";
    }

    std::string text;
};

}  // namespace velmora::test
