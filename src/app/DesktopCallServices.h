#pragma once

#include <memory>
#include <vector>

#include "platform/CallService.h"

namespace velmora {

// The telephone services that a desktop may have, each made only now.
[[nodiscard]] std::vector<std::unique_ptr<CallService>> desktopCallServices();

}  // namespace velmora
