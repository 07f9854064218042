#include "platform/controls/DayScrollBar.h"

#include <algorithm>

namespace velmora {
namespace {

using namespace std::chrono;

constexpr int kWidth = 12;

}  // namespace

DayScrollBar::DayScrollBar(QWidget* parent) : QScrollBar(Qt::Vertical, parent) {
    setFocusPolicy(Qt::NoFocus);
    setCursor(Qt::ArrowCursor);
    hide();
}

void DayScrollBar::fit(const DayGeometry& places, minutes formerBegin) {
    const auto grown =
        (formerBegin - places.shown.begin).count() * places.slotHeight / kSlot.count();
    const int wanted = value() + static_cast<int>(grown);
    setRange(0, std::max(0, places.contentHeight() - places.paper.height()));
    setPageStep(places.paper.height());
    setSingleStep(places.slotHeight);
    setValue(wanted);
}

void DayScrollBar::place(const QRect& paper, bool wanted) {
    setGeometry(paper.right() - kWidth, paper.top() + 1, kWidth, paper.height() - 2);
    setVisible(wanted && maximum() > 0);
}

void DayScrollBar::bringToTop(minutes slot, const DayGeometry& places) {
    setValue(places.yOf(slot) + places.scroll - places.paper.top());
}

void DayScrollBar::bringIntoView(TimeSpan span, const DayGeometry& places) {
    const int below = places.yOf(span.end) - places.paper.bottom() - 1;
    const int above = places.paper.top() - places.yOf(span.begin);
    if (below > 0)
        setValue(value() + std::min(below, -above));
    else if (above > 0)
        setValue(value() - above);
}

void DayScrollBar::scrollTowards(QPoint point, const DayGeometry& places) {
    const int step = places.slotHeight / 2;
    if (point.y() < places.paper.top())
        setValue(value() - step);
    else if (point.y() > places.paper.bottom())
        setValue(value() + step);
}

}  // namespace velmora
