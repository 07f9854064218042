#include "platform/files/PosixRandomFile.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <chrono>
#include <utility>
#include <vector>

#include "platform/StorageFailure.h"
#include "platform/files/FileLock.h"

namespace velmora {
namespace {

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

}  // namespace

PosixRandomFile::PosixRandomFile(NativePath path) : path_(std::move(path)), file_(open()) {}

FileDescriptor PosixRandomFile::open() {
    FileDescriptor file = openFile(path_, O_RDWR | O_CREAT);
    if (!file.isOpen()) {
        const int why = errno;
        if (!mayStillBeRead(why))
            throw systemFailure("The file " + path_.utf8() + " can not be opened", why);
        whyReadOnly_ = why;
        FileDescriptor readable = openFile(path_, O_RDONLY);
        if (!readable.isOpen())
            throw systemFailure("The file " + path_.utf8() + " can not be opened", why);
        requireRegularFile(readable, path_);
        return readable;
    }
    requireRegularFile(file, path_);
    return file;
}

std::uint64_t PosixRandomFile::size() const {
    struct stat status {};
    if (fstat(file_.number(), &status) != 0)
        throw systemFailure("The file " + path_.utf8() + " can not be read", errno);
    return static_cast<std::uint64_t>(status.st_size);
}

std::size_t PosixRandomFile::readAt(std::uint64_t offset, std::span<char> target) const {
    return readFully(file_, path_, offset, target.data(), target.size());
}

void PosixRandomFile::writeAt(std::uint64_t offset, std::span<const char> bytes) {
    const FilePiece piece{offset, bytes};
    writePieces(std::span(&piece, 1));
}

void PosixRandomFile::writePieces(std::span<const FilePiece> pieces) {
    if (whyReadOnly_ != 0)
        throw notWritten(whyReadOnly_);
    const std::uint64_t oldSize = size();
    // All of them before the first write, since reading may fail as well.
    std::vector<std::vector<char>> olds(pieces.size());
    for (std::size_t at = 0; at < pieces.size(); ++at)
        if (pieces[at].offset < oldSize) {
            std::vector<char>& old = olds[at];
            old.resize(
                std::min<std::uint64_t>(pieces[at].bytes.size(), oldSize - pieces[at].offset));
            old.resize(readAt(pieces[at].offset, old));
        }
    std::size_t begun = 0;    // pieces
    std::size_t written = 0;  // of the last of them
    int why = 0;
    while (why == 0 && begun < pieces.size()) {
        const FilePiece& piece = pieces[begun++];
        why = writeOnce(file_.number(), piece.offset, piece.bytes, written);
    }
    if (why == 0)
        why = flushBytes(file_);
    if (why == 0)
        return;
    // All this is the best that can still be done; the failure is told in any case.
    if (size() > oldSize)
        (void)!ftruncate(file_.number(), static_cast<off_t>(oldSize));
    for (std::size_t at = 0; at < begun; ++at) {
        const bool last = at + 1 == begun;
        const std::size_t spoilt = std::min(last ? written : olds[at].size(), olds[at].size());
        std::size_t putBack = 0;
        if (spoilt > 0)
            (void)writeOnce(file_.number(), pieces[at].offset, std::span(olds[at]).first(spoilt),
                            putBack);
    }
    throw notWritten(why);
}

bool PosixRandomFile::lock(std::chrono::milliseconds patience) {
    if (whyReadOnly_ != 0)
        return false;
    const LockOutcome outcome = takeLock(file_, patience);
    if (outcome == LockOutcome::InUse)
        throw StorageFailure(
            "The file " + path_.utf8() + " is in use by another copy of the program.",
            Obstacle::InUse);
    return outcome == LockOutcome::Taken;
}

void PosixRandomFile::unlock() {
    letLockGo(file_);
}

Failure PosixRandomFile::notWritten(int errorNumber) const {
    return systemFailure("The file " + path_.utf8() + " can not be written", errorNumber);
}

}  // namespace velmora
