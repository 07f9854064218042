#include "platform/files/FileLock.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <time.h>

#include <algorithm>
#include <cerrno>

#include "platform/StorageFailure.h"
#include "platform/files/FileIdentity.h"

namespace velmora {
namespace {

using std::chrono::microseconds;
using std::chrono::steady_clock;

constexpr microseconds kFirstPause(200);
constexpr microseconds kLongestPause(5000);

int setLock(const FileDescriptor& file, short type) {
    struct flock range {};
    range.l_type = type;
    range.l_whence = SEEK_SET;
    return fcntl(file.number(), F_OFD_SETLK, &range) == 0 ? 0 : errno;
}

void pause(microseconds duration) {
    timespec time{0, static_cast<long>(duration.count()) * 1000};
    nanosleep(&time, nullptr);
}

FileDescriptor openToLock(const NativePath& path) {
    FileDescriptor file = openFile(path, O_RDWR);
    return file.isOpen() ? std::move(file) : openOrFail(path, O_RDONLY);
}

}  // namespace

LockOutcome takeLock(const FileDescriptor& file, std::chrono::milliseconds patience) {
    const auto giveUp = steady_clock::now() + patience;
    for (microseconds wait = kFirstPause;; wait = std::min(wait * 2, kLongestPause)) {
        const int why = setLock(file, F_WRLCK);
        if (why == 0)
            return LockOutcome::Taken;
        if (why != EAGAIN && why != EACCES && why != EINTR)
            return LockOutcome::NoLocks;
        if (steady_clock::now() >= giveUp)
            return LockOutcome::InUse;
        pause(wait);
    }
}

void letLockGo(const FileDescriptor& file) {
    (void)setLock(file, F_UNLCK);
}

FileLock::FileLock(const NativePath& path, std::chrono::milliseconds patience)
    : file_(openToLock(path)) {
    if (takeLock(file_, patience) == LockOutcome::InUse)
        throw StorageFailure("\"" + path.utf8() + "\" is in use by another program.",
                             Obstacle::InUse);
}

bool FileLock::isOn(const NativePath& path) const {
    struct stat status {};
    return fstat(file_.number(), &status) == 0 &&
           identityOf(path) == FileIdentity{status.st_dev, status.st_ino};
}

}  // namespace velmora
