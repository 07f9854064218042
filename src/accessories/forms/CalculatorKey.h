#pragma once

#include "platform/controls/PaintedButton.h"

class QTimer;

namespace velmora {

// One key of the calculator. It never takes the focus, so Enter and the space bar press none.
class CalculatorKey final : public PaintedButton {
    Q_OBJECT

  public:
    // Decides the colours and the size of the caption.
    enum class Kind { Digit, Clear, Operator, Equals };

    CalculatorKey(const QString& caption, Kind kind, QWidget* parent);

    // Looks pressed for 120 ms, as when its character was typed.
    void flash();
    [[nodiscard]] bool flashing() const;

    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QSize minimumSizeHint() const override { return sizeHint(); }

  protected:
    void paintEvent(QPaintEvent* event) override;

  private:
    Kind kind_;
    QTimer* flash_;
};

}  // namespace velmora
