#include "platform/files/FileBeside.h"

#include <fcntl.h>
#include <limits.h>
#include <stdio.h>
#include <unistd.h>

#include <cerrno>
#include <string>

#include "platform/Failure.h"
#include "platform/files/TemporaryName.h"

namespace velmora {

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
    throw systemFailure("The file " + path.utf8() + " can not be written", ELOOP);
}

FileBeside::FileBeside(const NativePath& path, unsigned mode)
    : name_(temporaryBeside(path)), file_(openNew(mode)) {
    why_ = file_.isOpen() ? 0 : errno;
    remains_ = file_.isOpen();
}

FileBeside::~FileBeside() {
    if (remains_)
        unlink(name_.c_str());
}

int FileBeside::fill(std::string_view bytes) const {
    const int why = writeFully(file_, bytes);
    return why == 0 ? flushBytes(file_) : why;
}

int FileBeside::cutTo(std::uint64_t size) const {
    if (ftruncate(file_.number(), static_cast<off_t>(size)) != 0 ||
        lseek(file_.number(), static_cast<off_t>(size), SEEK_SET) < 0)
        return errno;
    return 0;
}

int FileBeside::belongAs(const struct stat& status) const {
    struct stat own {};
    if (fstat(file_.number(), &own) != 0)
        return errno;
    const bool same = status.st_uid == own.st_uid && status.st_gid == own.st_gid;
    if (!same && fchown(file_.number(), status.st_uid, status.st_gid) != 0)
        return errno;
    return fchmod(file_.number(), status.st_mode & 07777) == 0 ? 0 : errno;
}

void FileBeside::resemble(const struct stat& status) const {
    constexpr unsigned kGroup = 0070;
    constexpr unsigned kGroupOverOthers = 8;
    unsigned mode = status.st_mode & 0777;
    struct stat own {};
    const bool sameGroup = fstat(file_.number(), &own) == 0 && own.st_gid == status.st_gid;
    if (!sameGroup && fchown(file_.number(), static_cast<uid_t>(-1), status.st_gid) != 0)
        mode &= ~kGroup | (mode * kGroupOverOthers & kGroup);
    (void)!fchmod(file_.number(), mode);
}

int FileBeside::moveTo(const NativePath& path) {
    if (rename(name_.c_str(), path.c_str()) != 0)
        return errno;
    remains_ = false;
    return 0;
}

// The name is one of this run: what lies there is what this run could not remove earlier.
FileDescriptor FileBeside::openNew(unsigned mode) const {
    constexpr int kFlags = O_RDWR | O_CREAT | O_EXCL;
    FileDescriptor file = openFile(name_, kFlags, mode);
    if (file.isOpen() || errno != EEXIST || unlink(name_.c_str()) != 0)
        return file;
    return openFile(name_, kFlags, mode);
}

}  // namespace velmora
