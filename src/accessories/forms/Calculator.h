#pragma once

#include <array>
#include <functional>
#include <map>
#include <string>

#include "accessories/PocketMachine.h"
#include "accessories/forms/CalculatorKey.h"
#include "platform/controls/Dialog.h"

class QPushButton;

namespace velmora {

class CalculatorReadout;

// "VLMCalc": the pocket calculator. It stays open beside the other windows; its keys are clicked or
// typed. Each opening begins anew.
class Calculator final : public Dialog {
    Q_OBJECT

  public:
    // `messages` must outlive the form. `endProgram` shows a failure of the arithmetic and closes
    // the program; its text is UTF-8.
    Calculator(Messages& messages, std::function<void(const std::string&)> endProgram,
               QWidget* parent = nullptr);

  protected:
    void beginAnew() override;
    [[nodiscard]] QWidget* firstField() const override;
    void keyPressEvent(QKeyEvent* event) override;

  private:
    CalculatorKey* addKey(char character, const QString& name, const QString& caption,
                          const QString& spoken, CalculatorKey::Kind kind);
    void makeDigits();
    void makeOperators();
    void makeOthers();
    [[nodiscard]] QLayout* arrangeKeys();
    void press(char key);

    PocketMachine machine_;
    std::function<void(const std::string&)> endProgram_;
    CalculatorReadout* Readout;
    std::array<CalculatorKey*, 10> Number{};
    std::array<CalculatorKey*, kOperatorCount> Operator{};
    CalculatorKey* Decimal = nullptr;
    CalculatorKey* Percent = nullptr;
    CalculatorKey* Cancel = nullptr;       // "C"
    CalculatorKey* CancelEntry = nullptr;  // "CE"
    QPushButton* Command1;                 // "Close"
    std::map<char, CalculatorKey*> keys_;  // by the character that presses them
};

}  // namespace velmora
