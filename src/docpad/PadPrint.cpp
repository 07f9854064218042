#include "docpad/PadPrint.h"

#include <cmath>

#include "platform/Format.h"
#include "platform/Text.h"

namespace velmora {
namespace {

constexpr float kCapacitySize = 10;  // points, in which the capacity of a line is measured
constexpr double kLineWidth = 8.1;   // lengths in inches
constexpr std::size_t kMostOnALine = 2000;
constexpr double kPageHeight = 9;
constexpr double kTooHigh = 9.01;
constexpr float kTop = 0.5F;
constexpr float kTopBelowHead = 1.0F;
constexpr const char* kUntitled = "Untitled";
constexpr std::size_t kMoreText = 10;  // bytes by which a page is tried to be longer

}  // namespace

bool PadPrint::PrintDocPad() {
    if (parts_.printing.refuses())
        return false;
    // Changes that are made while it prints are not for this job.
    const std::string& name = parts_.dialog.fileTitle();
    const std::string title = name.empty() ? kUntitled : name;
    title_ = parts_.codePage.upper(title);
    font_ = parts_.font.font();
    text_ = parts_.text.bytes();
    position_ = 0;
    withHead_ = parts_.settings.read(keys::Header);
    const PrintTask task{.title = title,
                         .fontName = font_.name,
                         .orientation = PageOrientation::Portrait,
                         .lastText = kApplicationTitle};
    const PrintEnd end = parts_.printing.run(task, [this](PrintRun& run) { printPages(run); });
    text_.clear();
    return end == PrintEnd::Printed;
}

void PadPrint::printPages(PrintRun& run) {
    PrintSurface& printer = run.printer;
    printer.SetFontSize(kCapacitySize);
    if (parts_.settings.read(keys::Wordwrap))
        text_ = wrapped(printer, text_);
    printer.SetFontSize(static_cast<float>(font_.size));
    const double height = static_cast<double>(printer.TextHeight(text_)) +
                          static_cast<double>(printer.TextHeight("Velmora\r\n"));
    run.state.ReportPages = static_cast<int>(std::ceil(height / kPageHeight));
    beginPage(run);
    if (text_.empty())
        return;
    while (true) {
        const std::string page = nextPageText(run);
        // A page whose first try is high enough has let nothing run yet.
        if (!run.goOn())
            return;
        position_ += page.size();
        printer.Print(page);
        if (run.state.ReportPage == run.state.ReportPages)
            return;
        printer.NewPage();
        printer.SetScaleMode(kInches);
        printer.SetFontName(font_.name);
        printer.SetFontSize(static_cast<float>(font_.size));
        ++run.state.ReportPage;
        beginPage(run);
    }
}

// The text begins at the left, below the head if there is one.
void PadPrint::beginPage(PrintRun& run) const {
    PrintSurface& printer = run.printer;
    printer.SetCurrentX(0);
    printer.SetCurrentY(kTop);
    if (!withHead_)
        return;
    printHead(run);
    printer.SetCurrentX(0);
    printer.SetCurrentY(kTopBelowHead);
}

void PadPrint::printHead(PrintRun& run) const {
    run.printer.PrintPart(title_ + "     " +
                          formatMoment(parts_.clock.now(), "mm-dd-yyyy", parts_.locale) +
                          "     Page # " + std::to_string(run.state.ReportPage) + " of " +
                          std::to_string(run.state.ReportPages));
}

// Tries ever longer texts, beginning with the length of an average page, until one is as high as a
// page or the rest of the text is reached.
std::string PadPrint::nextPageText(PrintRun& run) const {
    const auto heightOf = [&](const std::string& text) {
        return static_cast<double>(run.printer.TextHeight(text));
    };
    std::size_t length = text_.size() / static_cast<std::size_t>(run.state.ReportPages);
    std::string page = " ";
    while (heightOf(page) < kPageHeight) {
        page = position_ < text_.size() ? text_.substr(position_, length) : std::string();
        length += kMoreText;
        if (heightOf(page) > kTooHigh || !run.goOn() || position_ + 1 + length > text_.size())
            break;
    }
    return page;
}

// A cut for printers, blind to words and to the line ends that are there already.
std::string PadPrint::wrapped(PrintSurface& printer, const std::string& text) {
    const std::size_t capacity = lineCapacity(printer);
    std::string lines;
    for (std::size_t at = 0; at < text.size(); at += capacity)
        lines += text.substr(at, capacity) + "\r\n";
    return lines;
}

std::size_t PadPrint::lineCapacity(PrintSurface& printer) {
    std::string line;
    while (line.size() < kMostOnALine) {
        line += 'A';
        if (static_cast<double>(printer.TextWidth(line)) >= kLineWidth)
            break;
    }
    return line.size();
}

}  // namespace velmora
