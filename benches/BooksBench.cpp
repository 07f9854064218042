// Times the scans of large books and compares them with a bare loop over the same file.
// bench_books FOLDER: the books are written into that folder.

#include <array>
#include <filesystem>
#include <iostream>
#include <stdexcept>
#include <string>

#include "benches/BareLoop.h"
#include "benches/BookGenerator.h"
#include "benches/Report.h"
#include "benches/Samples.h"
#include "core/DataLocations.h"
#include "core/SettingsStore.h"
#include "core/SharedState.h"
#include "phonebook/FileBooks.h"
#include "phonebook/LetterView.h"
#include "phonebook/PhonebookStore.h"
#include "platform/CodePage.h"
#include "platform/files/FileStampOf.h"
#include "platform/files/NativePaths.h"
#include "platform/files/PosixFiles.h"
#include "support/MemorySettings.h"

namespace velmora::bench {
namespace {

constexpr int kRepetitions = 15;

class CountingPane final : public PhonebookPane {
  public:
    void clearList() override { lines = 0; }
    void addLines(std::vector<std::string> added) override { lines += added.size(); }
    [[nodiscard]] std::string selectedLine() const override { return {}; }
    bool selectLine(const std::string& /*line*/) override { return false; }
    void showDetails(const std::string& /*text*/) override {}
    void showBookLabels(bool /*yellow*/, bool /*white*/) override {}
    void showLetter(int /*index*/) override {}
    void showBook(std::int16_t /*kind*/) override {}

    std::size_t lines = 0;
};

// A phonebook on a book of its own, in a folder of its own.
class Phonebook {
  public:
    Phonebook(const std::string& folder, const BookShape& shape)
        : path(folder + "/DATAY.QEL"), locations_(folder, settings_, files_, codePage_) {
        std::filesystem::create_directories(folder);
        writeBook(path, shape);
        state_.BucketName = std::string(1, kFullestLetter) + "Name";
    }

    std::size_t loadLetter() {
        pane_.clearList();
        view_.LoadLetter();
        return pane_.lines;
    }

    [[nodiscard]] RecordNumber find(const std::string& line) const {
        return store_.Open(kYellowPagesFile).FindByListLine(line).value_or(0);
    }

    const std::string path;

  private:
    const CodePage& codePage_ = CodePage::western();
    test::MemorySettings medium_;
    SettingsStore settings_{medium_};
    PosixFiles files_{NativePaths(codePage_)};
    DataLocations locations_;
    FileBooks books_{files_, locations_, [this](const std::string& book) {
                         return fileStampOf(files_.nativePath(book));
                     }};
    PhonebookStore store_{books_, codePage_};
    SharedState state_;
    CountingPane pane_;
    LetterView view_{state_, store_, pane_};
};

void expect(bool condition, const char* what) {
    if (!condition)
        throw std::runtime_error(what);
}

constexpr std::size_t kLarge = 30'000, kSmall = 10'000, kUnderLetter = 3'000;

void compareWithBareLoop(Phonebook& large, Report& report) {
    const auto [load, bareLoad] = medianTimes(
        kRepetitions, [&] { expect(large.loadLetter() == kUnderLetter, "the letter is wrong"); },
        [&] {
            expect(countUnderLetter(large.path, kFullestLetter) == kUnderLetter,
                   "the bare letter is wrong");
        });
    report.figure("load-letter-30000", load.count(), "ms");
    report.figure("load-letter-30000-bare", bareLoad.count(), "ms");
    report.figure("load-letter-to-bare", load / bareLoad, "times", 1.5);

    const auto [find, bareFind] = medianTimes(
        kRepetitions, [&] { expect(large.find(kLastLine) == kLarge, "the entry is wrong"); },
        [&] {
            expect(findPerson(large.path, kLastName, kLastFirstName) == kLarge,
                   "the bare entry is wrong");
        });
    report.figure("find-last-30000", find.count(), "ms");
    report.figure("find-last-30000-bare", bareFind.count(), "ms");
    report.figure("find-last-to-bare", find / bareFind, "times", 1.5);
}

// A scan takes thrice as long for a book of thrice the length. One large book is compared with
// three small ones, so that both sides read as many bytes from as many places: else the small one
// would come out of the processor's cache.
void compareLengths(const std::string& folder, Phonebook& large, Report& report) {
    const BookShape shape{kSmall, kUnderLetter / 3};
    std::array<Phonebook, 3> small{
        {{folder + "/small1", shape}, {folder + "/small2", shape}, {folder + "/small3", shape}}};
    const auto [loadLarge, loadSmall] = medianTimes(
        kRepetitions, [&] { large.loadLetter(); },
        [&] {
            for (Phonebook& book : small)
                book.loadLetter();
        });
    report.figure("load-letter-30000-to-10000", 3 * (loadLarge / loadSmall), "times", 3.3);
    const auto [findLarge, findSmall] = medianTimes(
        kRepetitions, [&] { expect(large.find(kLastLine) == kLarge, "the entry is wrong"); },
        [&] {
            for (const Phonebook& book : small)
                expect(book.find(kLastLine) == kSmall, "the entry is wrong");
        });
    report.figure("find-last-30000-to-10000", 3 * (findLarge / findSmall), "times", 3.3);
}

void measure(const std::string& folder, Report& report) {
    Phonebook large(folder + "/large", {kLarge, kUnderLetter});
    compareWithBareLoop(large, report);
    compareLengths(folder, large, report);
}

}  // namespace
}  // namespace velmora::bench

int main(int argc, char** argv) try {
    if (argc != 2) {
        std::cerr << "Usage: bench_books FOLDER\n";
        return 2;
    }
    velmora::bench::Report report;
    velmora::bench::measure(argv[1], report);
    return report.exitCode();
} catch (const std::exception& error) {
    std::cerr << "bench_books: " << error.what() << '\n';
    return 1;
}
