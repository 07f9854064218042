#pragma once

#include <string>

namespace velmora {

// The folder that data lies in beside the program, in the file system's own encoding, without a
// separator at its end: that of the executable where the user may write, else "velmora" in the
// user's data folder, which is made when it is missing. Throws Failure when there is neither.
[[nodiscard]] std::string programFolder();

// The folder of the settings, made when it is missing. Throws Failure.
[[nodiscard]] std::string configurationFolder();

}  // namespace velmora
