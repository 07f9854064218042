#include "platform/qt/MenuTap.h"

#include <QAction>
#include <QEvent>
#include <QMenu>
#include <QMenuBar>
#include <QMouseEvent>
#include <utility>

namespace velmora {

namespace {

const QAction* itemAt(const QObject* watched, QPoint place) {
    if (const auto* bar = qobject_cast<const QMenuBar*>(watched))
        return bar->actionAt(place);
    return static_cast<const QMenu*>(watched)->actionAt(place);
}

}  // namespace

MenuTap::MenuTap(std::function<void(const QAction& item)> onHighlight, QObject* parent)
    : QObject(parent), onHighlight_(std::move(onHighlight)) {}

void MenuTap::watch(QMenu* menu) {
    menu->installEventFilter(this);
}

void MenuTap::watch(QMenuBar* bar) {
    bar->installEventFilter(this);
}

bool MenuTap::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::Hide || event->type() == QEvent::Leave)
        last_ = nullptr;
    if (event->type() != QEvent::MouseMove)
        return QObject::eventFilter(watched, event);
    const QAction* item = itemAt(watched, static_cast<QMouseEvent*>(event)->position().toPoint());
    if (item && item != last_ && !item->isSeparator())
        onHighlight_(*item);
    last_ = item;
    return QObject::eventFilter(watched, event);
}

}  // namespace velmora
