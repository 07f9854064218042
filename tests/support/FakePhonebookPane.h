#pragma once

#include <algorithm>
#include <string>
#include <utility>
#include <vector>

#include "phonebook/PhonebookPane.h"

namespace velmora::test {

// Keeps what would be in view; the list is unsorted.
class FakePhonebookPane final : public PhonebookPane {
  public:
    void clearList() override {
        lines.clear();
        selected.clear();
        calls.emplace_back("clearList");
    }
    void addLines(std::vector<std::string> added) override {
        lines.insert(lines.end(), added.begin(), added.end());
        calls.emplace_back("addLines");
    }
    [[nodiscard]] std::string selectedLine() const override { return selected; }
    bool selectLine(const std::string& line) override {
        const bool found = std::find(lines.begin(), lines.end(), line) != lines.end();
        selected = found ? line : std::string();
        return found;
    }
    void showDetails(const std::string& text) override {
        details = text;
        calls.push_back("showDetails " + text);
    }
    void showBookLabels(bool yellow, bool white) override {
        yellowLabel = yellow;
        whiteLabel = white;
    }
    void showLetter(int index) override { letter = index; }
    void showBook(std::int16_t kind) override { book = kind; }

    std::vector<std::string> takeCalls() { return std::exchange(calls, {}); }

    std::vector<std::string> lines;
    std::string selected;
    std::string details;
    std::vector<std::string> calls;
    bool yellowLabel = true;
    bool whiteLabel = false;
    int letter = -1;
    int book = -1;
};

}  // namespace velmora::test
