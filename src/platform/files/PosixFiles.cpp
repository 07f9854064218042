#include "platform/files/PosixFiles.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <utility>

#include "platform/Failure.h"
#include "platform/files/FileDescriptor.h"
#include "platform/files/FileSteps.h"
#include "platform/files/PosixRandomFile.h"
#include "platform/files/TemporaryName.h"

namespace velmora {

PosixFiles::PosixFiles(NativePaths paths, const CaseTwins* twins)
    : paths_(std::move(paths)), twins_(twins) {}

NativePath PosixFiles::nativePath(const std::string& path) const {
    NativePath native = paths_.resolve(path);
    if (twins_)
        if (auto newest = twins_->newest(native))
            return *std::move(newest);
    return native;
}

bool PosixFiles::exists(const std::string& path) const {
    return isRegularFile(nativePath(path));
}

std::unique_ptr<RandomFile> PosixFiles::openOrCreate(const std::string& path) {
    NativePath native = paths_.resolve(path);
    if (twins_)
        if (auto book = twins_->settle(native))
            native = *std::move(book);
    return std::make_unique<PosixRandomFile>(std::move(native));
}

std::optional<std::string> PosixFiles::readWhole(const std::string& path,
                                                 std::uint64_t limit) const {
    const NativePath native = nativePath(path);
    const FileDescriptor file = openOrFail(native, O_RDONLY);
    requireRegularFile(file, native);
    return readToEnd(file, native, limit);
}

void PosixFiles::writeWhole(const std::string& path, std::string_view bytes) {
    replace(path, bytes, Audience::AsUsual);
}

void PosixFiles::writePrivately(const std::string& path, std::string_view bytes) {
    replace(path, bytes, Audience::OwnerOnly);
}

void PosixFiles::replace(const std::string& path, std::string_view bytes, Audience audience) const {
    const NativePath native = nativePath(path);
    replaceFile(native, bytes, audience);
    clearAbandonedBeside(native);
}

void PosixFiles::append(const std::string& path, std::string_view bytes) {
    const NativePath native = nativePath(path);
    const FileDescriptor file = openOrFail(native, O_WRONLY | O_CREAT | O_APPEND);
    requireRegularFile(file, native);
    ssize_t count = 0;
    do
        count = write(file.number(), bytes.data(), bytes.size());
    while (count < 0 && errno == EINTR);
    if (count == static_cast<ssize_t>(bytes.size()))
        return;
    const int why = count < 0 ? errno : ENOSPC;
    // What was written in part goes again, unless another copy has written behind it by now.
    const off_t end = lseek(file.number(), 0, SEEK_CUR);
    struct stat status {};
    if (count > 0 && fstat(file.number(), &status) == 0 && status.st_size == end)
        (void)!ftruncate(file.number(), end - count);
    throw systemFailure("The file " + native.utf8() + " can not be written", why);
}

void PosixFiles::remove(const std::string& path) {
    const NativePath native = nativePath(path);
    if (unlink(native.c_str()) != 0)
        throw systemFailure("The file " + native.utf8() + " can not be removed", errno);
}

}  // namespace velmora
