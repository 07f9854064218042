#include "platform/controls/Painting.h"

#include <QPainter>
#include <QPen>
#include <QPolygonF>
#include <QTransform>
#include <cmath>

namespace velmora {
namespace {

// Switches antialiasing on for as long as it lives.
class Smooth {
  public:
    explicit Smooth(QPainter& painter) : painter_(painter) {
        painter_.setRenderHint(QPainter::Antialiasing, true);
    }
    ~Smooth() { painter_.setRenderHint(QPainter::Antialiasing, false); }
    Smooth(const Smooth&) = delete;
    Smooth& operator=(const Smooth&) = delete;

  private:
    QPainter& painter_;
};

// Rounds a coordinate to whole pixels of the device, where `scale` and `offset` lead.
qreal onPixel(qreal value, qreal scale, qreal offset) {
    return (std::round(value * scale + offset) - offset) / scale;
}

}  // namespace

QColor toQt(const Rgb& colour) {
    return QColor(colour.red, colour.green, colour.blue);
}

QFont sized(QFont font, qreal points, QFont::Weight weight) {
    font.setPointSizeF(points);
    font.setWeight(weight);
    return font;
}

QRectF onPixels(const QPainter& painter, const QRectF& rect) {
    // Not the device's ratio alone: a widget may begin between two pixels.
    const QTransform& to = painter.deviceTransform();
    const auto corner = [&to](const QPointF& point) {
        return QPointF(onPixel(point.x(), to.m11(), to.dx()),
                       onPixel(point.y(), to.m22(), to.dy()));
    };
    return {corner(rect.topLeft()), corner(rect.bottomRight())};
}

void drawHorizontal(QPainter& painter, qreal left, qreal right, qreal y, const QColor& colour) {
    painter.fillRect(onPixels(painter, QRectF(QPointF(left, y), QPointF(right, y + 1))), colour);
}

void drawVertical(QPainter& painter, qreal x, qreal top, qreal bottom, const QColor& colour) {
    painter.fillRect(onPixels(painter, QRectF(QPointF(x, top), QPointF(x + 1, bottom))), colour);
}

void drawDotted(QPainter& painter, qreal left, qreal right, qreal y, const QColor& colour) {
    QPen pen(colour, 1);
    pen.setCapStyle(Qt::FlatCap);
    pen.setDashPattern({1, 1});
    painter.setPen(pen);
    const qreal middle = onPixels(painter, QRectF(left, y, 0, 0)).top() + 0.5;
    painter.drawLine(QPointF(left, middle), QPointF(right, middle));
}

void fillRounded(QPainter& painter, const QRectF& rect, qreal radius, const QColor& colour) {
    const Smooth smooth(painter);
    painter.setPen(Qt::NoPen);
    painter.setBrush(colour);
    painter.drawRoundedRect(onPixels(painter, rect), radius, radius);
}

void drawRing(QPainter& painter, const QRectF& rect, qreal width, qreal radius,
              const QColor& colour) {
    const Smooth smooth(painter);
    painter.setPen(QPen(colour, width));
    painter.setBrush(Qt::NoBrush);
    const qreal half = width / 2;
    const qreal middleRadius = std::max(0.0, radius - half);
    painter.drawRoundedRect(onPixels(painter, rect).adjusted(half, half, -half, -half),
                            middleRadius, middleRadius);
}

void drawChevron(QPainter& painter, const QRectF& rect, Chevron chevron, const QColor& colour) {
    const Smooth smooth(painter);
    const qreal scale = 17.0 / 24.0;
    const qreal side = (chevron == Chevron::Left ? -3 : 3) * scale;
    const qreal reach = 6 * scale;
    const QPointF middle = rect.center();
    painter.setPen(QPen(colour, 1.75 * scale, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    painter.setBrush(Qt::NoBrush);
    painter.drawPolyline(QPolygonF{middle + QPointF(-side, -reach), middle + QPointF(side, 0),
                                   middle + QPointF(-side, reach)});
}

}  // namespace velmora
