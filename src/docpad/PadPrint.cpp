#include "docpad/PadPrint.h"

#include <cmath>

#include "platform/Failure.h"
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
constexpr std::size_t kMoreText = 10;  // bytes by which a page is tried to be longer

bool isOn(const SettingsStore& settings, const char* key, bool unset) {
    const std::string value = settings.Read(key);
    const std::string_view shown = trimBlanks(value);
    return shown.empty() ? unset : shown == "1";
}

// Puts back what a job changes, however it ends.
class JobEnd {
  public:
    explicit JobEnd(const PadPrint::Parts& parts)
        : parts_(parts), orientation_(parts.printer.Orientation()) {
        parts_.icon.showCancelIcon(true);
    }
    ~JobEnd() {
        parts_.printer.SetOrientation(orientation_);
        parts_.status.show(kApplicationTitle);
        parts_.icon.showCancelIcon(false);
    }
    JobEnd(const JobEnd&) = delete;
    JobEnd& operator=(const JobEnd&) = delete;

  private:
    const PadPrint::Parts& parts_;
    PageOrientation orientation_;
};

}  // namespace

bool PadPrint::PrintDocPad() {
    if (parts_.jobs.refuses(parts_.status))
        return false;
    const auto job = parts_.jobs.begin();
    const JobEnd end(parts_);
    ReportCancel = false;
    ReportPage = 1;
    position_ = 0;
    text_ = parts_.text.bytes();  // changes made while it prints are not for this job
    font_ = parts_.font.font();
    withHead_ = isOn(parts_.settings, "Header", true);
    try {
        printPages();
        const bool sent = parts_.printer.EndDoc();
        return sent && !ReportCancel;
    } catch (const Failure& failure) {
        parts_.printer.KillDoc();
        parts_.messages.standardError(failure.what());
        return false;
    }
}

void PadPrint::cancel() {
    ReportCancel = true;
    parts_.printer.KillDoc();
    parts_.icon.showCancelIcon(false);
}

void PadPrint::printPages() {
    PrintSurface& printer = parts_.printer;
    printer.SetOrientation(PageOrientation::Portrait);
    printer.SetScaleMode(kInches);
    printer.SetFontName(font_.name);
    printer.SetFontSize(kCapacitySize);
    printer.SetForeColor(0);
    if (isOn(parts_.settings, "Wordwrap", false))
        text_ = wrapped(text_);
    printer.SetFontSize(static_cast<float>(font_.size));
    const double height = static_cast<double>(printer.TextHeight(text_)) +
                          static_cast<double>(printer.TextHeight("Velmora\r\n"));
    ReportPages = static_cast<int>(std::ceil(height / kPageHeight));
    beginPage();
    if (text_.empty())
        return;
    for (ReportPage = 1; ReportPage <= ReportPages; ++ReportPage) {
        if (ReportPage > 1) {
            printer.NewPage();
            beginPage();
        }
        const std::string page = nextPageText();
        if (ReportCancel)
            return;
        printer.Print(page);
        position_ += page.size();
    }
}

// The text begins at the left, below the head if there is one.
void PadPrint::beginPage() {
    PrintSurface& printer = parts_.printer;
    printer.SetCurrentX(0);
    printer.SetCurrentY(kTop);
    if (!withHead_)
        return;
    printHead();
    printer.SetCurrentX(0);
    printer.SetCurrentY(kTopBelowHead);
}

void PadPrint::printHead() {
    const std::string& title = parts_.dialog.fileTitle();
    parts_.printer.PrintPart(
        parts_.codePage.upper(title.empty() ? std::string_view("Untitled") : title) + "     " +
        formatMoment(parts_.clock.now(), "mm-dd-yyyy", parts_.locale) + "     Page # " +
        std::to_string(ReportPage) + " of " + std::to_string(ReportPages));
}

// Tries ever longer texts, beginning with the length of an average page, until one is as high as a
// page or the rest of the text is reached.
std::string PadPrint::nextPageText() {
    const auto heightOf = [&](const std::string& text) {
        return static_cast<double>(parts_.printer.TextHeight(text));
    };
    std::size_t length = text_.size() / static_cast<std::size_t>(ReportPages);
    std::string page = " ";
    while (heightOf(page) < kPageHeight) {
        page = position_ < text_.size() ? text_.substr(position_, length) : std::string();
        length += kMoreText;
        if (heightOf(page) > kTooHigh)
            break;
        parts_.loop.yield();
        if (parts_.loop.closing())
            cancel();
        if (ReportCancel || position_ + 1 + length > text_.size())
            break;
    }
    return page;
}

// A cut for printers, blind to words and to the line ends that are there already.
std::string PadPrint::wrapped(const std::string& text) const {
    const std::size_t capacity = lineCapacity();
    std::string lines;
    for (std::size_t at = 0; at < text.size(); at += capacity)
        lines += text.substr(at, capacity) + "\r\n";
    return lines;
}

std::size_t PadPrint::lineCapacity() const {
    std::string line;
    while (line.size() < kMostOnALine) {
        line += 'A';
        if (static_cast<double>(parts_.printer.TextWidth(line)) >= kLineWidth)
            break;
    }
    return line.size();
}

}  // namespace velmora
