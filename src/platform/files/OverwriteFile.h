#pragma once

#include <string_view>

#include "platform/NativePath.h"

namespace velmora {

// Writes `bytes` over those of a regular file that is there, which stays the same file. Room is
// taken before the first old byte goes. Throws Failure, and has then put the old bytes back; only
// when the program is ended in the middle, or the medium takes no bytes at all any more, is the
// file neither the old nor the new one.
void overwriteFile(const NativePath& path, std::string_view bytes);

}  // namespace velmora
