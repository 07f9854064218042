#pragma once

#include "platform/NativePath.h"

namespace velmora {

// A name in the folder of `path` for a file that is written beside it and is gone again soon. It
// tells the machine and the run of the program that made it, so that what a run left that ended in
// the middle can be cleared away. `path` is cut where the whole would be too long for a name.
[[nodiscard]] NativePath temporaryBeside(const NativePath& path);

// Removes the files with such names from the folder of `path` whose run has ended. Those of other
// machines that share the folder stay, and so does what can not be removed. Never throws.
void clearAbandonedBeside(const NativePath& path);

}  // namespace velmora
