#include "platform/PosixRandomFile.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <time.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <chrono>
#include <utility>
#include <vector>

namespace velmora {
namespace {

using std::chrono::microseconds;
using std::chrono::steady_clock;

constexpr std::chrono::seconds kLockWait(3);
constexpr microseconds kFirstPause(200);
constexpr microseconds kLongestPause(5000);

bool mayStillBeRead(int errorNumber) {
    return errorNumber == EACCES || errorNumber == EPERM || errorNumber == EROFS;
}

// One write of all bytes. Returns 0, or the system's reason; `written` tells how far it came.
int writeOnce(int file, std::uint64_t offset, std::span<const char> bytes, std::size_t& written) {
    ssize_t count = 0;
    do
        count = pwrite(file, bytes.data(), bytes.size(), static_cast<off_t>(offset));
    while (count < 0 && errno == EINTR);
    written = count < 0 ? 0 : static_cast<std::size_t>(count);
    if (count < 0)
        return errno;
    return written == bytes.size() ? 0 : ENOSPC;
}

int flush(int file) {
    while (fdatasync(file) != 0) {
        if (errno == EINVAL || errno == EROFS)
            return 0;  // a file system that has nothing to flush
        if (errno != EINTR)
            return errno;
    }
    return 0;
}

int setLock(int file, short type) {
    struct flock range {};
    range.l_type = type;
    range.l_whence = SEEK_SET;
    return fcntl(file, F_OFD_SETLK, &range) == 0 ? 0 : errno;
}

void pause(microseconds duration) {
    timespec time{0, static_cast<long>(duration.count()) * 1000};
    nanosleep(&time, nullptr);
}

}  // namespace

PosixRandomFile::PosixRandomFile(std::string nativePath)
    : path_(std::move(nativePath)), file_(open()) {}

FileDescriptor PosixRandomFile::open() {
    FileDescriptor file = openFile(path_, O_RDWR | O_CREAT);
    if (!file.isOpen()) {
        const int why = errno;
        if (!mayStillBeRead(why))
            throw systemFailure("The file " + path_ + " can not be opened", why);
        whyReadOnly_ = why;
        FileDescriptor readable = openFile(path_, O_RDONLY);
        if (!readable.isOpen())
            throw systemFailure("The file " + path_ + " can not be opened", why);
        requireRegularFile(readable, path_);
        return readable;
    }
    requireRegularFile(file, path_);
    return file;
}

std::uint64_t PosixRandomFile::size() const {
    struct stat status {};
    if (fstat(file_.number(), &status) != 0)
        throw systemFailure("The file " + path_ + " can not be read", errno);
    return static_cast<std::uint64_t>(status.st_size);
}

std::size_t PosixRandomFile::readAt(std::uint64_t offset, std::span<char> target) const {
    return readFully(file_, path_, offset, target.data(), target.size());
}

void PosixRandomFile::writeAt(std::uint64_t offset, std::span<const char> bytes) {
    if (whyReadOnly_ != 0)
        throw notWritten(whyReadOnly_);
    const std::uint64_t oldSize = size();
    std::vector<char> old;
    if (offset < oldSize) {
        old.resize(std::min<std::uint64_t>(bytes.size(), oldSize - offset));
        old.resize(readAt(offset, old));
    }
    std::size_t written = 0;
    int why = writeOnce(file_.number(), offset, bytes, written);
    if (why == 0)
        why = flush(file_.number());
    if (why == 0)
        return;
    // Both steps are the best that can still be done; the failure is told in any case.
    if (size() > oldSize)
        (void)!ftruncate(file_.number(), static_cast<off_t>(oldSize));
    if (const std::size_t spoilt = std::min(written, old.size()); spoilt > 0)
        (void)writeOnce(file_.number(), offset, std::span(old).first(spoilt), written);
    throw notWritten(why);
}

void PosixRandomFile::shorten(std::uint64_t size) {
    if (ftruncate(file_.number(), static_cast<off_t>(size)) != 0)
        throw notWritten(errno);
}

bool PosixRandomFile::lock() {
    if (whyReadOnly_ != 0)
        return false;
    const auto giveUp = steady_clock::now() + kLockWait;
    for (microseconds wait = kFirstPause;; wait = std::min(wait * 2, kLongestPause)) {
        const int why = setLock(file_.number(), F_WRLCK);
        if (why == 0)
            return true;
        if (why != EAGAIN && why != EACCES && why != EINTR)
            return false;  // no locks here
        if (steady_clock::now() >= giveUp)
            throw Failure("The file " + path_ + " is in use by another copy of the program.");
        pause(wait);
    }
}

void PosixRandomFile::unlock() {
    (void)setLock(file_.number(), F_UNLCK);
}

Failure PosixRandomFile::notWritten(int errorNumber) const {
    return systemFailure("The file " + path_ + " can not be written", errorNumber);
}

}  // namespace velmora
