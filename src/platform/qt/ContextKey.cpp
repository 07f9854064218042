#include "platform/qt/ContextKey.h"

#include <QContextMenuEvent>
#include <QCoreApplication>
#include <QKeyEvent>
#include <QWidget>

namespace velmora {

bool ContextKey::eventFilter(QObject* watched, QEvent* event) {
    auto* widget = event->type() == QEvent::KeyPress ? qobject_cast<QWidget*>(watched) : nullptr;
    if (!widget)
        return QObject::eventFilter(watched, event);
    const auto& key = static_cast<const QKeyEvent&>(*event);
    if (key.key() != Qt::Key_F10 || key.modifiers() != Qt::ShiftModifier)
        return QObject::eventFilter(watched, event);
    const QPoint middle = widget->rect().center();
    QContextMenuEvent menu(QContextMenuEvent::Keyboard, middle, widget->mapToGlobal(middle));
    QCoreApplication::sendEvent(widget, &menu);
    return true;
}

}  // namespace velmora
