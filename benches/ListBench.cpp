// Times how long the entry list takes to take in and paint the lines of a letter with many
// entries, on top of reading them.

#include <cstdio>
#include <stdexcept>
#include <string>
#include <vector>

#include "benches/PaintCounter.h"
#include "benches/Report.h"
#include "benches/Samples.h"
#include "benches/WidgetBench.h"
#include "platform/CodePage.h"
#include "platform/controls/EntryList.h"

namespace velmora::bench {
namespace {

constexpr int kRepetitions = 15;
constexpr unsigned kLines = 3'000;

// In an order that is none, so that sorting has to be done.
std::vector<std::string> lines() {
    std::vector<std::string> result;
    for (unsigned i = 0; i < kLines; ++i) {
        char line[64];
        std::snprintf(line, sizeof line, "Same%08u, First%u", i * 7919U % 100'003U, i % 997U);
        result.emplace_back(line);
    }
    return result;
}

int measure() {
    EntryList list(CodePage::western());
    list.resize(248, 400);
    list.show();
    PaintCounter counter(*list.viewport());
    counter.awaitFirst();
    const std::vector<std::string> all = lines();
    std::vector<Milliseconds> times;
    for (int i = 0; i < kRepetitions; ++i) {
        list.clearLines();
        list.repaint();
        std::vector<std::string> added = all;
        times.push_back(timeOf([&] {
            list.addLines(std::move(added));
            counter.repaint();
        }));
        if (list.lines().size() != kLines)
            throw std::runtime_error("the list is wrong");
    }
    Report report;
    report.figure("list-of-3000-painted", median(times).count(), "ms", 30);
    return report.exitCode();
}

}  // namespace
}  // namespace velmora::bench

int main(int argc, char** argv) {
    return velmora::bench::runWidgetBench(argc, argv, velmora::bench::measure);
}
