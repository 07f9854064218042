#include "platform/controls/RoundedStamps.h"

#include <QPainter>
#include <QTransform>

#include "platform/controls/Painting.h"

namespace velmora {
namespace {

// Cells differ by a pixel, and there are few colours.
constexpr std::size_t kMostStamps = 32;

}  // namespace

void RoundedStamps::fill(QPainter& painter, const QRectF& rect, qreal radius,
                         const QColor& colour) {
    const qreal scale = painter.deviceTransform().m11();
    const QRectF place = onPixels(painter, rect);
    painter.drawPixmap(place.topLeft(),
                       stamp((place.size() * scale).toSize(), scale, radius, colour));
}

const QPixmap& RoundedStamps::stamp(const QSize& size, qreal scale, qreal radius,
                                    const QColor& colour) {
    for (const Stamp& each : stamps_)
        if (each.size == size && each.scale == scale && each.radius == radius &&
            each.colour == colour)
            return each.picture;
    QPixmap picture(size);
    picture.setDevicePixelRatio(scale);
    picture.fill(Qt::transparent);
    QPainter painter(&picture);
    fillRounded(painter, QRectF(QPointF(), picture.deviceIndependentSize()), radius, colour);
    painter.end();
    if (stamps_.size() >= kMostStamps)
        stamps_.clear();
    stamps_.push_back({size, scale, radius, colour, picture});
    return stamps_.back().picture;
}

}  // namespace velmora
