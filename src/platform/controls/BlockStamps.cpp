#include "platform/controls/BlockStamps.h"

#include <QPainter>

namespace velmora {

void BlockStamps::keepFor(std::size_t blocks) {
    if (drawn_.size() > 2 * blocks)
        drawn_.clear();
}

// A copy lands on whole pixels, so at a scale like 1.5 it is good only where a block begins at the
// same fraction of a pixel as the one that was drawn.
void BlockStamps::paint(QPainter& painter, const DayPainter& paint, const DayGeometry& geometry,
                        const DayPainter::Look& look, DayTasks::Id id, const ShownBlock& block) {
    const QRect rect = geometry.blockRect(block.place);
    const QTransform toDevice = painter.deviceTransform();
    if (toDevice.type() > QTransform::TxScale || toDevice.m11() != toDevice.m22()) {
        paint.block(block, rect);
        return;
    }
    const qreal scale = toDevice.m11();
    const QRectF onDevice = toDevice.mapRect(QRectF(rect));
    const QRect pixels = onDevice.toAlignedRect();
    const QPointF fraction = onDevice.topLeft() - pixels.topLeft();
    Drawn& drawn = drawn_[id];
    const bool fits = drawn.pixmap.size() == pixels.size() && drawn.fraction == fraction &&
                      drawn.shown.selected == block.selected &&
                      drawn.shown.hovered == block.hovered &&
                      drawn.shown.unstored == block.unstored && drawn.shown.text == block.text &&
                      drawn.shown.times == block.times;
    if (!fits) {
        drawn = {QPixmap(pixels.size()), fraction, block};
        drawn.pixmap.setDevicePixelRatio(scale);
        drawn.pixmap.fill(Qt::transparent);
        QPainter onPixmap(&drawn.pixmap);
        onPixmap.translate(fraction / scale);
        DayPainter(onPixmap, geometry, look).block(block, QRect(QPoint(0, 0), rect.size()));
    }
    painter.drawPixmap(toDevice.inverted().map(QPointF(pixels.topLeft())), drawn.pixmap);
}

}  // namespace velmora
