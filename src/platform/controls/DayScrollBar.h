#pragma once

#include <QScrollBar>
#include <chrono>

#include "platform/controls/DayGeometry.h"

namespace velmora {

// The bar at the right of a day's paper: its value is how far the paper is scrolled down, in
// pixels. Each geometry that it is given is that of the moment, with this value in it.
class DayScrollBar final : public QScrollBar {
    Q_OBJECT

  public:
    explicit DayScrollBar(QWidget* parent);

    // Takes the range that the paper needs now. Where slots have come before the first one, which
    // was `formerBegin`, or have gone from there, what is in view stays.
    void fit(const DayGeometry& places, std::chrono::minutes formerBegin);

    // Stands at the edge of the paper, and shows if it is `wanted` and there is anything to scroll.
    void place(const QRect& paper, bool wanted);

    // Scrolls a slot to the top, as far as the paper goes.
    void bringToTop(std::chrono::minutes slot, const DayGeometry& places);

    // Scrolls as little as brings the span into view; of one that is higher than the view, its
    // begin.
    void bringIntoView(TimeSpan span, const DayGeometry& places);

    // Scrolls by half a slot towards a point that lies above or below the paper.
    void scrollTowards(QPoint point, const DayGeometry& places);
};

}  // namespace velmora
