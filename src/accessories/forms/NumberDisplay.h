#pragma once

#include <QLabel>

#include "platform/controls/FocusRing.h"

namespace velmora {

// The readout of the calculator: one number at the right of a card. A long one is drawn smaller,
// and one that is longer still without its beginning. Takes the focus, and Ctrl+C copies it.
class NumberDisplay final : public QLabel {
    Q_OBJECT

  public:
    explicit NumberDisplay(QWidget* parent);

    // Takes the focus without showing it, as when it comes by the pointer.
    void focusQuietly();

  protected:
    void paintEvent(QPaintEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

  private:
    [[nodiscard]] QFont fontFor(int width) const;

    KeyboardFocus focus_;
};

}  // namespace velmora
