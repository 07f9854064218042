#include "platform/controls/DialogButton.h"

#include <QPushButton>
#include <QStyle>

namespace velmora {

QPushButton* makeDialogButton(const char* name, const char* caption, QWidget* parent) {
    auto* button = new QPushButton(QString::fromLatin1(caption), parent);
    button->setObjectName(QString::fromLatin1(name));
    button->setAutoDefault(false);
    return button;
}

void makePrimary(QPushButton& button) {
    button.setProperty("role", QStringLiteral("primary"));
    button.setDefault(true);
    // A button that has been measured has its looks, and takes others only when it gets them anew.
    button.style()->unpolish(&button);
    button.style()->polish(&button);
}

}  // namespace velmora
