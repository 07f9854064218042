#include "platform/controls/PaintedButton.h"

#include <QKeyEvent>

namespace velmora {

PaintedButton::PaintedButton(QWidget* parent) : QAbstractButton(parent) {
    setFocusPolicy(Qt::StrongFocus);
}

void PaintedButton::enterEvent(QEnterEvent* event) {
    QAbstractButton::enterEvent(event);
    update();
    emit hovered();
}

void PaintedButton::leaveEvent(QEvent* event) {
    QAbstractButton::leaveEvent(event);
    update();
}

void PaintedButton::focusInEvent(QFocusEvent* event) {
    focus_.focusIn(*event);
    QAbstractButton::focusInEvent(event);
}

void PaintedButton::focusOutEvent(QFocusEvent* event) {
    QAbstractButton::focusOutEvent(event);
    update();
}

void PaintedButton::keyPressEvent(QKeyEvent* event) {
    if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter)
        click();
    else
        QAbstractButton::keyPressEvent(event);
}

}  // namespace velmora
