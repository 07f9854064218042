// Compares the start of Velmora, up to its first painted window, with that of a bare window, and
// with its own start on planners of 100,000 and 1,000,000 appointments. The month on show is
// coloured and the day is loaded before the window is painted, and so are the events of today; what
// comes later is the colours of the days that are not on show, and the window of the events.
// bench_start VELMORA BARE_WINDOW FULL_VELMORA HUGE_VELMORA: all end when they have been painted;
// the last two are the program in a folder with such a planner. Of each, the quickest run counts.

#include <cstdlib>
#include <exception>
#include <iostream>
#include <string>

#include "benches/Processes.h"
#include "benches/Report.h"

namespace velmora::bench {
namespace {

constexpr int kRepetitions = 15;

int measure(const std::string& velmora, const std::string& bareWindow, const std::string& full,
            const std::string& huge) {
    ::setenv("VELMORA_QUIT_AFTER_FIRST_PAINT", "1", 1);
    Runs ours, bare, ourFull, ourHuge;
    for (const std::string& program : {velmora, bareWindow, full, huge})
        (void)run(program);
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
