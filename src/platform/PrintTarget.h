#pragma once

#include <functional>
#include <optional>
#include <string>

#include "platform/PrintSurface.h"

namespace velmora {

// Where the next job goes. Texts are code-page text, lengths inches.
struct PrintTarget {
    std::string printer;
    std::string paper;  // "A4", "Letter"
    double width = 0;   // of the sheet as it lies
    double height = 0;
    double left = 0;  // the corner of the printable area
    double top = 0;
    double printableWidth = 0;
    double printableHeight = 0;

    // For a form: "To: Laser 2, A4".
    [[nodiscard]] std::string line() const { return "To: " + printer + ", " + paper; }
};

// Tells where the next job goes, for forms that show it before they print.
class PrintTargets {
  public:
    virtual ~PrintTargets() = default;

    // Asks the print system and returns at once; `known` is called from the event loop, with
    // nothing when no answer came. A later question takes the place of one that is under way.
    virtual void ask(PageOrientation orientation,
                     std::function<void(const std::optional<PrintTarget>&)> known) = 0;

    // The answer is not wanted any more.
    virtual void forget() = 0;
};

}  // namespace velmora
