#pragma once

#include "platform/NativePath.h"

namespace velmora {

// The folder that data lies in beside the program, without a separator at its end: that of the
// executable where the user may write, else "velmora" in the user's data folder, which is made
// when it is missing. Throws Failure when there is neither.
[[nodiscard]] NativePath programFolder();

// The folder of the settings, made when it is missing. Throws Failure.
[[nodiscard]] NativePath configurationFolder();

}  // namespace velmora
