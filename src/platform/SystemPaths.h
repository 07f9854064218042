#pragma once

#include <string>

#include "platform/NativePath.h"

namespace velmora {

// Tells what the paths of the program, code-page text with "\" or "/" between folders, mean on
// this machine.
class SystemPaths {
  public:
    virtual ~SystemPaths() = default;

    // Whether anything lies there or not.
    [[nodiscard]] virtual NativePath nativePath(const std::string& path) const = 0;
};

}  // namespace velmora
