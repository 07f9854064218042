#pragma once

#include <chrono>
#include <vector>

#include "platform/calendar/TimeColumn.h"

namespace velmora {

// Where a block is drawn: from when to when, and in which of how many columns side by side.
struct PlacedBlock {
    TimeSpan drawn;
    int column = 0;
    int columns = 1;
};

// Places blocks that overlap side by side; blocks that do not have the whole width. A block shorter
// than `shortest` is drawn that long, so that it can be read and taken hold of. The result is in
// the order of `spans`.
[[nodiscard]] std::vector<PlacedBlock> placeSideBySide(const std::vector<TimeSpan>& spans,
                                                       std::chrono::minutes shortest);

}  // namespace velmora
