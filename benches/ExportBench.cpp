// Times the export of a book of 30,000 entries into a file that is there, beside a bare pass that
// reads the same book, sorts the names and writes the same lines; and how long events wait.
// bench_export FOLDER: the books are written into that folder.

#include <fcntl.h>
#include <unistd.h>

#include <array>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <stdexcept>
#include <string>
#include <utility>

#include "benches/BareBook.h"
#include "benches/BookGenerator.h"
#include "benches/PaperDesk.h"
#include "benches/Report.h"
#include "benches/Samples.h"
#include "benches/WidgetBench.h"
#include "core/forms/JobBar.h"
#include "exchange/Export.h"
#include "platform/files/PosixReplacement.h"

namespace velmora::bench {
namespace {

constexpr int kRepetitions = 5;
constexpr std::size_t kLarge = 30'000, kSmall = 10'000;
constexpr double kMostTimesBare = 1.5;
constexpr double kMostOfThrice = 3.3;
constexpr double kLongestGap = 50;  // milliseconds

void expect(bool condition, const char* what) {
    if (!condition)
        throw std::runtime_error(what);
}

// Replaces the file, exports the book on show, with tabs.
class Answers final : public Messages {
  public:
    explicit Answers(std::string path) : path_(std::move(path)) {}

    void warn(const std::string&, const std::string& text) override { standardError(text); }
    void tell(const std::string&, const std::string&) override {}
    bool ask(const std::string& title, const std::string&, Answer) override {
        return title != "Export Addressbook";
    }
    bool confirm(const std::string&, const std::string&) override { return false; }
    std::optional<std::string> askText(const std::string&, const std::string&,
                                       const std::string&) override {
        return std::nullopt;
    }
    std::optional<std::string> chooseFileToOpen(const FileQuestion&) override {
        return std::nullopt;
    }
    std::optional<std::string> chooseFileToSave(const FileQuestion&) override { return path_; }
    void standardError(const std::string& text) override { throw std::runtime_error(text); }

  private:
    std::string path_;
};

std::string bytesOf(const std::string& path) {
    std::ifstream file(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
}

// A book of its own and its export.
class Book {
  public:
    Book(const std::string& folder, std::size_t entries)
        : desk_(made(folder)), exported_(folder + "/exported.txt"), messages_(exported_) {
        writeBook(desk_.path, {entries, entries / 10});
    }

    void write() {
        desk_.loop.begin();
        export_.run();
        expect(desk_.status.text() == "Velmora", "something is missing in the export");
        gap_ = std::max(gap_, desk_.loop.longestGap());
    }

    // Reads, sorts, and writes the same bytes beside the file, which they replace.
    void writeBare() const {
        static constexpr std::array<std::pair<int, int>, 25> kFields{
            {{35, 10},   {0, 15},    {15, 20},   {95, 60},   {45, 50},   {155, 75}, {230, 75},
             {305, 75},  {380, 75},  {505, 30},  {455, 50},  {535, 20},  {555, 20}, {575, 20},
             {595, 25},  {620, 20},  {640, 100}, {740, 200}, {995, 250}, {970, 25}, {940, 30},
             {1245, 20}, {1265, 25}, {1290, 25}, {1570, 25}}};
        const std::vector<char> book = contentOfBook(desk_.path);
        const std::string exported = bareFile();
        std::string text = header_;
        for (const BareEntry& entry : sortedEntries(book)) {
            for (const auto& [offset, width] : kFields)
                text.append(bareField(entry.record, static_cast<std::size_t>(offset),
                                      static_cast<std::size_t>(width)))
                    .push_back('\t');
            text.back() = '\r';
            text.push_back('\n');
        }
        const std::string beside = exported + ".new";
        const int file = open(beside.c_str(), O_WRONLY | O_CREAT | O_TRUNC | O_CLOEXEC, 0644);
        const bool whole =
            ::write(file, text.data(), text.size()) == static_cast<ssize_t>(text.size()) &&
            fdatasync(file) == 0;
        close(file);
        expect(whole, "the bare pass can not write");
        std::filesystem::rename(beside, exported);
    }

    void expectSameBytes() {
        const std::string text = bytesOf(exported_);
        header_ = text.substr(0, text.find('\n') + 1);
        writeBare();
        expect(text.size() > 1'000'000 && text == bytesOf(bareFile()),
               "the bare pass does not write the same");
    }

    [[nodiscard]] Milliseconds longestGap() const { return gap_; }

  private:
    static std::string made(const std::string& folder) {
        std::filesystem::create_directories(folder);
        return folder;
    }
    [[nodiscard]] std::string bareFile() const { return exported_ + ".bare"; }

    PaperDesk desk_;
    std::string exported_;
    Answers messages_;
    SharedState shared_;
    PosixFiles files_{NativePaths(CodePage::western())};
    PosixReplacements replacements_;
    Export export_{{desk_.jobs, desk_.status.job(), desk_.printing.state(), shared_, desk_.store,
                    desk_.settings, files_, files_, replacements_, messages_,
                    [](const std::string& text) { throw std::runtime_error(text); }}};
    std::string header_;
    Milliseconds gap_{0};
};

int measure(const std::string& folder) {
    Report report;
    Book large(folder + "/large", kLarge);
    large.write();
    large.expectSameBytes();
    const auto [time, bare] = medianTimes(
        kRepetitions, [&] { large.write(); }, [&] { large.writeBare(); });
    report.figure("export-30000", time.count(), "ms");
    report.figure("export-30000-bare", bare.count(), "ms");
    report.figure("export-to-bare", time / bare, "times", kMostTimesBare);
    report.figure("export-longest-gap", large.longestGap().count(), "ms", kLongestGap);

    Book small(folder + "/small", kSmall);
    const auto [timeOfLarge, timeOfThree] = medianTimes(
        kRepetitions, [&] { large.write(); },
        [&] {
            for (int i = 0; i < 3; ++i)
                small.write();
        });
    report.figure("export-30000-to-10000", 3 * (timeOfLarge / timeOfThree), "times", kMostOfThrice);
    return report.exitCode();
}

int measureIn(int argc, char** argv) {
    if (argc != 2)
        throw std::runtime_error("Usage: bench_export FOLDER");
    return measure(argv[1]);
}

}  // namespace
}  // namespace velmora::bench

int main(int argc, char** argv) {
    return velmora::bench::runWidgetBench(argc, argv,
                                          [&] { return velmora::bench::measureIn(argc, argv); });
}
