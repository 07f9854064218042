#include "platform/controls/ListFrame.h"

#include <QFrame>
#include <QVBoxLayout>

namespace velmora {

QFrame* makeListFrame(QWidget* list, QWidget* parent) {
    auto* frame = new QFrame(parent);
    frame->setProperty("role", QStringLiteral("raised"));
    auto* inside = new QVBoxLayout(frame);
    inside->setContentsMargins(1, 1, 1, 1);
    inside->addWidget(list);
    return frame;
}

}  // namespace velmora
