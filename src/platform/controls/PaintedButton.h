#pragma once

#include <QAbstractButton>

#include "platform/controls/FocusRing.h"

namespace velmora {

// What the buttons share that paint themselves from the table of colours: Enter clicks as the space
// bar does, and the pointer's coming is told.
class PaintedButton : public QAbstractButton {
    Q_OBJECT

  public:
    explicit PaintedButton(QWidget* parent);

  signals:
    // The pointer has come over the button.
    void hovered();

  protected:
    // The focus is here and came by the keyboard.
    [[nodiscard]] bool focusShown() const { return focus_.shown(hasFocus()); }

    void enterEvent(QEnterEvent* event) override;
    void leaveEvent(QEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

  private:
    KeyboardFocus focus_;
};

}  // namespace velmora
