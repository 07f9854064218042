#pragma once

#include "accessories/PocketMachine.h"

namespace velmora {

// The keys of the calculator by the characters on the keyboard: "0" to "9", ".", "=", "+", "-",
// "/", "x" or "X", "%", "C" or "c" for all, "E" or "e" for the number being typed. Others do
// nothing.

// The character that a typed one acts as: itself, or the capital letter. 0 for no key.
[[nodiscard]] char calculatorKey(char typed);

// Presses the key of `key`, a result of calculatorKey() other than 0. Throws Failure as the
// machine does.
void pressKey(PocketMachine& machine, char key);

}  // namespace velmora
