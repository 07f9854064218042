#pragma once

#include <cstdint>
#include <string>
#include <variant>

#include "platform/Messages.h"

namespace velmora {

inline constexpr const char* kCalculatorTitle = "VLMCalc";

// The keys of the operators, in the order of their indices.
enum class CalculatorOperator { Divide, Plus, Times, Minus, Equals };
inline constexpr int kOperatorCount = 5;

// The caption of an operator's key, which is also the text that the machine remembers it by.
[[nodiscard]] const char* captionOf(CalculatorOperator key);

// A pocket calculator with four operations and percent. It works strictly from left to right.
//
// The readout is text: what is typed keeps its point behind its last whole digit ("5."), a result
// is the number's plain text ("5"). A typed number is used as it stands in the readout, a result
// with all its digits.
class PocketMachine {
  public:
    // `messages` must outlive the machine.
    explicit PocketMachine(Messages& messages) : messages_(messages) {}

    // As when the calculator is opened: nothing is remembered, the readout is "0.".
    void Load();

    // `digit` is 0 to 9.
    void Number(int digit);
    void Decimal();

    // A division by zero is told in a box, and the machine goes on with the first operand. Throws
    // Failure when a result is too large for a number.
    void Operator(CalculatorOperator key);

    // Makes the readout a hundredth, which the next operator multiplies the first operand by.
    // Throws Failure after more than 32767 operands.
    void Percent();
    void Cancel();
    void CancelEntry();

    [[nodiscard]] const std::string& Readout() const { return readout_; }

  private:
    // The class of the last key.
    enum class Input { None, Nums, Neg, Ops, Percent, ClearEntry };
    // A number as text until it has been calculated with.
    using Operand = std::variant<std::string, double>;

    void forget();
    void countOperand();
    void signFirstOperand(CalculatorOperator key);
    void takeFirstOperand(CalculatorOperator key);
    void calculate();
    [[nodiscard]] Operand result();

    Messages& messages_;
    std::string readout_ = "0.";
    Operand Op1;
    Operand Op2;
    bool DecimalFlag = false;  // digits are added behind the point
    std::int16_t NumOps = 0;   // operands entered so far
    Input LastInput = Input::None;
    std::string OpFlag = " ";  // the operator that waits for its second operand
    std::string TempReadout;   // the readout when an operator was pressed
};

}  // namespace velmora
