#pragma once

#include <cstddef>
#include <string>

#include "core/JobRunning.h"
#include "core/SettingsStore.h"
#include "docpad/ControlFont.h"
#include "docpad/DialogState.h"
#include "docpad/PadPrinter.h"
#include "docpad/PadText.h"
#include "platform/Clock.h"
#include "platform/CodePage.h"
#include "platform/EventLoop.h"
#include "platform/Format.h"
#include "platform/Messages.h"
#include "platform/PrintSurface.h"
#include "platform/StatusLine.h"

namespace velmora {

// The icon `Image8`, which is in view while a job can be cancelled.
class CancelIcon {
  public:
    virtual ~CancelIcon() = default;
    virtual void showCancelIcon(bool shown) = 0;
};

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
        PrintSurface& printer;
        const PadText& text;
        const FontHolder& font;
        const DialogState& dialog;
        const SettingsStore& settings;
        const Clock& clock;
        const LocaleFormats& locale;
        const CodePage& codePage;
        EventLoop& loop;
        StatusLine& status;
        Messages& messages;
        CancelIcon& icon;
        JobRunning& jobs;
    };

    explicit PadPrint(const Parts& parts) : parts_(parts) {}

    [[nodiscard]] bool PrintDocPad() override;

    // The icon was clicked: the job under way is thrown away.
    void cancel();

  private:
    void printPages();
    void printHead();
    void beginPage();
    [[nodiscard]] std::string nextPageText();
    [[nodiscard]] std::string wrapped(const std::string& text) const;
    [[nodiscard]] std::size_t lineCapacity() const;

    Parts parts_;
    std::string text_;  // of the job in hand
    ControlFont font_;
    bool withHead_ = false;
    std::size_t position_ = 0;  // of the first byte that is not printed yet
    int ReportPage = 1;
    int ReportPages = 1;  // estimated
    bool ReportCancel = false;
};

}  // namespace velmora
