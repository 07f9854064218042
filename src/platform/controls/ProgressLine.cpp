#include "platform/controls/ProgressLine.h"

#include <QPainter>
#include <QPainterPath>
#include <algorithm>

#include "platform/qt/Theme.h"

namespace velmora {
namespace {

constexpr int kWhole = 1000;
constexpr int kWidth = 120;

}  // namespace

ProgressLine::ProgressLine(int height, QWidget* parent) : QWidget(parent), height_(height) {
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
}

void ProgressLine::setProgress(qint64 done, qint64 all) {
    const double part = std::clamp(static_cast<double>(done) / static_cast<double>(all), 0.0, 1.0);
    permille_ = static_cast<int>(part * kWhole);
    setAccessibleName(QStringLiteral("%1 %").arg(permille_ * 100 / kWhole));
    update();
}

QSize ProgressLine::sizeHint() const {
    return {kWidth, height_};
}

// The part that is done ends straight.
void ProgressLine::paintEvent(QPaintEvent* /*event*/) {
    const Theme& theme = Theme::of(*this);
    const QRectF whole(rect());
    const qreal radius = whole.height() / 2;
    QPainterPath outline;
    outline.addRoundedRect(whole, radius, radius);
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.fillPath(outline, theme.line);
    QRectF done = whole;
    done.setWidth(whole.width() * permille_ / kWhole);
    painter.setClipRect(done);
    painter.fillPath(outline, theme.accent);
}

}  // namespace velmora
