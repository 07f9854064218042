// Times imports of delimited texts, with the turns of the real event loop, and compares them with a
// bare loop that splits the same lines and writes the same records with as many flushes.
// bench_import FOLDER: texts and books are written into that folder.

#include <fcntl.h>
#include <unistd.h>

#include <QApplication>
#include <QWidget>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <stdexcept>
#include <string>
#include <vector>

#include "benches/BookGenerator.h"
#include "benches/Report.h"
#include "benches/Samples.h"
#include "benches/TimedLoop.h"
#include "core/LongJobs.h"
#include "exchange/ImportRun.h"
#include "exchange/TextSource.h"
#include "phonebook/FileBooks.h"
#include "platform/files/FileBytes.h"
#include "platform/files/FileStampOf.h"
#include "platform/files/NativePaths.h"
#include "platform/files/PosixFiles.h"
#include "platform/qt/QtEventLoop.h"
#include "support/FakeStatusLine.h"
#include "support/MemorySettings.h"

namespace velmora::bench {
namespace {

constexpr int kRepetitions = 7;
constexpr std::size_t kColumns = 6;

void expect(bool condition, const char* what) {
    if (!condition)
        throw std::runtime_error(what);
}

void writeList(const std::string& path, std::size_t lines) {
    std::ofstream file(path, std::ios::binary | std::ios::trunc);
    file << "First\tLast\tStreet\tCity\tPhone\tNote\r\n";
    for (std::size_t line = 0; line < lines; ++line)
        file << "Ann" << line % 977 << "\tImported" << line << "\t" << line % 300
             << " Kiln Street\tChicago, Illinois 90210\t(312) 555-01" << line % 100
             << "\tMet at the Lakeside trade fair.\r\n";
}

// The copy before an import is a bare copy of the file, which is not measured here.
struct NoCopies final : CopiesBeforeImport {
    std::string copyBook(const std::string&, const std::function<bool()>&) override { return {}; }
};

struct NoIcon final : CancelIcon {
    void showCancelIcon(bool) override {}
};

// A book in a folder of its own, into which a text is imported.
class Import {
  public:
    Import(std::string folder, std::size_t lines, std::size_t entries)
        : folder_(std::move(folder)),
          lines_(lines),
          entries_(entries),
          list_(folder_ + "/list.txt"),
          book_(folder_ + "/DATAY.QEL"),
          locations_(folder_, settings_, files_, codePage_) {
        std::filesystem::create_directories(folder_);
        writeList(list_, lines);
    }

    // The book as it is before.
    void layBook() {
        if (entries_ > 0)
            writeBook(book_, {entries_, entries_ / 10});
        else
            std::filesystem::remove(book_);
        const int file = ::open(book_.c_str(), O_RDWR | O_CREAT | O_CLOEXEC, 0600);
        (void)::fdatasync(file);
        ::close(file);
    }

    void run(EventLoop& loop) {
        LongJobs jobs({loop, status_, icon_});
        jobs.run([&](LongJob& job) {
            TextSource source({[](const std::string& path) {
                                   return std::make_unique<FileBytes>(NativePath(path));
                               },
                               list_, '\t'},
                              codePage_);
            expect(source.inspect([&] { return job.goOn(); }) == TextSource::Inspection::Importable,
                   "the text is not importable");
            flushes_ = 0;
            const ImportReport report =
                ImportRun({store_, copies_})
                    .run(job, source, mapping(), kYellowPagesFile, [&](const ImportRun::State& s) {
                        flushes_ += s.record != last_ ? 1 : 0;
                        last_ = s.record;
                    });
            expect(report.isWhole() && report.counts.added == lines_, "the import is not whole");
        });
    }

    // As often handed to the disk as the last run() did.
    void runBare() const {
        std::ifstream text(list_, std::ios::binary);
        const int book = ::open(book_.c_str(), O_RDWR | O_CREAT | O_CLOEXEC, 0600);
        std::string line;
        std::getline(text, line);
        const std::size_t perFlush = lines_ / std::max<std::size_t>(flushes_, 1) + 1;
        std::size_t number = entries_;
        while (std::getline(text, line)) {
            writeBare(book, number++, line);
            if (number % perFlush == 0)
                (void)::fdatasync(book);
        }
        (void)::fdatasync(book);
        ::close(book);
    }

