#include "platform/qt/BoxOwner.h"

#include <QApplication>
#include <QMainWindow>

namespace velmora {

QWidget* boxOwner() {
    if (QWidget* active = QApplication::activeWindow())
        return active;
    if (QWidget* modal = QApplication::activeModalWidget())
        return modal;
    for (QWidget* window : QApplication::topLevelWidgets())
        if (window->isVisible() && qobject_cast<QMainWindow*>(window))
            return window;
    return nullptr;
}

int runOverOwner(QDialog& dialog) {
    // Without an owner there is no window that it could hold up alone.
    dialog.setWindowModality(dialog.parentWidget() ? Qt::WindowModal : Qt::ApplicationModal);
    return dialog.exec();
}

}  // namespace velmora
