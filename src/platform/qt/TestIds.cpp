#include "platform/qt/TestIds.h"

#include <QEvent>
#include <QWidget>

namespace velmora {

bool TestIds::wanted() {
    return qEnvironmentVariable("VELMORA_TEST_IDS") == QLatin1String("1");
}

bool TestIds::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::Polish && watched->isWidgetType()) {
        auto* widget = static_cast<QWidget*>(watched);
        widget->setAccessibleDescription(widget->objectName());
    }
    return QObject::eventFilter(watched, event);
}

void describe(QWidget& widget, const QString& text) {
    if (!TestIds::wanted() && widget.accessibleDescription() != text)
        widget.setAccessibleDescription(text);
}

}  // namespace velmora
