#pragma once

#include <string>
#include <variant>
#include <vector>

#include "platform/PrintSurface.h"

namespace velmora {

struct PrintFont {
    std::string name;  // of the family, in code-page text
    float size = 0;    // in points
    bool bold = false;
    bool italic = false;

    bool operator==(const PrintFont&) const = default;
};

// One line of text without line ends, tabs or other control characters; (x, y) is its upper left
// corner. Lengths are inches from the left top corner of the printable area, as everywhere here.
struct PrintedText {
    float x = 0;
    float y = 0;
    std::string text;  // code-page text, never empty
    PrintFont font;
    int colour = 0;  // red + 256 * green + 65536 * blue
};

struct PrintedLine {
    float x1 = 0;
    float y1 = 0;
    float x2 = 0;
    float y2 = 0;
    int colour = 0;
};

// What stands on one sheet, in the order in which it was printed. A sheet may be empty.
using PrintPage = std::vector<std::variant<PrintedText, PrintedLine>>;

// A job that is ready to be printed. It has at least one page, and the last one is not empty.
struct PrintJob {
    std::string title{};  // for the queue and the file, without control characters
    std::string printer;
    PageOrientation orientation = PageOrientation::Portrait;
    std::vector<PrintPage> pages;
};

}  // namespace velmora
