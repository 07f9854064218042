#include "platform/files/FileBytes.h"

#include <fcntl.h>
#include <sys/stat.h>

#include <cerrno>
#include <utility>

#include "platform/Failure.h"

namespace velmora {

FileBytes::FileBytes(NativePath path) : path_(std::move(path)), file_(openOrFail(path_, O_RDONLY)) {
    requireRegularFile(file_, path_);
}

std::uint64_t FileBytes::size() const {
    struct stat status {};
    if (fstat(file_.number(), &status) != 0)
        throw systemFailure("The file " + path_.utf8() + " can not be read", errno);
    return static_cast<std::uint64_t>(status.st_size);
}

std::size_t FileBytes::read(std::uint64_t offset, std::span<char> target) const {
    return readFully(file_, path_, offset, target.data(), target.size());
}

}  // namespace velmora
