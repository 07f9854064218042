#include "platform/controls/DayHit.h"

namespace velmora {
namespace {

constexpr int kBarZone = 7;

bool inBarZone(int y, int edge) {
    return y >= edge - kBarZone / 2 && y <= edge + kBarZone / 2;
}

}  // namespace

DayHit dayHitAt(const DayGeometry& places, const std::vector<DayBlock>& blocks, QPoint point) {
    DayHit hit;
    if (!places.paper.contains(point))
        return hit;
    bool upper = false;
    for (int i = static_cast<int>(blocks.size()) - 1; i >= 0; --i) {
        const QRect rect = places.blockRect(blocks[static_cast<std::size_t>(i)].place);
        if (point.x() < rect.left() || point.x() > rect.right())
            continue;
        if (inBarZone(point.y(), rect.bottom()))
            return {i, Grip::End};
        if (!upper && inBarZone(point.y(), rect.top())) {
            hit = {i, Grip::Begin};
            upper = true;
        } else if (hit.index < 0 && rect.contains(point)) {
            hit = {i, Grip::Whole};
        }
    }
    return hit;
}

}  // namespace velmora
