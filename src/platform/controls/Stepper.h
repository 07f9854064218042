#pragma once

#include <QAbstractSlider>
#include <QBasicTimer>
#include <QElapsedTimer>
#include <QFrame>

#include "platform/controls/FocusRing.h"

class QLabel;

namespace velmora {

// Two arrows that count up and down. The upper half, the Up key and the wheel turned away add the
// single step, their opposites take it away; Page Up and Page Down go by the page step. An arrow
// that is held down repeats. Digits that are typed one behind the other are the number, as long as
// it is not above the range; a pause begins a new one.
class StepperArrows final : public QAbstractSlider {
    Q_OBJECT

  public:
    explicit StepperArrows(QWidget* parent = nullptr);

    [[nodiscard]] QSize sizeHint() const override;

  protected:
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void timerEvent(QTimerEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;
    void hideEvent(QHideEvent* event) override;

  private:
    void step();
    void typeDigit(int digit);
    void letGo();

    KeyboardFocus focus_;
    QBasicTimer repeat_;
    QElapsedTimer sinceDigit_;
    int typed_ = 0;      // the digits typed last, as a number
    int direction_ = 0;  // of the arrow held down: 1 up, -1 down, 0 none
    int wheelTurn_ = 0;
};

// A number and the arrows that change it, in one frame. What the number looks like is for the
// owner to say: it writes the label whenever the value changes.
class Stepper final : public QFrame {
    Q_OBJECT

  public:
    // The object names of the arrows and of the label.
    Stepper(const QString& arrowsName, const QString& labelName, QWidget* parent = nullptr);

    [[nodiscard]] StepperArrows* arrows() const { return arrows_; }
    [[nodiscard]] QLabel* label() const { return label_; }

    // Steps by 1, or by `largeStep`, from `lowest` to `highest`.
    void setRange(int lowest, int highest, int largeStep);

    [[nodiscard]] int value() const;

    // Emits valueChanged() when the value is another one.
    void setValue(int value);

  signals:
    void valueChanged(int value);

  protected:
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;

  private:
    QLabel* label_;
    StepperArrows* arrows_;
};

}  // namespace velmora
