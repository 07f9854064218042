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

// A ring of `width` inside the edge of `rect`.
inline void drawRing(QPainter& painter, const QRectF& rect, qreal radius, const QColor& colour,
                     qreal width = 2, Qt::PenStyle style = Qt::SolidLine) {
    const qreal half = width / 2;
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(colour, width, style));
    painter.setBrush(Qt::NoBrush);
    painter.drawRoundedRect(rect.adjusted(half, half, -half, -half), radius - half, radius - half);
    painter.restore();
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
