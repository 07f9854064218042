#pragma once

#include "platform/FileStamp.h"
#include "platform/NativePath.h"

namespace velmora {

// All 0 when the path means no file. Links are followed.
[[nodiscard]] FileStamp fileStampOf(const NativePath& path);

}  // namespace velmora
