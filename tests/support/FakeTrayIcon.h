#pragma once

#include <string>

#include "platform/TrayIcon.h"

namespace velmora::test {

class FakeTrayIcon final : public TrayIcon {
  public:
    void add(const std::string& newTip) override {
        tip = newTip;
        shown = true;
    }
    void remove() override { shown = false; }

    std::string tip;
    bool shown = false;
};

}  // namespace velmora::test
