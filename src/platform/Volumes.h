#pragma once

#include <vector>

#include "platform/NativePath.h"

namespace velmora {

// Where backups can be put: sticks, cards, discs, and folders of other machines.
class Volumes {
  public:
    virtual ~Volumes() = default;

    // The root folders of those that are mounted and that the user may write to; what can be taken
    // out stands first. Asked anew each time, for they come and go.
    [[nodiscard]] virtual std::vector<NativePath> mounted() const = 0;
};

}  // namespace velmora
