// Times how long a day of 200 blocks takes to paint anew, at the scale of the screen.

#include <cstdio>
#include <string>
#include <vector>

#include "benches/PaintCounter.h"
#include "benches/Report.h"
#include "benches/Samples.h"
#include "benches/WidgetBench.h"
#include "platform/CodePage.h"
#include "platform/controls/SSDay.h"

namespace velmora::bench {
namespace {

constexpr int kRepetitions = 25;
constexpr int kBlocks = 200;

// Spread over the day, four beside each other.
void fill(SSDay& day) {
    for (int i = 0; i < kBlocks; ++i) {
        const int hour = i * 24 / kBlocks;
        char begin[16], end[16], text[80];
        std::snprintf(begin, sizeof begin, "%02d:%02d", hour, i % 2 * 30);
        std::snprintf(end, sizeof end, "%02d:%02d", hour, i % 2 * 30 + 29);
        std::snprintf(text, sizeof text, "Meeting with First%d Same%08d (312) 555-01%02d", i,
                      i * 7919, i % 100);
        day.Tasks().Add(begin, end, text);
    }
}

int measure() {
    SSDay day(CodePage::western());
    day.resize(480, 1250);  // all of the day in view
    fill(day);
    day.show();
    PaintCounter counter(day);
    counter.awaitFirst();
    const auto [again, first] = medianTimes(
        kRepetitions, [&] { counter.repaint(); },
        [&] {
            day.setTextColor(day.textColor());  // forgets what has been drawn
            counter.repaint();
        });
    Report report;
    const double scale = day.devicePixelRatioF();
    char name[64];
    std::snprintf(name, sizeof name, "day-of-200-painted-at-%g", scale);
    report.figure(name, again.count(), "ms", 8);
    report.figure(std::string(name) + "-first", first.count(), "ms");
    return report.exitCode();
}

}  // namespace
}  // namespace velmora::bench

int main(int argc, char** argv) {
    return velmora::bench::runWidgetBench(argc, argv, velmora::bench::measure);
}
