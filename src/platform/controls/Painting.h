#pragma once

#include <QColor>
#include <QFont>
#include <QRectF>

#include "platform/calendar/CalendarModel.h"

class QPainter;

namespace velmora {

// What the painted controls share.

[[nodiscard]] QColor toQt(const Rgb& colour);

// The font in another size and weight.
[[nodiscard]] QFont sized(QFont font, qreal points, QFont::Weight weight = QFont::Normal);

// The rectangle with its edges on whole device pixels.
[[nodiscard]] QRectF onPixels(const QPainter& painter, const QRectF& rect);

// A line one device-independent pixel thick on whole device pixels, with its upper or left edge at
// the given place.
void drawHorizontal(QPainter& painter, qreal left, qreal right, qreal y, const QColor& colour);
void drawVertical(QPainter& painter, qreal x, qreal top, qreal bottom, const QColor& colour);
// The same as a row of dots.
void drawDotted(QPainter& painter, qreal left, qreal right, qreal y, const QColor& colour);

// A filled rectangle with round corners.
void fillRounded(QPainter& painter, const QRectF& rect, qreal radius, const QColor& colour);

// A ring that lies inside `rect` and is `width` thick.
void drawRing(QPainter& painter, const QRectF& rect, qreal width, qreal radius,
              const QColor& colour);

enum class Chevron { Left, Right };

// An arrow head of 17 pixels in the middle of `rect`.
void drawChevron(QPainter& painter, const QRectF& rect, Chevron chevron, const QColor& colour);

}  // namespace velmora
