// Times how long a day of 200 blocks takes to paint, for the first time and anew, at the scale of
// the screen; the first time beside a bare painter of the same rectangles and texts.

#include <QPainter>
#include <QWidget>
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
        day.Tasks().setTagVariant(i, std::to_string(i));
    }
}

// The yardstick: rectangles and texts where the day has them.
class BareDay final : public QWidget {
  public:
    explicit BareDay(const SSDay& day) : day_(day) {
        resize(day.size());
        setFont(day.font());
    }

  protected:
    void paintEvent(QPaintEvent*) override {
        QPainter painter(this);
        painter.fillRect(rect(), Qt::white);
        painter.setFont(font());
        for (int i = 0; i < kBlocks; ++i) {
            const QRect block = day_.blockRect(i);
            painter.fillRect(block, QColor(220, 230, 250));
            painter.fillRect(QRect(block.topLeft(), QSize(4, block.height())), Qt::blue);
            painter.fillRect(QRect(block.center().x() - 11, block.bottom() - 1, 22, 2), Qt::blue);
            const QRect room = block.adjusted(12, 0, -8, 0);
            painter.drawText(
                room, Qt::AlignVCenter | Qt::AlignLeft | Qt::TextSingleLine,
                painter.fontMetrics().elidedText(QString::fromStdString(day_.Tasks().Item(i).text),
                                                 Qt::ElideRight, room.width()));
        }
    }

  private:
    const SSDay& day_;
};

int measure() {
    SSDay day(CodePage::western());
    day.resize(480, 1250);  // all of the day in view
    fill(day);
    day.show();
    PaintCounter counter(day);
    counter.awaitFirst();
    BareDay bareDay(day);
    bareDay.show();
    PaintCounter bareCounter(bareDay);
    bareCounter.awaitFirst();
    const auto [again, first] = medianTimes(
        kRepetitions, [&] { counter.repaint(); },
        [&] {
            day.setTextColor(day.textColor());  // forgets what has been drawn
            counter.repaint();
        });
    const auto [firstToo, bare] = medianTimes(
        kRepetitions,
        [&] {
            day.setTextColor(day.textColor());
            counter.repaint();
        },
        [&] { bareCounter.repaint(); });
    Report report;
    const double scale = day.devicePixelRatioF();
    char name[64];
    std::snprintf(name, sizeof name, "day-of-200-painted-at-%g", scale);
    report.figure(name, again.count(), "ms", 8);
    report.figure(std::string(name) + "-first", first.count(), "ms");
    report.figure(std::string(name) + "-first-bare", bare.count(), "ms");
    report.figure(std::string(name) + "-first-to-bare", firstToo / bare, "times", 3);
    return report.exitCode();
}

}  // namespace
}  // namespace velmora::bench

int main(int argc, char** argv) {
    return velmora::bench::runWidgetBench(argc, argv, velmora::bench::measure);
}
