#include "platform/files/ReplaceFile.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <optional>
#include <string>

#include "platform/Failure.h"
#include "platform/files/FileBeside.h"
#include "platform/files/FileSteps.h"
#include "platform/files/OverwriteFile.h"

namespace velmora {
namespace {

Failure notWritten(const NativePath& path, int why) {
    return systemFailure("The file " + path.utf8() + " can not be written", why);
}

// The status of the file to be replaced; nothing when there is none. Throws Failure where it may
// not be replaced.
std::optional<struct stat> statusToKeep(const NativePath& path) {
    struct stat status {};
    if (stat(path.c_str(), &status) != 0)
        return std::nullopt;
    if (!S_ISREG(status.st_mode))
        throw Failure("The file " + path.utf8() + " can not be written: it is no ordinary file.");
    if (faccessat(AT_FDCWD, path.c_str(), W_OK, AT_EACCESS) != 0)
        throw notWritten(path, errno);
    return status;
}

// What forbids a second file or its rename, but may allow the bytes of the first to be written.
bool forbidsOnlyReplacing(int why) {
    constexpr std::array kReasons{EACCES, EPERM,  EROFS,      EBUSY,
                                  EXDEV,  ENOSYS, EOPNOTSUPP, ENAMETOOLONG};
    return std::find(kReasons.begin(), kReasons.end(), why) != kReasons.end();
}

}  // namespace

void replaceFile(const NativePath& path, std::string_view bytes, Audience audience) {
    const NativePath target = endOfLinks(path);
    const auto old = statusToKeep(target);
    const bool isPrivate = old || audience == Audience::OwnerOnly;
    FileBeside beside(target, isPrivate ? kForOwner : kForEverybody);
    // Of another owner, the file can only keep it when it stays the same file.
    int why = beside.why();
    if (why == 0 && old)
        why = beside.belongAs(*old);
    const bool mayBeReplaced = why == 0;
    if (mayBeReplaced) {
        why = beside.fill(bytes);
        if (why != 0)
            throw notWritten(target, why);
        why = beside.moveTo(target);
    }
    if (why == 0)
        return flushFolderOf(target);
    if (!old || !forbidsOnlyReplacing(why))
        throw notWritten(target, why);
    overwriteFile(target, bytes);
}

}  // namespace velmora
