#include "core/forms/MenuFirst.h"

#include <QAbstractButton>
#include <QAction>
#include <QKeySequence>
#include <QMenuBar>
#include <QShortcutEvent>

namespace velmora {

MenuFirst::MenuFirst(QMenuBar* bar) : QObject(bar), bar_(bar) {
    bar->installEventFilter(this);
}

void MenuFirst::watchButtons(const QWidget& window) {
    for (auto* button : window.findChildren<QAbstractButton*>())
        button->installEventFilter(this);
}

bool MenuFirst::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::Shortcut) {
        const auto& key = static_cast<const QShortcutEvent&>(*event);
        if (key.isAmbiguous() && openMenu(key))
            return true;
    }
    return QObject::eventFilter(watched, event);
}

bool MenuFirst::openMenu(const QShortcutEvent& key) {
    for (QAction* head : bar_->actions()) {
        if (!head->isEnabled() || !head->isVisible() ||
            QKeySequence::mnemonic(head->text()) != key.key())
            continue;
        if (head->menu())
            bar_->setActiveAction(head);
        else
            head->trigger();
        return true;
    }
    return false;
}

}  // namespace velmora
