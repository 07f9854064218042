#include "platform/controls/RoundedStamps.h"

#include <gtest/gtest.h>

#include <QImage>
#include <QPainter>
#include <algorithm>
#include <cstdlib>
#include <functional>

#include "platform/controls/Painting.h"

namespace velmora {
namespace {

QImage painted(qreal scale, const std::function<void(QPainter&, const QRectF&, QColor)>& fill) {
    QImage image(QSize(200, 160) * scale, QImage::Format_ARGB32_Premultiplied);
    image.setDevicePixelRatio(scale);
    image.fill(Qt::white);
    QPainter painter(&image);
    painter.translate(7, 5);
    for (int row = 0; row < 4; ++row)
        for (int column = 0; column < 5; ++column)
            fill(painter, QRectF(column * 23.5, row * 21, 21 + column % 2, 20),
                 row % 2 == 0 ? QColor(255, 0, 0) : QColor(40, 90, 190, 128));
    painter.end();
    return image;
}

TEST(RoundedStamps, LookAsRectanglesThatArePaintedOneByOne) {
    for (const qreal scale : {1.0, 1.25, 1.5, 2.0}) {
        RoundedStamps stamps;
        const QImage one = painted(scale, [](QPainter& painter, const QRectF& rect, QColor colour) {
            fillRounded(painter, rect, 3, colour);
        });
        const QImage many =
            painted(scale, [&](QPainter& painter, const QRectF& rect, QColor colour) {
                stamps.fill(painter, rect, 3, colour);
            });
        ASSERT_EQ(one.size(), many.size());
        int worst = 0;
        for (int y = 0; y < one.height(); ++y)
            for (int x = 0; x < one.width(); ++x) {
                const QColor a = one.pixelColor(x, y), b = many.pixelColor(x, y);
                worst = std::max({worst, std::abs(a.red() - b.red()),
                                  std::abs(a.green() - b.green()), std::abs(a.blue() - b.blue())});
            }
        EXPECT_LE(worst, 3) << "at scale " << scale;  // rounding of half transparent pixels
        EXPECT_NE(one.pixelColor(QPointF(17 * scale, 12 * scale).toPoint()), QColor(Qt::white));
    }
}

}  // namespace
}  // namespace velmora
