// Times a day of 5,000 alarms: adding one and removing one, each with reading the list again,
// beside a bare rewrite of the same rows.
// bench_alarms FOLDER: the settings are written into that folder.

#include <array>
#include <cstdio>
#include <iostream>
#include <stdexcept>
#include <string>
#include <utility>
#include <vector>

#include "benches/BareSettings.h"
#include "benches/Report.h"
#include "benches/Samples.h"
#include "core/SettingsStore.h"
#include "planner/ListShapes.h"
#include "planner/NumberedList.h"
#include "platform/Format.h"
#include "platform/sqlite/SqliteSettings.h"

namespace velmora::bench {
namespace {

using namespace std::chrono;

constexpr int kAlarms = 5'000;
constexpr std::size_t kRepetitions = 11;
constexpr double kLimit = 100;  // milliseconds
constexpr year_month_day kDay = year(2026) / 3 / 12;

std::string timeOfAlarm(int n) {
    char text[6];
    std::snprintf(text, sizeof text, "%02d:%02d", n / 60 % 24, n % 60);
    return text;
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

// What the list of times shows after each change.
std::size_t fill(const NumberedList& list) {
    const LocaleFormats formats;
    std::vector<std::string> times;
    for (const NumberedEntry& entry : list.entries())
        times.push_back(formatTimeText(entry.time, "hh:mm", formats));
    return times.size();
}

void expect(bool condition) {
    if (!condition)
        throw std::runtime_error("the list is wrong");
}

int measure(const std::string& folder) {
    SqliteSettings medium(folder + "/settings.db");
    SettingsStore settings(medium);
    NumberedList list(settings, alarmsOf(kDay));
    settings.batch([&] {
        for (const auto& [key, value] : rows(0))
            settings.Save(key, value);
        settings.Save("Alarms\\03122026", std::to_string(kAlarms));
    });
    BareSettings bare(folder + "/bare.db");
    bare.write(rows(0));

    // Two states of the rows, so that each write changes all of them.
    const std::array states{rows(1), rows(0)};

    std::vector<Milliseconds> removals, additions, rewrites;
    for (std::size_t i = 0; i <= kRepetitions; ++i) {
        removals.push_back(timeOf([&] {
            expect(list.remove([](const NumberedEntry&) { return true; }));
            expect(fill(list) == kAlarms - 1);
        }));
        additions.push_back(timeOf([&] {
            list.append("12:00", "Alarm set anew");
            expect(fill(list) == kAlarms);
        }));
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

int main(int argc, char** argv) try {
    if (argc != 2) {
        std::cerr << "Usage: bench_alarms FOLDER\n";
        return 2;
    }
    return velmora::bench::measure(argv[1]);
} catch (const std::exception& error) {
    std::cerr << "bench_alarms: " << error.what() << '\n';
    return 1;
}
