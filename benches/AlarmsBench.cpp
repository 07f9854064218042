// Times a day of 5,000 alarms: adding one and removing one as the form does, with the list on the
// screen filled again, beside a bare rewrite of the same rows.
// bench_alarms FOLDER: the settings are written into that folder.

#include <array>
#include <iostream>
#include <stdexcept>
#include <string>
#include <utility>
#include <vector>

#include "benches/BareSettings.h"
#include "benches/PaintCounter.h"
#include "benches/Report.h"
#include "benches/Samples.h"
#include "benches/WidgetBench.h"
#include "core/SettingsStore.h"
#include "planner/AlarmEditor.h"
#include "planner/ListShapes.h"
#include "planner/NumberedList.h"
#include "platform/SystemClock.h"
#include "platform/controls/EntryList.h"
#include "platform/sqlite/SqliteSettings.h"

namespace velmora::bench {
namespace {

using namespace std::chrono;

constexpr int kAlarms = 5'000;
constexpr std::size_t kRepetitions = 11;
constexpr double kLimit = 100;  // milliseconds
constexpr year_month_day kDay = year(2026) / 3 / 12;

// No other alarm is set for it.
constexpr ClockTime kFree{23, 30};

std::string timeOfAlarm(int n) {
    return ClockTime{n / 60 % 23, n % 60}.text();
}

std::string messageOfAlarm(int n) {
    return "Alarm number " + std::to_string(n);
}

// The rows of the list, as a bare program would keep them.
std::vector<std::pair<std::string, std::string>> rows(int firstAlarm) {
    std::vector<std::pair<std::string, std::string>> result;
    for (int n = 1; n <= kAlarms; ++n) {
        const std::string key = "Alarms\\03122026" + std::to_string(n);
        result.emplace_back(key + "T", timeOfAlarm(firstAlarm + n));
        result.emplace_back(key + "M", messageOfAlarm(firstAlarm + n));
    }
    return result;
}

void expect(bool condition) {
    if (!condition)
        throw std::runtime_error("the list is wrong");
}

void setTime(AlarmEditor& editor, ClockTime time) {
    editor.setHour(time.hour);
    editor.setMinute(time.minute);
}

int measure(const std::string& folder) {
    SqliteSettings medium{NativePath(folder + "/settings.db")};
    SettingsStore settings(medium);
    NumberedList alarms(settings, alarmsOf(kDay));
    settings.batch([&] {
        for (const auto& [key, value] : rows(0))
            settings.Save(key, value);
        settings.Save("Alarms\\03122026", std::to_string(kAlarms));
    });
    BareSettings bare(folder + "/bare.db");
    bare.write(rows(0));

    // Two states of the rows, so that each write changes all of them.
    const std::array states{rows(1), rows(0)};

    const SystemClock clock;
    AlarmEditor editor(settings, clock, [] { return kDay; });
    editor.Open();
    EntryList list(CodePage::western(), nullptr);
    list.resize(132, 220);
    list.show();
    PaintCounter counter(*list.viewport());
    counter.awaitFirst();
    const auto showTimes = [&](std::size_t expected) {
        list.setLines(editor.times());
        counter.repaint();
        expect(list.lines().size() == expected);
    };

    std::vector<Milliseconds> removals, additions, rewrites;
    for (std::size_t i = 0; i <= kRepetitions; ++i) {
        removals.push_back(timeOf([&] {
            editor.Remove(editor.times().front());
            showTimes(kAlarms - 1);
        }));
        additions.push_back(timeOf([&] {
            setTime(editor, kFree);
            editor.AddOrChange();
            showTimes(kAlarms);
        }));
        // Makes the free time free again.
        editor.Remove(kFree.text());
        alarms.append(timeOfAlarm(0), messageOfAlarm(0));
        editor.Open();
        rewrites.push_back(timeOf([&] {
            bare.write(states[i % 2]);
            expect(bare.fetchAll() == 2 * std::size_t{kAlarms});
        }));
    }

    Report report;
    report.figure("alarm-added-to-5000", median(additions).count(), "ms", kLimit);
    report.figure("alarm-removed-of-5000", median(removals).count(), "ms", kLimit);
    report.figure("alarms-rewritten-5000-bare", median(rewrites).count(), "ms");
    report.figure("alarm-removed-to-bare", median(removals) / median(rewrites), "times", 2);
    return report.exitCode();
}

}  // namespace
}  // namespace velmora::bench

int main(int argc, char** argv) {
    if (argc != 2) {
        std::cerr << "Usage: bench_alarms FOLDER\n";
        return 2;
    }
    return velmora::bench::runWidgetBench(argc, argv,
                                          [&] { return velmora::bench::measure(argv[1]); });
}
