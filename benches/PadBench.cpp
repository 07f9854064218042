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

constexpr int kKeys = 60;
constexpr std::size_t kLong = 1'000'000;
constexpr std::size_t kVeryLong = 10'000'000;

// The shapes that a text may have.
struct Shape {
    const char* name;
    const char* piece;  // repeated
};

constexpr Shape kShapes[] = {
    {"lines", "Thank you for the afternoon at the Lakeside fair, and for the tea.\r\n"},
    {"one-line", "Thank you for the afternoon at the Lakeside fair, and for the tea. "},
    {"one-word", "Thankyoufortheafternoon"},
};

std::string textOf(const Shape& shape, std::size_t size) {
    std::string text;
    while (text.size() < size)
        text += shape.piece;
    return text;
}

struct KeyTimes {
    Milliseconds usual;
    Milliseconds slowest;
};

// Types near the begin of a text of `size` bytes, where a change moves most of it, with all that
// hangs on a change of the text.
KeyTimes timesIn(const Shape& shape, std::size_t size) {
    PadEdit edit(CodePage::western());
    RecoveryTimer recovery([] { return false; });
    QObject::connect(&edit, &PadEdit::textChanged, &recovery, &RecoveryTimer::changed);
    edit.reload(textOf(shape, size));
    edit.resize(412, 600);
    edit.show();
    edit.activateWindow();
    if (!QTest::qWaitForWindowActive(&edit))
        throw std::runtime_error("the window did not become active");
    edit.setFocus();
    edit.select(100, 0);
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
    Report report;
    for (const Shape& shape : kShapes) {
        const std::string name = std::string("docpad-key-in-") + shape.name;
        const KeyTimes longText = timesIn(shape, kLong);
        const KeyTimes veryLong = timesIn(shape, kVeryLong);
        report.figure(name + "-of-1-MB", longText.usual.count(), "ms", 16);
        report.figure(name + "-of-1-MB-slowest", longText.slowest.count(), "ms");
        report.figure(name + "-of-10-MB", veryLong.usual.count(), "ms", 50);
        report.figure(name + "-of-10-MB-slowest", veryLong.slowest.count(), "ms");
    }
    return report.exitCode();
}

}  // namespace
}  // namespace velmora::bench

int main(int argc, char** argv) {
    return velmora::bench::runWidgetBench(argc, argv, velmora::bench::measure);
}
