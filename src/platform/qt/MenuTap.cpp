#include "platform/qt/MenuTap.h"

#include <QAction>
#include <QEvent>
#include <QMenu>
#include <QMouseEvent>
#include <utility>

namespace velmora {

MenuTap::MenuTap(std::function<void(const QAction& item)> onHighlight, QObject* parent)
    : QObject(parent), onHighlight_(std::move(onHighlight)) {}

void MenuTap::watch(QMenu* menu) {
    menu->installEventFilter(this);
}

bool MenuTap::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::Hide)
        last_ = nullptr;
    if (event->type() != QEvent::MouseMove)
        return QObject::eventFilter(watched, event);
    const auto* menu = static_cast<QMenu*>(watched);
    const QAction* item = menu->actionAt(static_cast<QMouseEvent*>(event)->position().toPoint());
    if (item && item != last_ && !item->isSeparator())
        onHighlight_(*item);
    last_ = item;
    return QObject::eventFilter(watched, event);
}

}  // namespace velmora
