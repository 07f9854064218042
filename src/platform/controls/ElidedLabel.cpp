#include "platform/controls/ElidedLabel.h"

#include <QPainter>

namespace velmora {

ElidedLabel::ElidedLabel(Qt::TextElideMode mode, QWidget* parent) : QLabel(parent), mode_(mode) {
    setTextFormat(Qt::PlainText);
    setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
}

QSize ElidedLabel::minimumSizeHint() const {
    return {0, QLabel::minimumSizeHint().height()};
}

void ElidedLabel::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    const QRect inside = contentsRect().adjusted(margin(), margin(), -margin(), -margin());
    painter.setPen(
        palette().color(isEnabled() ? QPalette::Active : QPalette::Disabled, QPalette::WindowText));
    painter.drawText(inside, static_cast<int>(alignment()) | Qt::TextSingleLine,
                     fontMetrics().elidedText(text(), mode_, inside.width()));
}

}  // namespace velmora
