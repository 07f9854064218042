#pragma once

#include <QObject>

namespace velmora {

// Shift+F10 opens the context menu of what has the keys, as the Menu key does, which many keyboards
// lack. To be installed on the application.
class ContextKey final : public QObject {
    Q_OBJECT

  public:
    using QObject::QObject;

    bool eventFilter(QObject* watched, QEvent* event) override;
};

}  // namespace velmora
