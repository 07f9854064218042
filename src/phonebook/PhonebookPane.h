#pragma once

#include <cstdint>
#include <string>
#include <vector>

namespace velmora {

// The parts of the main window that show the phonebook. All texts are code-page text.
class PhonebookPane {
  public:
    virtual ~PhonebookPane() = default;

    virtual void clearList() = 0;

    // Lines to be added to the list, in file order. The list sorts itself: by upper-cased bytes,
    // whatever the locale; lines that are then equal keep the order in which they came.
    virtual void addLines(std::vector<std::string> lines) = 0;

    // The text of the selected line; empty when none is selected.
    [[nodiscard]] virtual std::string selectedLine() const = 0;

    // The details of the selected entry, lines ended by CR LF; empty for none. Plain text.
    virtual void showDetails(const std::string& text) = 0;

    // Which of the labels "Yellow Pages" and "White Pages" are in view.
    virtual void showBookLabels(bool yellow, bool white) = 0;

    // The letter tab in use, 0 to 26.
    virtual void showLetter(int index) = 0;

    // The book in use, kYellowPages or kWhitePages.
    virtual void showBook(std::int16_t kind) = 0;
};

}  // namespace velmora
