#pragma once

namespace velmora {

// The version of the program, such as "1.2.3".
[[nodiscard]] const char* productVersion();

}  // namespace velmora
