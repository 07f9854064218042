#pragma once

#include <QColor>
#include <QFocusEvent>
#include <QPainter>
#include <QPen>
#include <QRectF>

namespace velmora {

// Remembers whether the focus came by the keyboard, which is when painted controls show it.
class KeyboardFocus {
  public:
    void focusIn(const QFocusEvent& event) {
        switch (event.reason()) {
            case Qt::TabFocusReason:
            case Qt::BacktabFocusReason:
            case Qt::ShortcutFocusReason:
                byKeyboard_ = true;
                break;
            case Qt::ActiveWindowFocusReason:
            case Qt::PopupFocusReason:
                break;  // as it was before
            default:
                byKeyboard_ = false;
        }
    }
    void keyUsed() { byKeyboard_ = true; }

    [[nodiscard]] bool shown(bool hasFocus) const { return hasFocus && byKeyboard_; }

  private:
    bool byKeyboard_ = false;
};

// A ring 2 px thick inside the edge of `rect`.
inline void drawFocusRing(QPainter& painter, const QRectF& rect, qreal radius, const QColor& colour,
                          Qt::PenStyle style = Qt::SolidLine) {
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(colour, 2, style));
    painter.setBrush(Qt::NoBrush);
    painter.drawRoundedRect(rect.adjusted(1, 1, -1, -1), radius - 1, radius - 1);
    painter.restore();
}

// The same dashed, around what a drag can be dropped on.
inline void drawDropRing(QPainter& painter, const QRectF& rect, qreal radius,
                         const QColor& colour) {
    drawFocusRing(painter, rect, radius, colour, Qt::DashLine);
}

// A filled shape with an outline of 1 px inside the edge of `rect`.
inline void drawPanel(QPainter& painter, const QRectF& rect, qreal radius, const QColor& fill,
                      const QColor& outline) {
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(outline, 1));
    painter.setBrush(fill);
    painter.drawRoundedRect(rect.adjusted(0.5, 0.5, -0.5, -0.5), radius - 0.5, radius - 0.5);
    painter.restore();
}

}  // namespace velmora
