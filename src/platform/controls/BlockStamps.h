#pragma once

#include <QPixmap>
#include <QPointF>
#include <cstddef>
#include <unordered_map>

#include "platform/calendar/DayTasks.h"
#include "platform/controls/DayPainter.h"

namespace velmora {

// Blocks of a day view that have been drawn before: they are drawn once and then copied, since
// shaping their texts is most of the work of a full day.
class BlockStamps {
  public:
    // To be called when font, colours or theme have changed.
    void clear() { drawn_.clear(); }

    // Forgets all when most of them must be of blocks that are gone.
    void keepFor(std::size_t blocks);

    void paint(QPainter& painter, const DayPainter& paint, const DayGeometry& geometry,
               const DayPainter::Look& look, DayTasks::Id id, const ShownBlock& block);

  private:
    // Good as long as the block would look the same.
    struct Drawn {
        QPixmap pixmap;
        QPointF fraction;  // of a pixel, at which the block begins in it
        ShownBlock shown;
    };

    std::unordered_map<DayTasks::Id, Drawn> drawn_;
};

}  // namespace velmora
