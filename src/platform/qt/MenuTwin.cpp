#include "platform/qt/MenuTwin.h"

#include <QAction>
#include <QMenu>

namespace velmora {

QAction* addTwin(QMenu& menu, QAction& original) {
    QAction* twin = menu.addAction(original.text());
    // Shown only: the original obeys it, wherever the focus is.
    twin->setShortcut(original.shortcut());
    twin->setShortcutContext(Qt::WidgetShortcut);
    twin->setEnabled(original.isEnabled());
    QObject::connect(&original, &QAction::enabledChanged, twin, &QAction::setEnabled);
    QObject::connect(twin, &QAction::triggered, &original, &QAction::trigger);
    return twin;
}

}  // namespace velmora
