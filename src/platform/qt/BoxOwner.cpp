#include "platform/qt/BoxOwner.h"

#include <QApplication>
#include <QMainWindow>
#include <algorithm>

namespace velmora {

namespace {

// An alert belongs to no window, and has to answer at any time.
bool isAlert(const QWidget& window) {
    return window.windowType() == Qt::Window &&
           window.windowFlags().testFlag(Qt::WindowStaysOnTopHint);
}

}  // namespace

QWidget* boxOwner() {
    QWidget* active = QApplication::activeWindow();
    if (active && !isAlert(*active))
        return active;
    if (QWidget* modal = QApplication::activeModalWidget())
        return modal;
    for (QWidget* window : QApplication::topLevelWidgets())
        if (window->isVisible() && qobject_cast<QMainWindow*>(window))
            return window;
    return nullptr;
}

bool hasWindowOnTop() {
    const QWidgetList windows = QApplication::topLevelWidgets();
    return std::any_of(windows.begin(), windows.end(), [](const QWidget* window) {
        return window->isVisible() && window->windowFlags().testFlag(Qt::WindowStaysOnTopHint);
    });
}

int runOverOwner(QDialog& dialog) {
    // Without an owner there is no window that it could hold up alone.
    dialog.setWindowModality(dialog.parentWidget() ? Qt::WindowModal : Qt::ApplicationModal);
    // Among those that stay on top the one that opens last is the first.
    if (hasWindowOnTop())
        dialog.setWindowFlag(Qt::WindowStaysOnTopHint);
    return dialog.exec();
}

}  // namespace velmora
