#pragma once

#include <QLabel>

namespace velmora {

// The readout of the calculator: one number at the right of a card. A long one is drawn smaller,
// and one that is longer still without its beginning. A ring
// shows that it has the focus, which is that what is typed goes to the calculator. Ctrl+C copies
// the number.
class CalculatorReadout final : public QLabel {
    Q_OBJECT

  public:
    explicit CalculatorReadout(QWidget* parent);

  protected:
    void paintEvent(QPaintEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

  private:
    [[nodiscard]] QFont fontFor(int width) const;
};

}  // namespace velmora
