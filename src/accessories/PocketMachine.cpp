#include "accessories/PocketMachine.h"

#include <array>
#include <cmath>
#include <limits>

#include "platform/Failure.h"
#include "platform/NumberText.h"
#include "platform/Text.h"

namespace velmora {
namespace {

constexpr std::array<const char*, kOperatorCount> kCaptions = {"/", "+", "X", "-", "="};
constexpr const char* kPercent = "%";

// Of a text too: as much of it as is a number.
double valueOf(const std::variant<std::string, double>& operand) {
    if (const auto* number = std::get_if<double>(&operand))
        return *number;
    const auto& text = std::get<std::string>(operand);
    const double number = readNumber(text);
    // What is typed may have more digits than any number; that reads as 0.
    const std::string whole = text.substr(0, text.find_first_of(".E"));
    if (number == 0 && whole.find_first_of("123456789") != std::string::npos)
        throw Failure("Overflow");
    return number;
}

std::string textOf(const std::variant<std::string, double>& operand) {
    const auto* text = std::get_if<std::string>(&operand);
    return text ? *text : numberText(std::get<double>(operand));
}

double finite(double number) {
    if (!std::isfinite(number))
        throw Failure("Overflow");
    return number;
}

}  // namespace

const char* captionOf(CalculatorOperator key) {
    return kCaptions[static_cast<std::size_t>(key)];
}

void PocketMachine::Load() {
    Cancel();
}

void PocketMachine::forget() {
    DecimalFlag = false;
    NumOps = 0;
    LastInput = Input::None;
    OpFlag = " ";
}

void PocketMachine::Number(int digit) {
    if (LastInput != Input::Nums) {
        readout_ = ".";
        DecimalFlag = false;
    }
    const std::string character = std::to_string(digit);
    if (DecimalFlag)
        readout_ += character;
    else
        readout_ = readout_.substr(0, readout_.find('.')) + character + ".";
    if (LastInput == Input::Neg)
        readout_.insert(0, "-");
    LastInput = Input::Nums;
}

void PocketMachine::Decimal() {
    if (LastInput == Input::Neg)
        readout_ = "-0.";
    else if (LastInput != Input::Nums)
        readout_ = "0.";
    DecimalFlag = true;
    LastInput = Input::Nums;
}

void PocketMachine::Operator(CalculatorOperator key) {
    TempReadout = readout_;
    if (LastInput == Input::Nums)
        countOperand();
    if (NumOps == 0)
        signFirstOperand(key);
    else if (NumOps == 1)
        takeFirstOperand(key);
    else if (NumOps == 2)
        calculate();
    if (LastInput != Input::Neg) {
        LastInput = Input::Ops;
        OpFlag = captionOf(key);
    }
}

void PocketMachine::signFirstOperand(CalculatorOperator key) {
    if (key != CalculatorOperator::Minus || LastInput == Input::Neg)
        return;
    readout_.insert(0, "-");
    LastInput = Input::Neg;
}

void PocketMachine::takeFirstOperand(CalculatorOperator key) {
    Op1 = readout_;
    const bool afterResult = OpFlag == captionOf(CalculatorOperator::Equals);
    if (key == CalculatorOperator::Minus && LastInput != Input::Nums && !afterResult) {
        readout_ = "-";
        LastInput = Input::Neg;
    }
}

void PocketMachine::calculate() {
    Op2 = TempReadout;
    Op1 = result();
    readout_ = textOf(Op1);
    NumOps = 1;
}

PocketMachine::Operand PocketMachine::result() {
    const double first = valueOf(Op1);
    const double second = valueOf(Op2);
    if (OpFlag == "+")
        return finite(first + second);
    if (OpFlag == "-")
        return finite(first - second);
    if (OpFlag == "X" || OpFlag == kPercent)
        return finite(first * second);
    if (OpFlag == "=")
        return Op2;
    if (OpFlag == "/" && second != 0)
        return finite(first / second);
    if (OpFlag == "/")
        messages_.warn(kCalculatorTitle, "Can't divide by zero.");
    return Op1;
}

void PocketMachine::Percent() {
    readout_ = numberText(valueOf(readout_) / 100);
    LastInput = Input::Percent;
    OpFlag = kPercent;
    DecimalFlag = true;
    countOperand();
}

void PocketMachine::Cancel() {
    readout_ = "0.";
    Op1 = 0.0;
    Op2 = 0.0;
    forget();
}

void PocketMachine::CancelEntry() {
    readout_ = "0.";
    DecimalFlag = false;
    LastInput = Input::ClearEntry;
}

void PocketMachine::countOperand() {
    if (NumOps == std::numeric_limits<std::int16_t>::max())
        throw Failure("Overflow");
    ++NumOps;
}

}  // namespace velmora
