#pragma once

#include <cstddef>
#include <cstdio>
#include <functional>
#include <optional>
#include <string>
#include <utility>
#include <variant>
#include <vector>

#include "platform/CodePage.h"
#include "platform/Failure.h"
#include "platform/PrintDevice.h"
#include "platform/PrintRecorder.h"
#include "platform/PrintWatch.h"

namespace velmora::test {

// A line is 0.016 inches a point high, a character 0.008 a point wide (bold 0.009); so 10 points
// are 0.16 and 0.08. A sheet has 8 x 10.5 inches, landscape 10.5 x 8, on every printer.
class FixedPrintMetrics : public PrintMetrics {
  public:
    [[nodiscard]] double lineHeight(const PrintFont& font) const override {
        return static_cast<double>(font.size) * 0.016;
    }
    [[nodiscard]] double textWidth(const PrintFont& font, std::string_view line) const override {
        return static_cast<double>(line.size()) * static_cast<double>(font.size) *
               (font.bold ? 0.009 : 0.008);
    }
    [[nodiscard]] PrintableArea printableArea(const std::string&,
                                              PageOrientation orientation) const override {
        return orientation == PageOrientation::Portrait ? PrintableArea{8, 10.5}
                                                        : PrintableArea{10.5, 8};
    }
};

// Keeps the jobs that are sent to the printers "Pocket" (the system's default), "Office" and
// "Print to PDF".
class FakePrinters : public PrintOutput {
  public:
    std::vector<std::string> names{"Pocket", "Office", kPrintToPdf};
    std::string defaultName = "Pocket";
    std::string refusal;              // when not empty, each job fails with this text
    bool calledOff = false;           // as if the user named no file for each job
    int vanishesBeforePage = 0;       // of each job, with the text of `refusal`; 0: never
    std::function<void()> beforeJob;  // may throw, as a printer does

    bool silent = false;  // the print system answers no question
    bool noFile = false;  // the file of "Print to PDF" can not be written
    int tries = 0;        // as often the queue refuses a job before it takes one
    int asked = 0;        // questions so far
    std::string file;     // where the runs go that have printed to a file
    std::string runTitle;

    bool ask(const std::string&, const GoOn& goOn) override {
        ++asked;
        if (goOn && !goOn())
            return false;
        if (silent)
            throw Failure("The print system does not answer.");
        return true;
    }
    [[nodiscard]] std::vector<std::string> printerNames() const override { return names; }
    [[nodiscard]] std::string defaultPrinter() const override { return defaultName; }
    bool print(PrintJob job, PrintWatch* watch) override {
        if (beforeJob)
            beforeJob();
        if (!refusal.empty() && vanishesBeforePage == 0)
            throw Failure(refusal);
        if (calledOff || !goesOn(job, watch))
            return false;
        inFile_ = inFile_ || job.printer == kPrintToPdf;
        jobs_.push_back(std::move(job));
        return true;
    }
    void beginRun(const std::string& title) override {
        runTitle = title;
        inFile_ = false;
    }
    std::optional<std::string> endRun() override {
        if (!std::exchange(inFile_, false))
            return std::nullopt;
        if (noFile)
            throw Failure("The disk is full.");
        return file;
    }

    // How many jobs takeJobs() would give.
    [[nodiscard]] std::size_t jobsSent() const { return jobs_.size(); }

    // The jobs since the last call.
    std::vector<PrintJob> takeJobs() { return std::exchange(jobs_, {}); }

  private:
    [[nodiscard]] bool goesOn(const PrintJob& job, PrintWatch* watch) {
        const int pages = static_cast<int>(job.pages.size());
        for (int page = 1; watch && page <= pages; ++page)
            if (page == vanishesBeforePage)
                throw Failure(refusal);
            else if (!watch->playing(page, pages))
                return false;
        while (watch && tries > 0 && --tries >= 0)
            if (!watch->waitingForTheQueue())
                return false;
        return !watch || watch->sending();
    }

    std::vector<PrintJob> jobs_;
    bool inFile_ = false;
};

// A job for people and for golden files (see Golden.h), one operation a line, inches with three
// places, a colour only where it is not black:
//   printer Pocket, portrait
//   page 1
//   0.000 0.000 Arial 14 bold italic #800000 |Text in UTF-8|
//   line 0.000 0.500 to 7.900 0.500
[[nodiscard]] inline std::string dumped(const PrintJob& job) {
    const auto formatted = [](const char* format, auto... values) {
        char buffer[80];
        const int length = std::snprintf(buffer, sizeof buffer, format, values...);
        return std::string(buffer, static_cast<std::size_t>(length));
    };
    const auto inColour = [&](int colour) {
        return colour == 0 ? std::string()
                           : formatted(" #%02x%02x%02x", colour & 255, colour >> 8 & 255,
                                       colour >> 16 & 255);
    };
    std::string dump = "printer " + job.printer;
    dump += job.orientation == PageOrientation::Portrait ? ", portrait\n" : ", landscape\n";
    for (std::size_t page = 0; page < job.pages.size(); ++page) {
        dump += "page " + std::to_string(page + 1) + "\n";
        for (const auto& mark : job.pages[page]) {
            if (const auto* text = std::get_if<PrintedText>(&mark)) {
                const PrintFont& font = text->font;
                dump += formatted("%.3f %.3f ", text->x, text->y) + font.name +
                        formatted(" %g", font.size) + (font.bold ? " bold" : "") +
                        (font.italic ? " italic" : "") + inColour(text->colour) + " |" +
                        CodePage::western().toUtf8(text->text) + "|\n";
            } else {
                const auto& line = std::get<PrintedLine>(mark);
                dump +=
                    formatted("line %.3f %.3f to %.3f %.3f", line.x1, line.y1, line.x2, line.y2) +
                    inColour(line.colour) + "\n";
            }
        }
    }
    return dump;
}

// The print surface of the program on a printer of paper that nobody needs. A test of printing:
//
//   FakePrintSurface printer;
//   thing.print(printer);                              // takes a PrintSurface&
//   expectGolden(printer.takeDump(), "thing.txt");     // tests/golden/thing.txt
class FakePrintSurface final : private FixedPrintMetrics,
                               public FakePrinters,
                               public PrintRecorder {
  public:
    FakePrintSurface()
        : PrintRecorder(static_cast<const FixedPrintMetrics&>(*this),
                        static_cast<FakePrinters&>(*this)) {}

    // The jobs since the last call, one after the other; empty when none was sent.
    std::string takeDump() {
        std::string dump;
        for (const PrintJob& job : takeJobs())
            dump += dumped(job);
        return dump;
    }
};

}  // namespace velmora::test
