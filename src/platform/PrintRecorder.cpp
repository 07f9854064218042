#include "platform/PrintRecorder.h"

#include <algorithm>
#include <cmath>
#include <cstddef>

#include "platform/Text.h"

namespace velmora {
namespace {

constexpr double kTabStop = 0.5;  // inches

// A sum of heights may come out a little too big; such a line still fits.
constexpr double kRounding = 1e-4;

bool isControl(char c) {
    const auto byte = static_cast<unsigned char>(c);
    return byte < 0x20 || byte == 0x7F;
}

// A text as it is printed: line ends are "\n", other control characters but tabs are blanks. Most
// texts are that already, and are not copied.
class ShownText {
  public:
    explicit ShownText(const std::string& text)
        : rest_(text), isPlain_(std::none_of(text.begin(), text.end(), isControl)) {
        if (isPlain_)
            return;
        changed_ = withLf(text);
        std::replace_if(
            changed_.begin(), changed_.end(),
            [](char c) { return isControl(c) && c != '\n' && c != '\t'; }, ' ');
        rest_ = changed_;
    }
    ShownText(const ShownText&) = delete;
    ShownText& operator=(const ShownText&) = delete;

    [[nodiscard]] std::size_t lineCount() const {
        return 1 + static_cast<std::size_t>(std::count(rest_.begin(), rest_.end(), '\n'));
    }

    // Takes the next line; there is one at least.
    [[nodiscard]] std::string_view takeLine() {
        const std::size_t end = isPlain_ ? std::string_view::npos : rest_.find('\n');
        const std::string_view line = rest_.substr(0, end);
        isOver_ = end == std::string_view::npos;
        rest_.remove_prefix(isOver_ ? rest_.size() : end + 1);
        return line;
    }

    // The last line was taken.
    [[nodiscard]] bool isOver() const { return isOver_; }

