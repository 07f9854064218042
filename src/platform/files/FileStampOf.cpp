#include "platform/files/FileStampOf.h"

#include <sys/stat.h>

namespace velmora {

FileStamp fileStampOf(const NativePath& path) {
    struct stat status {};
    if (stat(path.utf8().c_str(), &status) != 0)
        return {};
    constexpr std::int64_t kNanoseconds = 1'000'000'000;
    return {status.st_dev, status.st_ino, static_cast<std::uint64_t>(status.st_size),
            status.st_mtim.tv_sec * kNanoseconds + status.st_mtim.tv_nsec};
}

}  // namespace velmora
