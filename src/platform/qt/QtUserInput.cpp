#include "platform/qt/QtUserInput.h"

#include <QApplication>
#include <QEvent>

namespace velmora {

void QtUserInput::shutOut() {
    focus_ = QApplication::focusWidget();
    for (QWidget* window : QApplication::topLevelWidgets()) {
        if (!window->isVisible() || !window->isEnabled())
            continue;
        windows_.append(window);
        window->installEventFilter(this);
        window->setEnabled(false);
    }
    QApplication::setOverrideCursor(Qt::WaitCursor);
}

void QtUserInput::letIn() {
    QApplication::restoreOverrideCursor();
    for (const QPointer<QWidget>& window : windows_) {
        if (!window)
            continue;
        window->removeEventFilter(this);
        window->setEnabled(true);
    }
    windows_.clear();
    if (focus_ && focus_->isEnabled())
        focus_->setFocus();
    focus_.clear();
}

bool QtUserInput::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() != QEvent::Close || !event->spontaneous())
        return QObject::eventFilter(watched, event);
    event->ignore();
    return true;
}

}  // namespace velmora
