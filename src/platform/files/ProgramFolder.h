#pragma once

#include "platform/NativePath.h"

namespace velmora {

// The folder that data lies in beside the program, without a separator at its end: that of the
// executable where the user may write, else "velmora" in the user's data folder. That one is made
// when it is missing, for everybody whom the user's mask lets in, as books may be shared. Where it
// can not be made, opening a file in it says why.
[[nodiscard]] NativePath programFolder();

// The folder of the settings, made when it is missing, for its owner only. Where it can not be
// made, opening a file in it says why.
[[nodiscard]] NativePath configurationFolder();

// The folder of what the program keeps for itself about its runs, such as copies of the data, made
// when it is missing, for its owner only. Where it can not be made, opening a file in it says why.
[[nodiscard]] NativePath stateFolder();

}  // namespace velmora
