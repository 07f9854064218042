#pragma once

#include <QColor>
#include <QFont>
#include <QString>
#include <chrono>
#include <optional>

#include "platform/controls/DayGeometry.h"
#include "platform/qt/Theme.h"

class QPainter;
class QRegion;

namespace velmora {

// A block as it is shown.
struct ShownBlock {
    PlacedBlock place{};
    QString text{};   // lines end in LF
    QString times{};  // "9:30 AM - 10:30 AM" with a dash between
    bool selected = false;
    bool hovered = false;
    bool unstored = false;  // drawn as an outline only
};

// Draws the parts of a day view. Nothing here knows what the parts mean.
class DayPainter {
  public:
    struct Look {
        const Theme& theme;
        QFont font;
        QColor text;
        bool small = false;  // the read-only copies: no times, no bars
    };

    DayPainter(QPainter& painter, const DayGeometry& geometry, const Look& look);

    // Gutter, lines and labels of the hours that lie in `region`.
    void paper(const QRegion& region) const;
    // The block at `rect`, with its bar at rest unless it is selected or hovered.
    void block(const ShownBlock& block, const QRect& rect) const;
    // The bars of a selected or hovered block; they lie over its neighbours, too.
    void strongBars(const ShownBlock& block) const;
    // Slots that are being dragged over.
    void range(TimeSpan span, const QString& times) const;
    // One quiet line in a slot.
    void emptyLine(std::chrono::minutes slot, const QString& text) const;
    void focusedSlot(std::chrono::minutes slot) const;
    void nowLine(std::chrono::minutes now) const;
    // A quiet text in the upper part of what is in view.
    void notice(const QString& text, const QRect& area) const;
    // A time in the gutter, beside the edge that is dragged.
    void gutterTime(std::chrono::minutes time, const QString& text) const;

    // Whether block() leaves out some of the text at that size.
    [[nodiscard]] static bool cuts(const ShownBlock& block, QSize size, const Look& look);

    // The area that gutterTime() paints on.
    [[nodiscard]] static QRect gutterTimeRect(const DayGeometry& geometry,
                                              std::chrono::minutes time);
    // How far bars reach beyond their block.
    static constexpr int kBarOverhang = 6;

    // Text of a block so that no phone number breaks: the hyphen between digits and the blank
    // behind ")" become ones that do not break.
    [[nodiscard]] static QString unbreakable(QString text);

    // What stands between two times.
    [[nodiscard]] static QString dash();

    [[nodiscard]] static QFont gutterFont(const QFont& font, bool small);

  private:
    // The places of a block's texts.
    struct Room {
        QRect rect;
        int times;  // height of the line of times; 0 where there is no place for one
        int most;   // lines of text
    };
    [[nodiscard]] static Room roomIn(const QRect& block, const ShownBlock& shown, const Look& look);
    [[nodiscard]] static QFont timesFont(const Look& look);

    void hourLabel(std::chrono::minutes hour) const;
    void ground(const QRect& rect, const QColor& fill) const;
    void outline(const QRect& rect) const;
    void oneLine(const ShownBlock& block, const QRect& room) const;
    void lines(const ShownBlock& block, const Room& room) const;
    void barAtRest(const QRect& block) const;
    void strongBar(const QRect& block, bool atTop) const;

    QPainter& painter_;
    const DayGeometry& geometry_;
    const Look& look_;
};

}  // namespace velmora
