#include "telephony/forms/CallNumber.h"

#include <QClipboard>
#include <QContextMenuEvent>
#include <QGuiApplication>
#include <QKeyEvent>

namespace velmora {

CallNumber::CallNumber(QWidget* parent) : QLineEdit(parent) {
    setReadOnly(true);
    setProperty("role", QStringLiteral("reading"));
    setPlaceholderText(QStringLiteral("Number withheld"));
    setAccessibleName(QStringLiteral("Number"));
}

void CallNumber::setNumber(const QString& number) {
    setText(number);
    setCursorPosition(0);
}

void CallNumber::copyAll() const {
    if (!text().isEmpty())
        QGuiApplication::clipboard()->setText(text());
}

void CallNumber::keyPressEvent(QKeyEvent* event) {
    if (event->matches(QKeySequence::Copy) && !hasSelectedText())
        copyAll();
    else
        QLineEdit::keyPressEvent(event);
}

void CallNumber::contextMenuEvent(QContextMenuEvent* event) {
    const bool byKey = event->reason() == QContextMenuEvent::Keyboard;
    emit menuWanted(byKey ? mapToGlobal(rect().center()) : event->globalPos());
}

}  // namespace velmora
