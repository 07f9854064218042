#include "platform/controls/StatusLight.h"

#include <QPainter>

namespace velmora {
namespace {

constexpr int kSize = 14;
constexpr int kRingAlpha = 115;  // 45 %

}  // namespace

StatusLight::StatusLight(QWidget* parent) : QWidget(parent) {
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
}

void StatusLight::setColour(const QColor& colour, const QString& meaning) {
    colour_ = colour;
    setAccessibleName(meaning);
    update();
}

QSize StatusLight::sizeHint() const {
    return {kSize, kSize};
}

void StatusLight::paintEvent(QPaintEvent* /*event*/) {
    QColor ring(Qt::black);
    ring.setAlpha(kRingAlpha);
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(colour_);
    painter.drawEllipse(QRectF(rect()));
    painter.setPen(QPen(ring, 1));
    painter.setBrush(Qt::NoBrush);
    painter.drawEllipse(QRectF(rect()).adjusted(0.5, 0.5, -0.5, -0.5));
}

}  // namespace velmora
