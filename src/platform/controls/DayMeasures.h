#pragma once

#include <QFont>
#include <QRect>
#include <QString>
#include <chrono>

#include "platform/CodePage.h"
#include "platform/calendar/DayTask.h"

namespace velmora {

// The sizes of a day view that follow from its fonts.
struct DayMeasures {
    QFont font;
    bool small = false;  // the read-only copies
    bool captioned = false;
    QFont captionFont;

    [[nodiscard]] QFont blockFont() const;
    [[nodiscard]] int slotHeight() const;
    [[nodiscard]] int gutterWidth() const;
    // 0 without a caption.
    [[nodiscard]] int captionHeight() const;
    // A block of less time is drawn as long as that, so that it can be read and taken hold of.
    [[nodiscard]] std::chrono::minutes shortestDrawn() const;
    // The size for so many slots and letters in a block.
    [[nodiscard]] QSize sizeFor(int slotCount, int letters) const;
};

// "2:05 PM"
[[nodiscard]] QString shownTime(std::chrono::minutes time);

// "9:30 AM - 10:30 AM" with a dash between; the texts of a task as they stand where they are none.
[[nodiscard]] QString shownTimes(const DayTask& task, const CodePage& codePage);

}  // namespace velmora
