#pragma once

#include <QString>
#include <chrono>
#include <optional>
#include <vector>

#include "platform/calendar/DaySession.h"
#include "platform/controls/BlockStamps.h"
#include "platform/controls/DayGeometry.h"
#include "platform/controls/DayMeasures.h"
#include "platform/controls/DayPainter.h"

namespace velmora {

// All that a picture of a day shows, as it is at one moment, and where.
struct DayScene {
    const DaySession& session;
    const std::vector<ShownBlock>& blocks;  // in the order of the session's
    DayMeasures measures;
    DayGeometry places;
    DayPainter::Look look;
    QString caption;
    QString emptyText;  // of a day without blocks
    QString notice;     // about the day as a whole; empty for none
    std::optional<std::chrono::minutes> now;
    int hovered;
    bool focused;

    // Where a block paints, its bars included; while it is dragged, where it is dragged to.
    [[nodiscard]] QRect reachOf(int index) const;
    // What of the scene is cut short at a block, or in the caption (index -1); empty if nothing is.
    [[nodiscard]] QString cutText(int index, const CodePage& codePage) const;

    void paintPaper(QPainter& painter, BlockStamps& stamps, const QRect& area) const;
    // The frame of a widget of that size, and the caption.
    void paintFrame(QPainter& painter, QSize size) const;

  private:
    [[nodiscard]] int dragged() const;
    [[nodiscard]] PlacedBlock placeOf(int index) const;
    [[nodiscard]] std::chrono::minutes secondSlotInView() const;
    void paintOverlays(const DayPainter& paint) const;
};

// How round the corners of the frame are.
inline constexpr int kDayFrameRadius = 8;

}  // namespace velmora
