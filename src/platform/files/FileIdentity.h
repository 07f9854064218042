#pragma once

#include <cstdint>
#include <optional>

#include "platform/NativePath.h"

namespace velmora {

// Which file a path means at this moment, whatever its name.
struct FileIdentity {
    std::uint64_t device = 0;
    std::uint64_t node = 0;

    bool operator==(const FileIdentity&) const = default;
};

// Nothing when the path means no file. Links are followed.
[[nodiscard]] std::optional<FileIdentity> identityOf(const NativePath& path);

}  // namespace velmora
