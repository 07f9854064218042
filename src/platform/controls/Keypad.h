#pragma once

#include <QWidget>
#include <array>

#include "platform/controls/PaintedButton.h"

class QTimer;

namespace velmora {

// One key of the keypad.
class KeypadKey final : public PaintedButton {
    Q_OBJECT

  public:
    KeypadKey(char character, QWidget* parent);

    // Looks pressed for 120 ms.
    void flash();
    [[nodiscard]] bool flashing() const;

    void setSmall(bool small);

    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QSize minimumSizeHint() const override { return sizeHint(); }

  protected:
    void paintEvent(QPaintEvent* event) override;

  private:
    QTimer* flash_;
    bool small_ = false;
};

// The twelve keys "1" to "9", "*", "0" and "," in three columns, keys at least 88 x 78 or, in
// a small window, 80 x 60, at most 330 wide in all. Arrow keys move between them.
class Keypad final : public QWidget {
    Q_OBJECT

  public:
    // The keys' object names are "Command8" to "Command19", in the order above.
    explicit Keypad(QWidget* parent = nullptr);

    // Shows the key of `character` pressed for a moment, as when it was typed. Others do nothing.
    void flash(char character);

    // The size for a small window.
    void setSmall(bool small);

  signals:
    // A key was clicked.
    void pressed(char character);

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    std::array<KeypadKey*, 12> keys_{};
};

}  // namespace velmora