  private:
    std::string changed_;
    std::string_view rest_;
    bool isPlain_;  // without any control character
    bool isOver_ = false;
};

// Calls see(piece, offset) for the pieces of a line between its tabs. Offsets are inches from the
// beginning of the line. Returns where the line ends if that is wanted: measuring takes long.
template <typename See>
double forPiecesOf(std::string_view line, bool endWanted, const PrintMetrics& metrics,
                   const PrintFont& font, See&& see) {
    double at = 0;
    while (true) {
        const std::size_t tab = line.find('\t');
        const bool isLast = tab == std::string_view::npos;
        const std::string_view piece = line.substr(0, tab);
        if (!piece.empty())
            see(piece, at);
        if (!piece.empty() && (endWanted || !isLast))
            at += metrics.textWidth(font, piece);
        if (isLast)
            return at;
        at = (std::floor(at / kTabStop) + 1) * kTabStop;
        line.remove_prefix(tab + 1);
    }
}

int withoutSign(int colour) {
    return std::max(colour, 0);
}

}  // namespace

void PrintRecorder::SetForeColor(int colour) {
    colour_ = withoutSign(colour);
}

float PrintRecorder::heightOf(std::size_t count) const {
    return static_cast<float>(static_cast<double>(count) * metrics_.lineHeight(font_));
}

float PrintRecorder::TextHeight(const std::string& text) const {
    return heightOf(ShownText(text).lineCount());
}

float PrintRecorder::TextWidth(const std::string& text) const {
    double widest = 0;
    ShownText lines(text);
    while (!lines.isOver())
        widest = std::max(
            widest, forPiecesOf(lines.takeLine(), true, metrics_, font_, [](auto, double) {}));
    return static_cast<float>(widest);
}

PrintJob& PrintRecorder::job() {
    if (!job_) {
        job_.emplace();
        job_->printer = CurrentPrinter();
        job_->orientation = orientation_;
        job_->pages.emplace_back();
        pageHeight_.reset();
    }
    return *job_;
}

bool PrintRecorder::fits(double lineTop, double lineHeight) {
    const PrintJob& present = job();
    if (!pageHeight_)
        pageHeight_ = metrics_.printableArea(present.printer, present.orientation).height;
    // A line that is higher than a page would fit on no other one either.
    return lineTop <= 0 || lineTop + lineHeight <= *pageHeight_ + kRounding;
}

double PrintRecorder::put(std::string_view line, bool widthWanted) {
    PrintPage& page = job().pages.back();
    const auto print = [&](std::string_view piece, double offset) {
        page.emplace_back(PrintedText{.x = static_cast<float>(x_ + offset),
                                      .y = y_,
                                      .text = std::string(piece),
                                      .font = font_,
                                      .colour = colour_});
    };
    return forPiecesOf(line, widthWanted, metrics_, font_, print);
}

float PrintRecorder::putLines(const std::string& text, bool goesOnBehind) {
    ShownText lines(text);
    const double lineHeight = metrics_.lineHeight(font_);
    // Sums begin at the first line on the page, so that they are those of a caller who adds
    // TextHeight() to the position.
    double top = y_;
    std::size_t above = 0;
    const auto below = [&](std::size_t count) {
        return static_cast<float>(top + static_cast<double>(heightOf(count)));
    };
    while (true) {
        const std::string_view line = lines.takeLine();
        if (!fits(y_, lineHeight)) {
            beginPage();
            y_ = 0;
            top = 0;
            above = 0;
        }
        const double width = put(line, goesOnBehind && lines.isOver());
        ++above;
        if (lines.isOver()) {
            x_ = static_cast<float>(x_ + width);
            return below(above);
        }
        x_ = 0;
        y_ = below(above);
    }
}

void PrintRecorder::PrintPart(const std::string& text) {
    putLines(text, true);
}

void PrintRecorder::Print(const std::string& text) {
    y_ = putLines(text, false);
    x_ = 0;
}

void PrintRecorder::Line(float x1, float y1, float x2, float y2, int colour) {
    job().pages.back().emplace_back(
        PrintedLine{.x1 = x1, .y1 = y1, .x2 = x2, .y2 = y2, .colour = withoutSign(colour)});
    x_ = x2;
    y_ = y2;
}

// Pages of a job resemble each other.
void PrintRecorder::beginPage() {
    std::vector<PrintPage>& pages = job().pages;
    const std::size_t marks = pages.back().size();
    pages.emplace_back().reserve(marks);
}

void PrintRecorder::NewPage() {
    beginPage();
    x_ = 0;
    y_ = 0;
}

int PrintRecorder::Page() const {
    return job_ ? static_cast<int>(job_->pages.size()) : 1;
}

void PrintRecorder::endJob() {
    job_.reset();
    font_.bold = false;
    font_.italic = false;
    x_ = 0;
    y_ = 0;
}

bool PrintRecorder::EndDoc(PrintWatch* watch) {
    std::optional<PrintJob> done = std::move(job_);
    endJob();
    if (!done)
        return true;
    while (!done->pages.empty() && done->pages.back().empty())
        done->pages.pop_back();
    done->title = title_;
    return done->pages.empty() || output_.print(std::move(*done), watch);
}

void PrintRecorder::KillDoc() {
    endJob();
}

bool PrintRecorder::AskPrintSystem(const GoOn& goOn) {
    return output_.ask(chosenPrinter(), goOn);
}

std::vector<std::string> PrintRecorder::PrinterNames() const {
    return output_.printerNames();
}

std::string PrintRecorder::CurrentPrinter() const {
    return chosenPrinter_ ? *chosenPrinter_ : output_.defaultPrinter();
}

bool PrintRecorder::SetCurrentPrinter(const std::string& name) {
    const std::vector<std::string> names = PrinterNames();
    if (std::find(names.begin(), names.end(), name) == names.end())
        return false;
    chosenPrinter_ = name;
    return true;
}

}  // namespace velmora
