#include "platform/FileDescriptor.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>

#include "platform/Failure.h"

namespace velmora {

FileDescriptor::~FileDescriptor() {
    if (number_ >= 0)
        close(number_);
}

FileDescriptor openFile(const std::string& nativePath, int flags, unsigned mode) {
    int number = -1;
    do
        number = open(nativePath.c_str(), flags | O_CLOEXEC | O_NONBLOCK | O_NOCTTY, mode);
    while (number < 0 && errno == EINTR);
    return FileDescriptor(number);
}

void requireRegularFile(const FileDescriptor& file, const std::string& path) {
    struct stat status {};
    if (fstat(file.number(), &status) != 0)
        throw systemFailure("The file " + path + " can not be read", errno);
    if (S_ISDIR(status.st_mode))
        throw systemFailure("The file " + path + " can not be opened", EISDIR);
    if (!S_ISREG(status.st_mode))
        throw Failure("The file " + path + " can not be opened: it is no ordinary file.");
}

std::size_t readFully(const FileDescriptor& file, const std::string& path, std::size_t offset,
                      char* target, std::size_t size) {
    std::size_t done = 0;
    while (done < size) {
        const ssize_t count =
            pread(file.number(), target + done, size - done, static_cast<off_t>(offset + done));
        if (count < 0 && errno == EINTR)
            continue;
        if (count < 0)
            throw systemFailure("The file " + path + " can not be read", errno);
        if (count == 0)
            break;
        done += static_cast<std::size_t>(count);
    }
    return done;
}

}  // namespace velmora
