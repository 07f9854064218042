#pragma once

#include <QRect>
#include <chrono>

#include "platform/calendar/DayLayout.h"

namespace velmora {

// Where things stand in a day view, in the widget's coordinates.
struct DayGeometry {
    QRect paper;  // what scrolls: below the caption, inside the frame
    int gutter = 60;
    int slotHeight = 24;
    int blockMargin = 16;  // right of the blocks
    int scroll = 0;        // how far the paper is scrolled down
    TimeSpan shown{std::chrono::minutes(0), kDay};

    [[nodiscard]] int contentHeight() const;
    [[nodiscard]] int yOf(std::chrono::minutes time) const;
    // Held within the times shown.
    [[nodiscard]] std::chrono::minutes timeAt(int y) const;
    [[nodiscard]] std::chrono::minutes slotAt(int y) const;
    [[nodiscard]] QRect slotRect(std::chrono::minutes slot) const;
    [[nodiscard]] QRect blockRect(const PlacedBlock& block) const;
    // A block over the whole width.
    [[nodiscard]] QRect spanRect(TimeSpan span) const;
};

}  // namespace velmora