  private:
    static ImportMapping mapping() {
        ImportMapping mapping;
        const ImportField fields[kColumns] = {ImportField::First,  ImportField::Last,
                                              ImportField::Street, ImportField::CityStateZip,
                                              ImportField::Home,   ImportField::Memo};
        for (std::size_t i = 0; i < kColumns; ++i)
            mapping[fields[i]] = std::to_string(i + 1);
        return mapping;
    }

    static void writeBare(int book, std::size_t number, std::string_view line) {
        constexpr std::size_t kPlaces[kColumns] = {0, 15, 155, 230, 535, 995};
        char record[kRecordSize];
        std::fill(std::begin(record), std::end(record), ' ');
        for (const std::size_t place : kPlaces) {
            const std::size_t end = line.find('\t');
            const std::string_view value = line.substr(0, end);
            std::copy(value.begin(), value.end(), record + place);
            line.remove_prefix(end == std::string_view::npos ? line.size() : end + 1);
        }
        expect(::pwrite(book, record, kRecordSize, static_cast<off_t>(number * kRecordSize)) ==
                   static_cast<ssize_t>(kRecordSize),
               "a bare record is not written");
    }

    std::string folder_;
    std::size_t lines_;
    std::size_t entries_;
    std::string list_;
    std::string book_;
    const CodePage& codePage_ = CodePage::western();
    test::MemorySettings medium_;
    SettingsStore settings_{medium_};
    PosixFiles files_{NativePaths(codePage_)};
    DataLocations locations_;
    FileBooks books_{files_, locations_, [this](const std::string& path) {
                         return fileStampOf(files_.nativePath(path));
                     }};
    PhonebookStore store_{books_, codePage_};
    NoCopies copies_;
    test::FakeStatusLine status_;
    NoIcon icon_;
    std::size_t flushes_ = 0;
    RecordNumber last_ = 0;
};

// Medians of both, which take turns, each on the book as it is before.
std::pair<Milliseconds, Milliseconds> timesOf(Import& import) {
    QtEventLoop loop;
    std::vector<Milliseconds> times, bareTimes;
    for (int i = 0; i < kRepetitions; ++i) {
        import.layBook();
        times.push_back(timeOf([&] { import.run(loop); }));
        import.layBook();
        bareTimes.push_back(timeOf([&] { import.runBare(); }));
    }
    return {median(std::move(times)), median(std::move(bareTimes))};
}

Milliseconds compare(Import& import, const std::string& name, double limit, Report& report) {
    const auto [time, bareTime] = timesOf(import);
    report.figure(name, time.count(), "ms");
    report.figure(name + "-bare", bareTime.count(), "ms");
    report.figure(name + "-to-bare", time / bareTime, "times", limit);
    TimedLoop timed;
    import.layBook();
    timed.begin();
    import.run(timed);
    report.figure(name + "-longest-gap", timed.longestGap().count(), "ms", 50);
    return time;
}

}  // namespace
}  // namespace velmora::bench

int main(int argc, char** argv) try {
    const QApplication application(argc, argv);
    if (argc != 2) {
        std::cerr << "Usage: bench_import FOLDER\n";
        return 2;
    }
    QWidget window;
    window.show();
    using namespace velmora::bench;
    const std::string folder = argv[1];
    Report report;
    Import small(folder + "/new", 10'000, 0);
    const Milliseconds ofSmall = compare(small, "import-10000", 2, report);
    Import large(folder + "/large", 30'000, 0);
    const Milliseconds ofLarge = compare(large, "import-30000", 2, report);
    report.figure("import-30000-to-10000", ofLarge / ofSmall, "times", 3.3);
    Import intoFull(folder + "/full", 10'000, 30'000);
    (void)compare(intoFull, "import-10000-into-30000", 4, report);
    return report.exitCode();
} catch (const std::exception& error) {
    std::cerr << "bench_import: " << error.what() << '\n';
    return 1;
}
