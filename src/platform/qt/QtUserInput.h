#pragma once

#include <QList>
#include <QObject>
#include <QPointer>
#include <QWidget>

#include "platform/UserInput.h"

namespace velmora {

// The windows of the application: shut out, they are disabled and can not be closed.
class QtUserInput final : public QObject, public UserInput {
    Q_OBJECT

  protected:
    void shutOut() override;
    void letIn() override;
    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    QList<QPointer<QWidget>> windows_;
    QPointer<QWidget> focus_;
};

}  // namespace velmora
