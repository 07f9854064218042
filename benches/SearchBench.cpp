// Times the search of two large books in all fields, with the turns of the real event loop and the
// lines of the hits, and compares it with a bare loop that only counts the hits in the same files.
// bench_search FOLDER: the books are written into that folder.

#include <QApplication>
#include <QWidget>
#include <algorithm>
#include <array>
#include <functional>
#include <iostream>
#include <stdexcept>
#include <string>

#include "benches/BareLoop.h"
#include "benches/BookGenerator.h"
#include "benches/Report.h"
#include "benches/Samples.h"
#include "benches/TimedLoop.h"
#include "phonebook/DatabaseSearch.h"
#include "phonebook/FileBooks.h"
#include "platform/files/FileStampOf.h"
#include "platform/files/NativePaths.h"
#include "platform/files/PosixFiles.h"
#include "platform/qt/QtEventLoop.h"
#include "platform/qt/QtMessages.h"
#include "support/FakePhonebookPane.h"
#include "support/FakeSearchView.h"
#include "support/FakeStatusLine.h"
#include "support/MemorySettings.h"

namespace velmora::bench {
namespace {

constexpr int kRepetitions = 15;
constexpr std::size_t kEntries = 30'000;

// A search of two books of its own.
class Search {
  public:
    explicit Search(const std::string& folder)
        : paths_{folder + "/DATAY.QEL", folder + "/DATAW.QEL"},
          locations_(folder, settings_, files_, codePage_) {
        for (const std::string& path : paths_)
            writeBook(path, {kEntries, kEntries / 10});
    }

    std::size_t hitsOf(const std::string& text, EventLoop& loop) {
        const std::function<void()> noFlip = [] {};
        DatabaseSearchParts parts{state_,    settings_, store_, letters_,
                                  messages_, status_,   loop,   noFlip};
        DatabaseSearch search(parts, view_);
        search.search({text, FieldSet::all(), true});
        return view_.hits.size();
    }

    [[nodiscard]] std::size_t bareHitsOf(const std::string& upperText) const {
        return countFieldsWith(paths_[0], upperText) + countFieldsWith(paths_[1], upperText);
    }

  private:
    const std::array<std::string, 2> paths_;
    const CodePage& codePage_ = CodePage::western();
    test::MemorySettings medium_;
    SettingsStore settings_{medium_};
    PosixFiles files_{NativePaths(codePage_)};
    DataLocations locations_;
    FileBooks books_{files_, locations_, [this](const std::string& path) {
                         return fileStampOf(files_.nativePath(path));
                     }};
    PhonebookStore store_{books_, codePage_};
    SharedState state_;
    test::FakePhonebookPane pane_;
    LetterView letters_{state_, store_, pane_};
    QtMessages messages_{codePage_};
    test::FakeStatusLine status_;
    test::FakeSearchView view_;
};

void compare(Search& search, const std::string& name, const std::string& upperText,
             Report& report) {
    QtEventLoop loop;
    std::size_t hits = 0, bareHits = 0;
    const auto [time, bareTime] = medianTimes(
        kRepetitions, [&] { hits = search.hitsOf(upperText, loop); },
        [&] { bareHits = search.bareHitsOf(upperText); });
    if (hits == 0 || hits != bareHits)
        throw std::runtime_error("the hits are wrong");
    report.figure(name + "-2x30000", time.count(), "ms");
    report.figure(name + "-2x30000-bare", bareTime.count(), "ms");
    report.figure(name + "-to-bare", time / bareTime, "times", 1.5);

    TimedLoop timed;
    timed.begin();
    (void)search.hitsOf(upperText, timed);
    report.figure(name + "-longest-gap", timed.longestGap().count(), "ms", 50);
}

}  // namespace
}  // namespace velmora::bench

int main(int argc, char** argv) try {
    const QApplication application(argc, argv);
    if (argc != 2) {
        std::cerr << "Usage: bench_search FOLDER\n";
        return 2;
    }
    QWidget window;
    window.show();
    using namespace velmora::bench;
    Report report;
    Search search(argv[1]);
    compare(search, "search-rare", "ZULETZT", report);
    compare(search, "search-common", "NORTHGATE", report);
    compare(search, "search-letter", "E", report);
    return report.exitCode();
} catch (const std::exception& error) {
    std::cerr << "bench_search: " << error.what() << '\n';
    return 1;
}
