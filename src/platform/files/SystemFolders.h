#pragma once

namespace velmora {

// The folder of the programs that belong to the system, without a separator at its end.
inline constexpr const char* kSystemPrograms = "/usr/bin";

}  // namespace velmora
