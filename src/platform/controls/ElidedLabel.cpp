#include "platform/controls/ElidedLabel.h"

#include <QHelpEvent>
#include <QPainter>

#include "platform/controls/PlainToolTip.h"

namespace velmora {

ElidedLabel::ElidedLabel(Qt::TextElideMode mode, QWidget* parent) : QLabel(parent), mode_(mode) {
    setTextFormat(Qt::PlainText);
    setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
}

QSize ElidedLabel::minimumSizeHint() const {
    return {0, QLabel::minimumSizeHint().height()};
}

QRect ElidedLabel::inside() const {
    return contentsRect().adjusted(margin(), margin(), -margin(), -margin());
}

bool ElidedLabel::isElided() const {
    return fontMetrics().horizontalAdvance(text()) > inside().width();
}

bool ElidedLabel::event(QEvent* event) {
    if (event->type() != QEvent::ToolTip || !toolTip().isEmpty())
        return QLabel::event(event);
    showPlainToolTip(*static_cast<QHelpEvent*>(event), isElided() ? text() : QString(), *this,
                     rect());
    return true;
}

void ElidedLabel::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    const QRect room = inside();
    painter.setPen(
        palette().color(isEnabled() ? QPalette::Active : QPalette::Disabled, QPalette::WindowText));
    painter.drawText(room, static_cast<int>(alignment()) | Qt::TextSingleLine,
                     fontMetrics().elidedText(text(), mode_, room.width()));
}

}  // namespace velmora
