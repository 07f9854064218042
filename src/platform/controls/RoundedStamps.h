#pragma once

#include <QColor>
#include <QPixmap>
#include <QRectF>
#include <QSize>
#include <vector>

class QPainter;

namespace velmora {

// Rectangles with round corners of which many are alike, such as the days of a year: each kind is
// painted once, and put down wherever it is wanted.
class RoundedStamps {
  public:
    // Looks as fillRounded() does.
    void fill(QPainter& painter, const QRectF& rect, qreal radius, const QColor& colour);

  private:
    struct Stamp {
        QSize size;  // in pixels of the device
        qreal scale;
        qreal radius;
        QColor colour;
        QPixmap picture;
    };
    [[nodiscard]] const QPixmap& stamp(const QSize& size, qreal scale, qreal radius,
                                       const QColor& colour);

    std::vector<Stamp> stamps_;
};

}  // namespace velmora
