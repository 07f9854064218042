#include "platform/files/FileDescriptor.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>

#include "platform/Failure.h"

namespace velmora {

FileDescriptor::~FileDescriptor() {
    if (number_ >= 0)
        close(number_);
}

FileDescriptor openFile(const NativePath& path, int flags, unsigned mode) {
    int number = -1;
    do
        number = open(path.c_str(), flags | O_CLOEXEC | O_NONBLOCK | O_NOCTTY, mode);
    while (number < 0 && errno == EINTR);
    return FileDescriptor(number);
}

FileDescriptor openOrFail(const NativePath& path, int flags, unsigned mode) {
    FileDescriptor file = openFile(path, flags, mode);
    if (!file.isOpen())
        throw systemFailure("The file " + path.utf8() + " can not be opened", errno);
    return file;
}

void requireRegularFile(const FileDescriptor& file, const NativePath& path) {
    struct stat status {};
    if (fstat(file.number(), &status) != 0)
        throw systemFailure("The file " + path.utf8() + " can not be read", errno);
    if (S_ISDIR(status.st_mode))
        throw systemFailure("The file " + path.utf8() + " can not be opened", EISDIR);
    if (!S_ISREG(status.st_mode))
        throw Failure("The file " + path.utf8() + " can not be opened: it is no ordinary file.");
}

std::size_t readFully(const FileDescriptor& file, const NativePath& path, std::size_t offset,
                      char* target, std::size_t size) {
    std::size_t done = 0;
    while (done < size) {
        const ssize_t count =
            pread(file.number(), target + done, size - done, static_cast<off_t>(offset + done));
        if (count < 0 && errno == EINTR)
            continue;
        if (count < 0)
            throw systemFailure("The file " + path.utf8() + " can not be read", errno);
        if (count == 0)
            break;
        done += static_cast<std::size_t>(count);
    }
    return done;
}

std::optional<std::string> readToEnd(const FileDescriptor& file, const NativePath& path,
                                     std::uint64_t limit) {
    // Grows as the file gives bytes, for a size that is told may be wrong by then.
    constexpr std::size_t kStep = 65536;
    std::string bytes;
    for (;;) {
        const std::size_t before = bytes.size();
        const std::size_t wanted = std::min<std::uint64_t>(
            std::max(kStep, before), limit - before + (limit < UINT64_MAX ? 1 : 0));
        bytes.resize(before + wanted);
        const std::size_t count = readFully(file, path, before, bytes.data() + before, wanted);
        bytes.resize(before + count);
        if (bytes.size() > limit)
            return std::nullopt;
        if (count < wanted)
            return bytes;
    }
}

int writeFully(const FileDescriptor& file, std::string_view bytes) {
    while (!bytes.empty()) {
        const ssize_t count = write(file.number(), bytes.data(), bytes.size());
        if (count < 0 && errno != EINTR)
            return errno;
        bytes.remove_prefix(count < 0 ? 0 : static_cast<std::size_t>(count));
    }
    return 0;
}

int flushBytes(const FileDescriptor& file) {
    while (fdatasync(file.number()) != 0) {
        if (errno == EINVAL || errno == EROFS)
            return 0;
        if (errno != EINTR)
            return errno;
    }
    return 0;
}

}  // namespace velmora
