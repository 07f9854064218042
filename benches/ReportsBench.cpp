// Times a report of a book of 30,000 entries beside a bare pass that reads the same book, sorts the
// names and formats the same cells; how long events wait from the beginning to the file, and how
// far the memory goes up meanwhile. One report a process, so that it does not find the memory of
// another.
// bench_reports FOLDER listing|report: the books are written into that folder.

#include <array>
#include <filesystem>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

#include "benches/BareReport.h"
#include "benches/BookGenerator.h"
#include "benches/Memory.h"
#include "benches/PaperDesk.h"
#include "benches/Report.h"
#include "benches/Samples.h"
#include "benches/WidgetBench.h"
#include "core/SharedState.h"
#include "platform/SystemClock.h"
#include "reports/BookReport.h"

namespace velmora::bench {
namespace {

constexpr int kRepetitions = 5;
constexpr std::size_t kLarge = 30'000, kSmall = 10'000;
constexpr double kMostTimesBare = 2;
constexpr double kMostOfThrice = 3.3;
constexpr double kLongestGap = 50;   // milliseconds
constexpr double kMostMemory = 150;  // MiB

void expect(bool condition, const char* what) {
    if (!condition)
        throw std::runtime_error(what);
}

struct SmallText final : EditorSize {
    [[nodiscard]] float editorSize() const override { return 10; }
    void setEditorSize(float) override {}
};

// A book of its own and its report.
class Book {
  public:
    Book(const std::string& folder, std::size_t entries, ReportKind kind)
        : desk_(made(folder)), kind_(kind) {
        writeBook(desk_.path, {entries, entries / 10});
    }

    // Prints it into a file and tells how long it took up to the end of the document.
    Milliseconds print() {
        const auto began = std::chrono::steady_clock::now();
        desk_.loop.begin();
        BookReport report(parts_, kind_, ReportSize::Normal);
        desk_.printing.runSeries([&](PrintSeries& series) {
            expect(report.print(series, kYellowPages) == BookReport::End::Done,
                   "the report was not printed");
        });
        gap_ = std::max(gap_, desk_.loop.longestGap());
        return desk_.output.ended() - began;
    }

    // The same without the pages being played.
    Milliseconds layOut() {
        std::vector<PrintJob> jobs;
        desk_.output.keepIn(&jobs);
        const Milliseconds time = print();
        desk_.output.keepIn(nullptr);
        texts_ = textsOf(jobs);
        return time;
    }

    [[nodiscard]] std::string path() const { return desk_.path; }
    [[nodiscard]] Milliseconds longestGap() const { return gap_; }
    [[nodiscard]] std::uintmax_t sizeOfFile() const {
        return std::filesystem::file_size(desk_.pdf);
    }
    // Apart from the heads and what is empty.
    [[nodiscard]] std::size_t texts() const { return texts_; }

  private:
    static std::string made(const std::string& folder) {
        std::filesystem::create_directories(folder);
        return folder;
    }

    static std::size_t textsOf(const std::vector<PrintJob>& jobs) {
        std::size_t count = 0;
        for (const PrintPage& page : jobs.at(0).pages)
            for (const auto& mark : page)
                if (const auto* text = std::get_if<PrintedText>(&mark))
                    count += text->text.find("     Page # ") == std::string::npos ? 1 : 0;
        return count;
    }

    PaperDesk desk_;
    ReportKind kind_;
    SmallText editor_;
    SystemClock clock_;
    LocaleFormats locale_;
    ReportParts parts_{desk_.printing, desk_.store, desk_.settings, editor_, clock_, locale_};
    Milliseconds gap_{0};
    std::size_t texts_ = 0;
};

Milliseconds bareTime(const Book& book, ReportKind kind) {
    std::vector<std::string> texts;
    const Milliseconds time = timeOf([&] { texts = bareReport(book.path(), kind); });
    expect(!texts.empty(), "the bare pass read nothing");
    return time;
}

std::size_t bareTexts(const Book& book, ReportKind kind) {
    std::size_t count = 0;
    for (const std::string& text : bareReport(book.path(), kind))
        count += text.empty() ? 0 : 1;
    return count;
}

int measure(const std::string& folder, ReportKind kind, const std::string& name) {
    Report report;
    Book large(folder + "/large", kLarge, kind);
    const MemoryRise rise;
    (void)large.print();
    report.figure(name + "-memory", rise.mebibytes(), "MiB", kMostMemory);
    expect(large.sizeOfFile() > 100'000, "the file is too small");
    report.figure(name + "-longest-gap", large.longestGap().count(), "ms", kLongestGap);

    const auto [time, bare] = quickestOwnTimes(
        kRepetitions, [&] { return large.layOut(); }, [&] { return bareTime(large, kind); });
    const std::size_t difference = std::max(large.texts(), bareTexts(large, kind)) -
                                   std::min(large.texts(), bareTexts(large, kind));
    // Of a company some cells are left out.
    expect(difference <= kLarge / 10, "the cells are not the same");
    report.figure(name + "-30000", time.count(), "ms");
    report.figure(name + "-30000-bare", bare.count(), "ms");
    report.figure(name + "-to-bare", time / bare, "times", kMostTimesBare);

    std::array<Book, 3> small{{{folder + "/small1", kSmall, kind},
                               {folder + "/small2", kSmall, kind},
                               {folder + "/small3", kSmall, kind}}};
    const auto [timeOfLarge, timeOfSmall] = quickestOwnTimes(
        kRepetitions, [&] { return large.layOut(); },
        [&] {
            Milliseconds sum{0};
            for (Book& book : small)
                sum += book.layOut();
            return sum;
        });
    report.figure(name + "-30000-to-10000", 3 * (timeOfLarge / timeOfSmall), "times",
                  kMostOfThrice);
    return report.exitCode();
}

int measureWhatIsAsked(int argc, char** argv) {
    const std::string_view what = argc == 3 ? argv[2] : "";
    if (what != "listing" && what != "report")
        throw std::runtime_error("Usage: bench_reports FOLDER listing|report");
    return measure(argv[1], what == "listing" ? ReportKind::Listing : ReportKind::Complete,
                   argv[2]);
}

}  // namespace
}  // namespace velmora::bench

int main(int argc, char** argv) {
    return velmora::bench::runWidgetBench(
        argc, argv, [&] { return velmora::bench::measureWhatIsAsked(argc, argv); });
}
