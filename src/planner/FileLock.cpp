#include "planner/FileLock.h"

#include <fcntl.h>
#include <poll.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>

#include "planner/PlannerDatabase.h"
#include "platform/Failure.h"

namespace velmora {

namespace {

constexpr int kPauseInMilliseconds = 20;

}  // namespace

FileLock::FileLock(const std::string& path, std::chrono::milliseconds patience)
    : descriptor_(::open(path.c_str(), O_RDONLY | O_CLOEXEC)) {
    if (descriptor_ < 0)
        throw systemFailure("\"" + path + "\" can not be opened", errno);
    const auto deadline = std::chrono::steady_clock::now() + patience;
    while (::flock(descriptor_, LOCK_EX | LOCK_NB) != 0 &&
           (errno == EWOULDBLOCK || errno == EINTR)) {
        if (std::chrono::steady_clock::now() >= deadline) {
            ::close(descriptor_);
            throw Failure("\"" + path + "\" is in use by another program.");
        }
        (void)::poll(nullptr, 0, kPauseInMilliseconds);
    }
}

FileLock::~FileLock() {
    ::close(descriptor_);
}

bool FileLock::isOn(const std::string& path) const {
    struct stat status {};
    return ::fstat(descriptor_, &status) == 0 &&
           identityOf(path) == FileIdentity{status.st_dev, status.st_ino};
}

}  // namespace velmora
