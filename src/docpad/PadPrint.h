#pragma once

#include <cstddef>
#include <string>

#include "core/ControlFont.h"
#include "core/PrintJobs.h"
#include "core/SettingsStore.h"
#include "docpad/DialogState.h"
#include "docpad/PadPrinter.h"
#include "docpad/PadText.h"
#include "platform/Clock.h"
#include "platform/CodePage.h"
#include "platform/Format.h"

namespace velmora {

// Prints DocPad's text on portrait sheets, in its font but in black. The number of pages is
// estimated from the height of the text, 9 inches to a page, and holds: a page ends wherever its
// height is reached, in a word too; what does not fit into the pages is not printed, and pages that
// are too many stay empty below their head.
//
// The setting "Header", unless it says no, puts title, date and page number above each page. The
// setting "Wordwrap" cuts the text into lines of as many characters as capital As fit on a line.
class PadPrint final : public PadPrinter {
  public:
    // All must outlive it.
    struct Parts {
        PrintJobs& printing;
        const PadText& text;
        const FontHolder& font;
        const DialogState& dialog;
        const SettingsStore& settings;
        const Clock& clock;
        const LocaleFormats& locale;
        const CodePage& codePage;
    };

    explicit PadPrint(const Parts& parts) : parts_(parts) {}

    [[nodiscard]] bool PrintDocPad() override;

  private:
    void printPages(PrintRun& run);
    void printHead(PrintRun& run) const;
    void beginPage(PrintRun& run) const;
    [[nodiscard]] std::string nextPageText(PrintRun& run) const;
    [[nodiscard]] static std::string wrapped(PrintSurface& printer, const std::string& text);
    [[nodiscard]] static std::size_t lineCapacity(PrintSurface& printer);

    Parts parts_;
    // Of the job in hand:
    std::string title_;  // of the document, in capitals
    std::string text_;
    ControlFont font_;
    bool withHead_ = false;
    std::size_t position_ = 0;  // of the first byte that is not printed yet
};

}  // namespace velmora
