#pragma once

#include <string_view>

#include "platform/NativePath.h"

namespace velmora {

// Replaces a file whole, or creates it: the bytes are written to a new file beside it, handed to
// the disk, and renamed into its place; the permissions stay. Throws Failure; the old file is then
// as it was and nothing is left beside it. A link is followed.
void writeAtomically(const NativePath& path, std::string_view bytes);

}  // namespace velmora
