#pragma once

#include <QPoint>
#include <vector>

#include "platform/calendar/DayBlocks.h"
#include "platform/controls/DayGeometry.h"

namespace velmora {

// What of a block lies under a point; index -1 for none.
struct DayHit {
    int index = -1;
    Grip grip = Grip::Whole;
};

// The lower edge of a block wins over the upper edge of the one below it, and both over the inside.
// An edge is taken hold of a few pixels beside it, too. Nothing is hit outside the paper.
[[nodiscard]] DayHit dayHitAt(const DayGeometry& places, const std::vector<DayBlock>& blocks,
                              QPoint point);

}  // namespace velmora
