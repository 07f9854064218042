#pragma once

#include <string>
#include <vector>

#include "platform/NativePath.h"

namespace velmora {

// The names in a folder, in no order; none where it can not be read. Never throws.
[[nodiscard]] std::vector<std::string> namesIn(const NativePath& folder);

}  // namespace velmora
