#pragma once

#include <string>

namespace velmora {

// The window that lists who may be calling. All texts are code-page text.
class CallerReport {
  public:
    virtual ~CallerReport() = default;

    // Opens the window, or brings it forward, without taking the keys from whoever types.
    virtual void present() = 0;

    // The number that the list is about.
    virtual void showNumber(const std::string& number) = 0;

    // Lines stay in the order in which they come. The window is opened for a line if it was closed
    // meanwhile.
    virtual void clearLines() = 0;
    virtual void addLine(const std::string& line) = 0;
    [[nodiscard]] virtual bool hasLines() const = 0;
    virtual void enableList(bool enabled) = 0;

    // The card of the chosen entry and whether it is of the Yellow Pages; empty for none.
    virtual void showCard(const std::string& text, bool yellow) = 0;
};

}  // namespace velmora
