// Compares the start of Velmora, up to its first painted window, with that of a bare window, and
// with its own start on planners of 100,000 and 1,000,000 appointments. The calendars are coloured
// and the day is loaded before the window is painted, and so are the events of today; what comes
// later is only that their window is shown. bench_start VELMORA BARE_WINDOW FULL_VELMORA
// HUGE_VELMORA: all end when they have been painted; the last two are the program in a folder with
// such a planner. Of each, the quickest run counts.

#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

#include <chrono>
#include <cstdlib>
#include <iostream>
#include <stdexcept>
#include <string>
#include <vector>

#include "benches/Report.h"
#include "benches/Samples.h"

namespace velmora::bench {
namespace {

constexpr int kRepetitions = 15;

struct Run {
    Milliseconds wall{};
    Milliseconds processor{};  // user and system time
};

Milliseconds toMilliseconds(const timeval& time) {
    return std::chrono::seconds(time.tv_sec) + std::chrono::microseconds(time.tv_usec);
}

// Starts a program and waits for its end.
Run run(const std::string& program) {
    const auto began = std::chrono::steady_clock::now();
    const pid_t child = ::fork();
    if (child < 0)
        throw std::runtime_error("no process can be started");
    if (child == 0) {
        ::execl(program.c_str(), program.c_str(), static_cast<char*>(nullptr));
        ::_exit(127);
    }
    int status = 0;
    rusage usage{};
    ::wait4(child, &status, 0, &usage);
    if (!WIFEXITED(status) || WEXITSTATUS(status) != 0)
        throw std::runtime_error(program + " did not end well");
    return {std::chrono::steady_clock::now() - began,
            toMilliseconds(usage.ru_utime) + toMilliseconds(usage.ru_stime)};
}

struct Runs {
    std::vector<Milliseconds> wall, processor;

    void add(const Run& run) {
        wall.push_back(run.wall);
        processor.push_back(run.processor);
    }
};

int measure(const std::string& velmora, const std::string& bareWindow, const std::string& full,
            const std::string& huge) {
    ::setenv("VELMORA_QUIT_AFTER_FIRST_PAINT", "1", 1);
    Runs ours, bare, ourFull, ourHuge;
    run(velmora);
    run(bareWindow);
    run(full);
    run(huge);
    for (int i = 0; i < kRepetitions; ++i) {
        ours.add(run(velmora));
        bare.add(run(bareWindow));
        ourFull.add(run(full));
        ourHuge.add(run(huge));
    }
    const Milliseconds wall = quickest(ours.wall), bareWall = quickest(bare.wall);
    const Milliseconds processor = quickest(ours.processor),
                       bareProcessor = quickest(bare.processor);
    Report report;
    report.figure("start-wall", wall.count(), "ms");
    report.figure("start-wall-bare", bareWall.count(), "ms");
    report.figure("start-wall-to-bare", wall / bareWall, "times", 1.5);
    report.figure("start-processor", processor.count(), "ms");
    report.figure("start-processor-bare", bareProcessor.count(), "ms");
    report.figure("start-processor-to-bare", processor / bareProcessor, "times", 1.5);
    const Milliseconds wallFull = quickest(ourFull.wall);
    report.figure("start-wall-100000-appointments", wallFull.count(), "ms");
    report.figure("start-wall-100000-appointments-to-none", wallFull / wall, "times", 1.2);
    const Milliseconds wallHuge = quickest(ourHuge.wall);
    report.figure("start-wall-1000000-appointments", wallHuge.count(), "ms");
    report.figure("start-wall-1000000-appointments-to-none", wallHuge / wall, "times", 1.5);
    return report.exitCode();
}

}  // namespace
}  // namespace velmora::bench

int main(int argc, char** argv) try {
    if (argc != 5) {
        std::cerr << "Usage: bench_start VELMORA BARE_WINDOW FULL_VELMORA HUGE_VELMORA\n";
        return 2;
    }
    return velmora::bench::measure(argv[1], argv[2], argv[3], argv[4]);
} catch (const std::exception& error) {
    std::cerr << "bench_start: " << error.what() << '\n';
    return 1;
}
