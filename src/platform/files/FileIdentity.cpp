#include "platform/files/FileIdentity.h"

#include <sys/stat.h>

namespace velmora {

std::optional<FileIdentity> identityOf(const NativePath& path) {
    struct stat status {};
    if (stat(path.c_str(), &status) != 0)
        return std::nullopt;
    return FileIdentity{status.st_dev, status.st_ino};
}

}  // namespace velmora
