#include "platform/files/FileSteps.h"

#include <fcntl.h>
#include <stdio.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <string_view>

#include "platform/Failure.h"
#include "platform/files/FileComparison.h"
#include "platform/files/FileDescriptor.h"
#include "platform/files/TemporaryName.h"

namespace velmora {
namespace {

constexpr std::size_t kBlock = 1 << 16;

std::string quoted(const NativePath& path) {
    return "\"" + path.utf8() + "\"";
}

// Up to a block of bytes from `offset`; fewer only at the end.
std::string_view blockAt(const FileDescriptor& file, const NativePath& path, std::size_t offset,
                         std::string& buffer) {
    buffer.resize(kBlock);
    return std::string_view(buffer).substr(
        0, readFully(file, path, offset, buffer.data(), buffer.size()));
}

}  // namespace

bool isRegularFile(const NativePath& path) {
    struct stat status {};
    return stat(path.c_str(), &status) == 0 && S_ISREG(status.st_mode);
}

bool isNameTaken(const NativePath& path) {
    struct stat status {};
    return lstat(path.c_str(), &status) == 0;
}

std::optional<std::string> headOf(const NativePath& path, std::size_t limit) {
    std::optional<std::string> head;
    if (isRegularFile(path))
        ignoringErrors([&] {
            const FileDescriptor file = openOrFail(path, O_RDONLY);
            std::string buffer;
            head = blockAt(file, path, 0, buffer).substr(0, limit);
        });
    return head;
}

bool sameBytes(const NativePath& a, const NativePath& b) {
    bool same = false;
    ignoringErrors([&] {
        FileComparison comparison(a, b);
        FileComparison::Result result = comparison.step();
        while (result == FileComparison::Result::Unknown)
            result = comparison.step();
        same = result == FileComparison::Result::Same;
    });
    return same;
}

void flushFile(const NativePath& path) {
    const FileDescriptor file = openOrFail(path, O_RDONLY);
    if (const int why = flushBytes(file))
        throw systemFailure(quoted(path) + " can not be handed to the disk", why);
}

void flushFolderOf(const NativePath& path) {
    const NativePath folder = path.folder();
    // Some file systems can not flush a folder; the rename then rests on their own order.
    const FileDescriptor file =
        openFile(folder == NativePath() ? NativePath(".") : folder, O_RDONLY | O_DIRECTORY);
    if (file.isOpen())
        (void)fsync(file.number());
}

void copyFile(const NativePath& from, const NativePath& to) {
    const FileDescriptor source = openOrFail(from, O_RDONLY);
    const FileDescriptor target = openOrFail(to, O_WRONLY | O_CREAT | O_TRUNC);
    std::string buffer;
    for (std::size_t offset = 0;; offset += kBlock) {
        const std::string_view bytes = blockAt(source, from, offset, buffer);
        if (const int why = writeFully(target, bytes))
            throw systemFailure(quoted(to) + " can not be written", why);
        if (bytes.size() < kBlock)
            break;
    }
    if (const int why = flushBytes(target))
        throw systemFailure(quoted(to) + " can not be handed to the disk", why);
}

void keepUnderSecondName(const NativePath& from, const NativePath& to) {
    if (link(from.c_str(), to.c_str()) == 0)
        return flushFolderOf(to);
    if (errno != EPERM && errno != EOPNOTSUPP && errno != ENOSYS && errno != EMLINK)
        throw systemFailure(quoted(from) + " can not be kept as " + quoted(to), errno);
    const NativePath beside = temporaryBeside(to);
    try {
        copyFile(from, beside);
        renameOver(beside, to);
    } catch (const Failure&) {
        ignoringErrors([&] { removeIfThere(beside); });
        throw;
    }
}

void renameOver(const NativePath& from, const NativePath& to) {
    if (rename(from.c_str(), to.c_str()) != 0)
        throw systemFailure(quoted(from) + " can not be renamed to " + quoted(to), errno);
    flushFolderOf(to);
}

void removeIfThere(const NativePath& path) {
    if (unlink(path.c_str()) != 0 && errno != ENOENT)
        throw systemFailure(quoted(path) + " can not be removed", errno);
}

void makePrivateFile(const NativePath& path) {
    const FileDescriptor file = openFile(path, O_RDWR | O_CREAT | O_EXCL, 0600);
    if (!file.isOpen() && errno != EEXIST)
        throw systemFailure(quoted(path) + " can not be made", errno);
}

}  // namespace velmora
