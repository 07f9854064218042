// From the event of a call to the full list of its possible callers, over two books.

#include <QApplication>
#include <array>
#include <iostream>
#include <stdexcept>
#include <string>

#include "benches/BareLoop.h"
#include "benches/BookGenerator.h"
#include "benches/Report.h"
#include "benches/Samples.h"
#include "benches/TimedLoop.h"
#include "core/DataLocations.h"
#include "core/SettingsStore.h"
#include "phonebook/FileBooks.h"
#include "platform/SystemClock.h"
#include "platform/controls/EntryList.h"
#include "platform/files/FileStampOf.h"
#include "platform/files/NativePaths.h"
#include "platform/files/PosixFiles.h"
#include "platform/qt/Theme.h"
#include "support/FakeStatusLine.h"
#include "support/MemorySettings.h"
#include "telephony/CallerId.h"
#include "telephony/forms/CallID.h"

namespace velmora::bench {
namespace {

constexpr int kRepetitions = 15;
constexpr std::size_t kEntries = 30'000;
constexpr const char* kNumber = "3125550107";  // of six hundred entries
constexpr const char* kNobody = "9995550107";

class Calls {
  public:
    explicit Calls(const std::string& folder)
        : paths_{folder + "/DATAY.QEL", folder + "/DATAW.QEL"},
          locations_(folder, settings_, files_, codePage_),
          log_(folder, files_, clock_, locale_) {
        for (const std::string& path : paths_)
            writeBook(path, {kEntries, kEntries / 10});
        settings_.Save("CallerID", "ON");
    }

    std::size_t callersOf(const std::string& number, EventLoop& loop) {
        CallerId callerId({settings_, store_, log_, form_, status_, loop});
        callerId.onCall({"", number});
        return form_.findChild<EntryList*>()->lines().size();
    }
    [[nodiscard]] std::size_t bareCallersOf(const std::string& number) const {
        return countCallers(paths_[0], number) + countCallers(paths_[1], number);
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
    SystemClock clock_;
    LocaleFormats locale_;
    PhoneLog log_;
    test::FakeStatusLine status_;
    CallID form_{codePage_};
};

void compare(Calls& calls, const std::string& name, const std::string& number, Report& report) {
    QtEventLoop loop;
    std::size_t callers = 0, bareCallers = 0;
    const auto [time, bareTime] = medianTimes(
        kRepetitions, [&] { callers = calls.callersOf(number, loop); },
        [&] { bareCallers = calls.bareCallersOf(number); });
    if (callers != bareCallers || (callers == 0) != (number == kNobody))
        throw std::runtime_error("the callers are wrong");
    report.figure(name + "-2x30000", time.count(), "ms");
    report.figure(name + "-2x30000-bare", bareTime.count(), "ms");
    report.figure(name + "-to-bare", time / bareTime, "times", 1.5);

    TimedLoop timed;
    timed.begin();
    (void)calls.callersOf(number, timed);
    report.figure(name + "-longest-gap", timed.longestGap().count(), "ms", 50);
}

}  // namespace
}  // namespace velmora::bench

int main(int argc, char** argv) try {
    QApplication application(argc, argv);
    if (argc != 2) {
        std::cerr << "Usage: bench_callers FOLDER\n";
        return 2;
    }
    velmora::applyLook();
    velmora::applyStyleSheet(application);
    using namespace velmora::bench;
    Report report;
    Calls calls(argv[1]);
    compare(calls, "callers-600", kNumber, report);
    compare(calls, "callers-none", kNobody, report);
    return report.exitCode();
} catch (const std::exception& error) {
    std::cerr << "bench_callers: " << error.what() << '\n';
    return 1;
}
