#pragma once

#include <string>

#include "platform/Volumes.h"

namespace velmora {

// The volumes in the table of mounts: disks and folders of other machines, but no file systems that
// the system makes up, and none whose root is the system's own. Where the environment variable
// VELMORA_VOLUMES names folders, with ":" between them, these are the volumes.
class MountedVolumes final : public Volumes {
  public:
    // `table` is a file in the form of /proc/self/mounts; `devices` the folder in which the system
    // tells of block devices by number.
    explicit MountedVolumes(std::string table = "/proc/self/mounts",
                            std::string devices = "/sys/dev/block")
        : table_(std::move(table)), devices_(std::move(devices)) {}

    [[nodiscard]] std::vector<NativePath> mounted() const override;

  private:
    [[nodiscard]] bool isRemovable(const NativePath& root) const;

    std::string table_;
    std::string devices_;
};

}  // namespace velmora
