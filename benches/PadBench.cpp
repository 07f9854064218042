// Times keys typed into DocPad: each must be on the screen before the next frame, however long the
// text is.

#include <QTest>
#include <algorithm>
#include <stdexcept>
#include <string>
#include <vector>

#include "benches/PaintCounter.h"
#include "benches/Report.h"
#include "benches/Samples.h"
#include "benches/WidgetBench.h"
#include "docpad/forms/RecoveryTimer.h"
#include "platform/CodePage.h"
#include "platform/controls/PadEdit.h"

namespace velmora::bench {
namespace {

constexpr int kKeys = 200;
constexpr std::size_t kShort = 10'000;
constexpr std::size_t kLong = 1'000'000;

std::string textOf(std::size_t size) {
    const std::string line =
        "Thank you for the afternoon at the Lakeside fair, and for the tea.\r\n";
    std::string text;
    while (text.size() < size)
        text += line;
    return text;
}

struct KeyTimes {
    Milliseconds usual;
    Milliseconds slowest;
};

// Types into the middle of a text of `size` bytes, with all that hangs on a change of the text.
KeyTimes timesIn(std::size_t size) {
    PadEdit edit(CodePage::western());
    RecoveryTimer recovery([] { return false; });
    QObject::connect(&edit, &PadEdit::textChanged, &recovery, &RecoveryTimer::changed);
    edit.setBytes(textOf(size));
    edit.resize(412, 600);
    edit.show();
    edit.activateWindow();
    if (!QTest::qWaitForWindowActive(&edit))
        throw std::runtime_error("the window did not become active");
    edit.setFocus();
    edit.select(size / 2, 0);
    PaintCounter counter(*edit.viewport());
    counter.repaint();
    std::vector<Milliseconds> times;
    times.reserve(kKeys);
    for (int i = 0; i < kKeys; ++i)
        times.push_back(timeOf([&] {
            QTest::keyClick(&edit, i % 6 == 5 ? Qt::Key_Space : Qt::Key_A);
            QCoreApplication::processEvents();
            counter.repaint();
        }));
    if (edit.bytes().size() < size + kKeys)
        throw std::runtime_error("keys were lost");
    return {median(times), *std::max_element(times.begin(), times.end())};
}

int measure() {
    const KeyTimes shortText = timesIn(kShort);
    const KeyTimes longText = timesIn(kLong);
    Report report;
    report.figure("docpad-key-in-1-MB", longText.usual.count(), "ms", 16);
    report.figure("docpad-slowest-key-in-1-MB", longText.slowest.count(), "ms");
    report.figure("docpad-key-in-1-MB-to-10-kB", longText.usual / shortText.usual, "ratio", 3);
    return report.exitCode();
}

}  // namespace
}  // namespace velmora::bench

int main(int argc, char** argv) {
    return velmora::bench::runWidgetBench(argc, argv, velmora::bench::measure);
}
