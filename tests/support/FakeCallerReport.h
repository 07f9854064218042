#pragma once

#include <functional>
#include <string>
#include <vector>

#include "telephony/CallerReport.h"

namespace velmora::test {

// Keeps what the window would show.
class FakeCallerReport final : public CallerReport {
  public:
    void present() override {
        open = true;
        ++presented;
    }
    void showNumber(const std::string& newNumber) override { number = newNumber; }
    void clearLines() override { lines.clear(); }
    void addLine(const std::string& line) override {
        open = true;
        lines.push_back(line);
    }
    [[nodiscard]] bool hasLines() const override { return !lines.empty(); }
    void enableList(bool enabled) override { listEnabled = enabled; }
    void showCard(const std::string& text, bool yellow) override {
        card = text;
        cardIsYellow = yellow;
    }

    // What "&Close" does.
    void close() {
        open = false;
        lines.clear();
        card.clear();
    }

    std::string number, card;
    std::vector<std::string> lines;
    bool open = false, listEnabled = true, cardIsYellow = false;
    int presented = 0;
};

}  // namespace velmora::test
