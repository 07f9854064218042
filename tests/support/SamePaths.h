#pragma once

#include "platform/SystemPaths.h"

namespace velmora::test {

// Takes each path as it is, as tests do that name files of a temporary folder.
class SamePaths final : public SystemPaths {
  public:
    [[nodiscard]] NativePath nativePath(const std::string& path) const override {
        return NativePath(path);
    }
};

// Lives as long as the program.
inline const SamePaths& samePaths() {
    static const SamePaths paths;
    return paths;
}

}  // namespace velmora::test
