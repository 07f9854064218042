#include "accessories/CalculatorKeys.h"

#include <string_view>

namespace velmora {
namespace {

constexpr std::string_view kKeys = "0123456789.=+-/X%CE";
constexpr std::string_view kSmallLetters = "xce";

}  // namespace

char calculatorKey(char typed) {
    if (kSmallLetters.find(typed) != std::string_view::npos)
        typed = static_cast<char>(typed - 'a' + 'A');
    return kKeys.find(typed) == std::string_view::npos ? '\0' : typed;
}

void pressKey(PocketMachine& machine, char key) {
    for (int i = 0; i < kOperatorCount; ++i)
        if (const auto which = static_cast<CalculatorOperator>(i); *captionOf(which) == key)
            return machine.Operator(which);
    if (key >= '0' && key <= '9')
        machine.Number(key - '0');
    else if (key == '.')
        machine.Decimal();
    else if (key == '%')
        machine.Percent();
    else if (key == 'C')
        machine.Cancel();
    else if (key == 'E')
        machine.CancelEntry();
}

}  // namespace velmora
