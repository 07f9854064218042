#include "platform/files/ReplaceFile.h"

#include <fcntl.h>
#include <limits.h>
#include <stdio.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <optional>
#include <string>

#include "platform/Failure.h"
#include "platform/files/FileDescriptor.h"
#include "platform/files/FileSteps.h"
#include "platform/files/OverwriteFile.h"
#include "platform/files/TemporaryName.h"

namespace velmora {
namespace {

constexpr unsigned kForEverybody = 0666;  // less the user's mask
constexpr unsigned kForOwner = 0600;

Failure notWritten(const NativePath& path, int why) {
    return systemFailure("The file " + path.utf8() + " can not be written", why);
}

// Where a path leads by links of the file itself, whether anything is there or not.
NativePath endOfLinks(const NativePath& path) {
    constexpr int kMostLinks = 40;
    NativePath end = path;
    for (int i = 0; i < kMostLinks; ++i) {
        std::string link(PATH_MAX, '\0');
        const ssize_t length = readlink(end.c_str(), link.data(), link.size());
        if (length < 0)
            return end;
        link.resize(static_cast<std::size_t>(length));
        end = link.starts_with('/') ? NativePath(link) : end.sibling(link);
    }
    throw notWritten(path, ELOOP);
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

// A new file beside the one to be replaced; gone again unless it was moved into place.
class FileBeside {
  public:
    FileBeside(const NativePath& path, unsigned mode)
        : name_(temporaryBeside(path)), file_(openNew(mode)) {
        why_ = file_.isOpen() ? 0 : errno;
        remains_ = file_.isOpen();
    }
    FileBeside(const FileBeside&) = delete;
    FileBeside& operator=(const FileBeside&) = delete;
    ~FileBeside() {
        if (remains_)
            unlink(name_.c_str());
    }

    // 0, or why it could not be made.
    [[nodiscard]] int why() const { return why_; }

    // These return 0, or the system's reason.

    [[nodiscard]] int fill(std::string_view bytes) const {
        const int why = writeFully(file_, bytes);
        return why == 0 ? flushBytes(file_) : why;
    }

    [[nodiscard]] int belongAs(const struct stat& status) const {
        struct stat own {};
        if (fstat(file_.number(), &own) != 0)
            return errno;
        const bool same = status.st_uid == own.st_uid && status.st_gid == own.st_gid;
        if (!same && fchown(file_.number(), status.st_uid, status.st_gid) != 0)
            return errno;
        return fchmod(file_.number(), status.st_mode & 07777) == 0 ? 0 : errno;
    }

    [[nodiscard]] int moveTo(const NativePath& path) {
        if (rename(name_.c_str(), path.c_str()) != 0)
            return errno;
        remains_ = false;
        return 0;
    }

  private:
    // The name is one of this run: what lies there is what this run could not remove earlier.
    [[nodiscard]] FileDescriptor openNew(unsigned mode) const {
        constexpr int kFlags = O_WRONLY | O_CREAT | O_EXCL;
        FileDescriptor file = openFile(name_, kFlags, mode);
        if (file.isOpen() || errno != EEXIST || unlink(name_.c_str()) != 0)
            return file;
        return openFile(name_, kFlags, mode);
    }

    NativePath name_;
    FileDescriptor file_;
    int why_ = 0;
    bool remains_ = false;
};

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
