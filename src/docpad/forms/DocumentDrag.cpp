#include "docpad/forms/DocumentDrag.h"

#include <QApplication>
#include <QDrag>
#include <QLabel>
#include <QMimeData>
#include <QMouseEvent>

#include "platform/controls/DragFormats.h"

namespace velmora {

DocumentDrag::DocumentDrag(QLabel& icon) : QObject(&icon), icon_(icon) {
    icon_.setCursor(Qt::OpenHandCursor);
    icon_.installEventFilter(this);
}

bool DocumentDrag::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::MouseButtonPress) {
        const auto& mouse = static_cast<QMouseEvent&>(*event);
        if (mouse.button() == Qt::LeftButton)
            pressedAt_ = mouse.position().toPoint();
        return pressedAt_.has_value();
    }
    if (event->type() == QEvent::MouseButtonRelease)
        pressedAt_.reset();
    if (event->type() == QEvent::MouseMove && pressedAt_) {
        const QPoint now = static_cast<QMouseEvent&>(*event).position().toPoint();
        if ((now - *pressedAt_).manhattanLength() >= QApplication::startDragDistance())
            drag();
        return true;
    }
    return QObject::eventFilter(watched, event);
}

void DocumentDrag::drag() {
    pressedAt_.reset();
    auto* data = new QMimeData;
    data->setData(QString::fromLatin1(kDocumentFormat), {});
    auto* drag = new QDrag(&icon_);
    drag->setMimeData(data);
    drag->setPixmap(icon_.pixmap());
    drag->exec(Qt::CopyAction);
}

}  // namespace velmora
