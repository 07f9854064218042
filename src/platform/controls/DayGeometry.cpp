#include "platform/controls/DayGeometry.h"

#include <algorithm>

namespace velmora {
namespace {

using namespace std::chrono;

constexpr int kBlockLeft = 6;  // from the gutter
constexpr int kColumnGap = 3;

}  // namespace

int DayGeometry::contentHeight() const {
    return static_cast<int>((shown.end - shown.begin).count() * slotHeight / kSlot.count());
}

int DayGeometry::yOf(minutes time) const {
    const auto fromTop = (time - shown.begin).count() * slotHeight / kSlot.count();
    return paper.top() - scroll + static_cast<int>(fromTop);
}

minutes DayGeometry::timeAt(int y) const {
    const minutes time =
        shown.begin + minutes((y - paper.top() + scroll) * kSlot.count() / slotHeight);
    return std::clamp(time, shown.begin, shown.end);
}

minutes DayGeometry::slotAt(int y) const {
    const minutes time = std::min(timeAt(y), shown.end - minutes(1));
    return time - time % kSlot;
}

QRect DayGeometry::slotRect(minutes slot) const {
    const int left = paper.left() + gutter;
    return {left, yOf(slot), paper.right() + 1 - left, slotHeight};
}

QRect DayGeometry::blockRect(const PlacedBlock& block) const {
    const int left = paper.left() + gutter + kBlockLeft;
    const int room = std::max(block.columns, paper.right() + 1 - blockMargin - left);
    const int usable = room + kColumnGap;
    const int blockLeft = left + usable * block.column / block.columns;
    const int blockRight = left + usable * (block.column + 1) / block.columns - kColumnGap;
    const int top = yOf(block.drawn.begin) + 1;
    const int bottom = yOf(block.drawn.end) - 1;
    return {blockLeft, top, std::max(1, blockRight - blockLeft), std::max(1, bottom - top)};
}

QRect DayGeometry::spanRect(TimeSpan span) const {
    return blockRect({.drawn = span, .column = 0, .columns = 1});
}

}  // namespace velmora
