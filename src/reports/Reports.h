#pragma once

#include <functional>
#include <string>

#include "platform/StatusLine.h"
#include "reports/BookReport.h"

namespace velmora {

enum class ReportBooks { None, Yellow, White, Both };

struct ReportChoice {
    ReportBooks books = ReportBooks::None;
    ReportSize size = ReportSize::Normal;
};

// The print dialog without its window: what it was opened for, and what its buttons do.
class Reports {
  public:
    struct Actions {
        // Prints DocPad's text as letters to the entries of these books.
        std::function<void(ReportBooks books)> mergePrint;
        // Shows the standard error box with a text (UTF-8) and closes the program by its orderly
        // path.
        std::function<void(const std::string& utf8Text)> endProgram;
    };

    // All must outlive this object.
    Reports(const ReportParts& parts, StatusLine& statusLine, Actions actions);

    // What the dialog is opened for.
    void begin(ReportKind kind);
    void beginMerge();

    // Prints the books of the choice; events run meanwhile. Of both, Yellow Pages come first, White
    // Pages ten seconds later, each as a job of its own. True when the dialog is done; without a
    // book nothing is printed, and neither is by a second try.
    bool print(const ReportChoice& choice);

    // The dialog was left without printing.
    void cancel();

  private:
    void printBooks(ReportKind kind, const ReportChoice& choice);

    ReportParts parts_;
    StatusLine& statusLine_;
    Actions actions_;
};

}  // namespace velmora
