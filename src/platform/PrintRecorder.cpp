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

std::vector<std::string> linesOf(const std::string& text) {
    std::string rest = withLf(text);
    for (char& c : rest)
        if (const auto byte = static_cast<unsigned char>(c);
            (byte < 0x20 && c != '\n' && c != '\t') || byte == 0x7F)
            c = ' ';
    std::vector<std::string> lines;
    std::size_t begin = 0;
    for (std::size_t end = 0; (end = rest.find('\n', begin)) != std::string::npos; begin = end + 1)
        lines.push_back(rest.substr(begin, end - begin));
    lines.push_back(rest.substr(begin));
    return lines;
}

// Calls see(piece, offset) for the pieces of a line between its tabs. Offsets are inches from the
// beginning of the line. Returns where the line ends.
template <typename See>
double forPiecesOf(std::string_view line, const PrintMetrics& metrics, const PrintFont& font,
                   See&& see) {
    double at = 0;
    while (true) {
        const std::size_t tab = line.find('\t');
        const std::string_view piece = line.substr(0, tab);
        if (!piece.empty())
            see(piece, at);
        at += piece.empty() ? 0 : metrics.textWidth(font, piece);
        if (tab == std::string_view::npos)
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
    return heightOf(linesOf(text).size());
}

float PrintRecorder::TextWidth(const std::string& text) const {
    double widest = 0;
    for (const std::string& line : linesOf(text))
        widest = std::max(widest, forPiecesOf(line, metrics_, font_, [](auto, double) {}));
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

double PrintRecorder::put(std::string_view line) {
    PrintPage& page = job().pages.back();
    return forPiecesOf(line, metrics_, font_, [&](std::string_view piece, double offset) {
        page.emplace_back(PrintedText{.x = static_cast<float>(x_ + offset),
                                      .y = y_,
                                      .text = std::string(piece),
                                      .font = font_,
                                      .colour = colour_});
    });
}

float PrintRecorder::putLines(const std::string& text) {
    const std::vector<std::string> lines = linesOf(text);
    const double lineHeight = metrics_.lineHeight(font_);
    // Sums begin at the first line on the page, so that they are those of a caller who adds
    // TextHeight() to the position.
    double top = y_;
    std::size_t above = 0;
    const auto below = [&](std::size_t count) {
        return static_cast<float>(top + static_cast<double>(heightOf(count)));
    };
    for (std::size_t i = 0; i < lines.size(); ++i, ++above) {
        if (i > 0) {
            x_ = 0;
            y_ = below(above);
        }
        if (!fits(y_, lineHeight)) {
            job().pages.emplace_back();
            y_ = 0;
            top = 0;
            above = 0;
        }
        const double width = put(lines[i]);
        if (i + 1 == lines.size())
            x_ = static_cast<float>(x_ + width);
    }
    return below(above);
}

void PrintRecorder::PrintPart(const std::string& text) {
    putLines(text);
}

void PrintRecorder::Print(const std::string& text) {
    y_ = putLines(text);
    x_ = 0;
}

void PrintRecorder::Line(float x1, float y1, float x2, float y2, int colour) {
    job().pages.back().emplace_back(
        PrintedLine{.x1 = x1, .y1 = y1, .x2 = x2, .y2 = y2, .colour = withoutSign(colour)});
    x_ = x2;
    y_ = y2;
}

void PrintRecorder::NewPage() {
    job().pages.emplace_back();
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
