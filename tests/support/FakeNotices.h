#pragma once

#include <map>
#include <string>
#include <utility>
#include <vector>

#include "platform/Notices.h"

namespace velmora::test {

// Keeps the notices that are in view, "title|text" by subject.
class FakeNotices final : public Notices {
  public:
    void show(const std::string& subject, const std::string& title,
              const std::string& text) override {
        shown[subject] = title + "|" + text;
        ++count;
    }
    void withdraw(const std::string& subject) override { shown.erase(subject); }

    std::map<std::string, std::string> shown;
    int count = 0;  // of all that were shown
};

}  // namespace velmora::test
