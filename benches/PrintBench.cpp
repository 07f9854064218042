// Times how long the pages of a listing of 30,000 entries take to be played into a PDF file, beside
// a bare painter that draws the same texts at the same places, and how long events wait meanwhile.

#include <QBuffer>
#include <QCoreApplication>
#include <QFontMetricsF>
#include <QPainter>
#include <QPdfWriter>
#include <algorithm>
#include <filesystem>
#include <stdexcept>
#include <string>
#include <vector>

#include "benches/Report.h"
#include "benches/Samples.h"
#include "benches/WidgetBench.h"
#include "platform/PrintWatch.h"
#include "platform/files/PosixFiles.h"
#include "platform/qt/PdfPages.h"
#include "platform/qt/PrintPages.h"
#include "platform/qt/QtPrinters.h"

namespace velmora::bench {
namespace {

constexpr int kRepetitions = 3;
constexpr int kPages = 1'580;
constexpr int kEntries = 19;  // on a page
constexpr double kMostTimesBare = 1.3;
constexpr double kLongestGap = 50;  // milliseconds

// The cells of the listing's entries.
PrintJob listing() {
    PrintJob job;
    job.printer = kPrintToPdf;
    job.title = "Velmora: Telecommunications Listing, Yellow Pages";
    const PrintFont font{.name = "Arial", .size = 10};
    int number = 0;
    for (int i = 0; i < kPages; ++i) {
        PrintPage page;
        for (int entry = 0; entry < kEntries; ++entry, ++number) {
            const float y = 1 + static_cast<float>(entry) * 0.47F;
            const std::string digits = std::to_string(100000 + number);
            const auto put = [&](float x, float below, const std::string& text) {
                page.emplace_back(PrintedText{.x = x, .y = y + below, .text = text, .font = font});
            };
            put(0.01F, 0, "Bellweather" + digits + ", Adrian");
            put(2.01F, 0, "Home: (516) 555-" + digits);
            put(3.8F, 0, "Work: (516) 555-" + digits);
            put(5.6F, 0, "Fax: (516) 555-" + digits);
            put(2.01F, 0.16F, "Pager: 555-" + digits);
            put(3.8F, 0.16F, "Other: 555-" + digits);
            put(5.6F, 0.16F, "E-Mail: entry" + digits + "@example.com");
        }
        job.pages.push_back(std::move(page));
    }
    return job;
}

// Names the file that is asked for, and has no other answer.
class NamesTheFile final : public Messages {
  public:
    explicit NamesTheFile(std::string path) : path_(std::move(path)) {}

    void warn(const std::string&, const std::string&) override {}
    void tell(const std::string&, const std::string&) override {}
    bool ask(const std::string&, const std::string&, Answer) override { return false; }
    bool confirm(const std::string&, const std::string&) override { return false; }
    std::optional<std::string> askText(const std::string&, const std::string&,
                                       const std::string&) override {
        return std::nullopt;
    }
    std::optional<std::string> chooseFileToOpen(const FileQuestion&) override {
        return std::nullopt;
    }
    std::optional<std::string> chooseFileToSave(const FileQuestion&) override { return path_; }
    void standardError(const std::string&) override {}

  private:
    std::string path_;
};

// Lets events run as a job does, and notes how long they have waited.
class Turns final : public PrintWatch {
  public:
    void turn() {
        const Milliseconds now = timeSince(start_);
        longest_ = std::max(longest_, now - last_);
        QCoreApplication::processEvents();
        last_ = timeSince(start_);
    }
    bool playing(int, int) override {
        turn();
        return true;
    }
    bool sending() override { return true; }
    bool waitingForTheQueue() override { return true; }

    [[nodiscard]] Milliseconds longest() const { return longest_; }

  private:
    static Milliseconds timeSince(std::chrono::steady_clock::time_point start) {
        return std::chrono::steady_clock::now() - start;
    }

    std::chrono::steady_clock::time_point start_ = std::chrono::steady_clock::now();
    Milliseconds last_{0};
    Milliseconds longest_{0};
};

qsizetype drawBare(const PrintJob& job) {
    QBuffer bytes;
    bytes.open(QIODevice::WriteOnly);
    QPdfWriter writer(&bytes);
    writer.setResolution(kPrinterResolution);
    writer.setPageLayout(letterLayout(PageOrientation::Portrait));
    QPainter painter(&writer);
    const QFont font = toQt(std::get<PrintedText>(job.pages[0][0]).font, CodePage::western());
    painter.setFont(font);
    const double ascent = QFontMetricsF(font, &writer).ascent();
    bool first = true;
    for (const PrintPage& page : job.pages) {
        if (!std::exchange(first, false))
            writer.newPage();
        for (const auto& mark : page) {
            const auto& text = std::get<PrintedText>(mark);
            painter.drawText(
                QPointF(static_cast<double>(text.x) * kPrinterResolution,
                        static_cast<double>(text.y) * kPrinterResolution + ascent),
                QString::fromLatin1(text.text.data(), static_cast<qsizetype>(text.text.size())));
        }
    }
    painter.end();
    return bytes.size();
}

int measure(const std::string& folder) {
    const CodePage& codePage = CodePage::western();
    const std::string path = folder + "/listing.pdf";
    PosixFiles files{NativePaths(codePage, folder, NativePath(folder))};
    NamesTheFile messages(path);
    PrintService service;
    QtPrinters printers(messages, files, codePage, service);
    const PrintJob job = listing();
    (void)drawBare(job);  // fonts are loaded once
    std::vector<Milliseconds> bare;
    std::vector<Milliseconds> played;
    Milliseconds gap{0};
    for (int i = 0; i < kRepetitions; ++i) {
        bare.push_back(timeOf([&] {
            if (drawBare(job) == 0)
                throw std::runtime_error("the bare painter drew nothing");
        }));
        PrintJob copy = job;
        Turns turns;
        played.push_back(timeOf([&] {
            printers.beginRun(copy.title);
            if (!printers.print(std::move(copy), &turns))
                throw std::runtime_error("the listing was called off");
            turns.turn();
            printers.endRun();
            turns.turn();
        }));
        gap = std::max(gap, turns.longest());
    }
    if (std::filesystem::file_size(path) < 100'000)
        throw std::runtime_error("the file is too small");
    Report report;
    report.figure("play-listing-of-30000", quickest(played).count(), "ms");
    report.figure("play-listing-of-30000-to-bare", quickest(played) / quickest(bare), "times",
                  kMostTimesBare);
    report.figure("play-listing-longest-gap", gap.count(), "ms", kLongestGap);
    return report.exitCode();
}

}  // namespace
}  // namespace velmora::bench

int main(int argc, char** argv) {
    const std::string folder = argc > 1 ? argv[1] : ".";
    return velmora::bench::runWidgetBench(argc, argv,
                                          [&] { return velmora::bench::measure(folder); });
}
