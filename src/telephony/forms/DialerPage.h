#pragma once

#include <QWidget>

class QLabel;
class QLayout;
class QPushButton;

namespace velmora {

class Keypad;

// The Dialer pane: the number, the keypad and what can be done with the number.
class DialerPage final : public QWidget {
    Q_OBJECT

  public:
    explicit DialerPage(QWidget* parent = nullptr);

    [[nodiscard]] QLabel* number() const { return Label16; }
    [[nodiscard]] Keypad* keypad() const { return Picture3; }
    [[nodiscard]] QPushButton* sendButton() const { return Command24; }
    [[nodiscard]] QPushButton* hangUpButton() const { return Command22; }
    [[nodiscard]] QPushButton* backButton() const { return Command20; }
    [[nodiscard]] QPushButton* clearButton() const { return Command21; }
    [[nodiscard]] QPushButton* externalButton() const { return Command2; }

    // The size for a small window.
    void setSmall(bool small);

  private:
    [[nodiscard]] QWidget* makeActions();

    QWidget* numberCard_;
    QWidget* actions_ = nullptr;
    QLayout* keys_ = nullptr;
    QLabel* Label16;         // the last number dialed
    Keypad* Picture3;        // the keypad
    QPushButton* Command24;  // "&Send"
    QPushButton* Command22;  // "&Hang Up"
    QPushButton* Command20;  // "&Back"
    QPushButton* Command21;  // "&Clear All"
    QPushButton* Command2;   // "&External Dialer"
};

}  // namespace velmora
