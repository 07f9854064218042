// Times a merge of 3,000 letters into one file, beside a bare painter that draws the same texts at
// the same places; how long events wait from the beginning to the file, and how far the memory goes
// up meanwhile.
// bench_letters FOLDER: the book is written into that folder.

#include <filesystem>
#include <stdexcept>
#include <string>
#include <vector>

#include "benches/BarePages.h"
#include "benches/BookGenerator.h"
#include "benches/Memory.h"
#include "benches/PaperDesk.h"
#include "benches/Report.h"
#include "benches/Samples.h"
#include "benches/WidgetBench.h"
#include "docpad/MergePrint.h"
#include "docpad/PadFakes.h"
#include "platform/SystemClock.h"

namespace velmora::bench {
namespace {

constexpr int kRepetitions = 3;
constexpr std::size_t kLetters = 3'000;
constexpr double kMostTimesBare = 1.5;
constexpr double kLongestGap = 50;   // milliseconds
constexpr double kMostMemory = 150;  // MiB

struct PlainFont final : FontHolder {
    [[nodiscard]] ControlFont font() const override { return {"Arial", 11, 0}; }
    void setFont(const ControlFont&) override {}
};

struct Accepts final : SignatureQuestion {
    std::optional<std::string> ask(const std::string&) override {
        return "Sincerely,\r\n\r\nHelen Marlowe";
    }
};

class Letters {
  public:
    explicit Letters(const std::string& folder)
        : desk_(folder), signature_(folder, files_, desk_.messages) {
        writeBook(desk_.path, {kLetters, kLetters / 10});
        std::string body;
        for (int i = 0; i < 12; ++i)
            body += "We are pleased to tell you that the bindery has moved to Weaver Row.\r\n";
        pad_.setBytes(body);
        desk_.settings.Save("DefaultSal", "Dear Sir or Madam,");
    }

    void print() {
        desk_.loop.begin();
        merge_.run(MergePrint::WhichBooks::Yellow);
        gap_ = std::max(gap_, desk_.loop.longestGap());
    }

    std::vector<PrintJob> jobs() {
        std::vector<PrintJob> kept;
        desk_.output.keepIn(&kept);
        merge_.run(MergePrint::WhichBooks::Yellow);
        desk_.output.keepIn(nullptr);
        return kept;
    }

    [[nodiscard]] Milliseconds longestGap() const { return gap_; }
    [[nodiscard]] std::uintmax_t sizeOfFile() const {
        return std::filesystem::file_size(desk_.pdf);
    }

  private:
    PaperDesk desk_;
    PosixFiles files_{NativePaths(desk_.codePage)};
    test::FakePadText pad_;
    PlainFont font_;
    Signature signature_;
    Accepts question_;
    SystemClock clock_;
    LocaleFormats locale_;
    MergePrint merge_{{desk_.printing, desk_.store, desk_.settings, pad_, font_, signature_,
                       question_, clock_, locale_,
                       [](const std::string& text) { throw std::runtime_error(text); }}};
    Milliseconds gap_{0};
};

int measure(const std::string& folder) {
    Report report;
    Letters letters(folder);
    {
        const MemoryRise rise;
        letters.print();
        report.figure("letters-memory", rise.mebibytes(), "MiB", kMostMemory);
    }
    report.figure("letters-longest-gap", letters.longestGap().count(), "ms", kLongestGap);
    const std::vector<PrintJob> jobs = letters.jobs();
    if (jobs.size() != kLetters || letters.sizeOfFile() < 100'000)
        throw std::runtime_error("not all letters were printed");
    const auto [time, bare] = medianTimes(
        kRepetitions, [&] { letters.print(); },
        [&] {
            if (drawBare(jobs) < 100'000)
                throw std::runtime_error("the bare painter drew nothing");
        });
    report.figure("letters-3000", time.count(), "ms");
    report.figure("letters-3000-bare", bare.count(), "ms");
    report.figure("letters-to-bare", time / bare, "times", kMostTimesBare);
    return report.exitCode();
}

}  // namespace
}  // namespace velmora::bench

int main(int argc, char** argv) {
    return velmora::bench::runWidgetBench(argc, argv, [&] {
        if (argc != 2)
            throw std::runtime_error("Usage: bench_letters FOLDER");
        return velmora::bench::measure(argv[1]);
    });
}
