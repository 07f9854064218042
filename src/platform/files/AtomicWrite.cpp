#include "platform/files/AtomicWrite.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <cstdlib>
#include <memory>
#include <utility>

#include "platform/Failure.h"
#include "platform/files/FileDescriptor.h"
#include "platform/files/FileSteps.h"

namespace velmora {
namespace {

// A new file beside the one to be replaced; gone again unless it was moved into place.
class FileBeside {
  public:
    explicit FileBeside(const NativePath& path)
        : name_(path.utf8() + ".XXXXXX"), file_(mkostemp(name_.data(), O_CLOEXEC)) {
        remains_ = file_.isOpen();
    }
    FileBeside(const FileBeside&) = delete;
    FileBeside& operator=(const FileBeside&) = delete;
    ~FileBeside() {
        if (remains_)
            unlink(name_.c_str());
    }

    [[nodiscard]] bool isOpen() const { return file_.isOpen(); }

    [[nodiscard]] bool fill(std::string_view bytes, mode_t mode) const {
        if (const int why = writeFully(file_, bytes)) {
            errno = why;
            return false;
        }
        return fchmod(file_.number(), mode) == 0 && fsync(file_.number()) == 0;
    }

    [[nodiscard]] bool moveTo(const NativePath& path) {
        if (rename(name_.c_str(), path.c_str()) != 0)
            return false;
        remains_ = false;
        return true;
    }

  private:
    std::string name_;
    FileDescriptor file_;
    bool remains_ = false;
};

NativePath followLinks(const NativePath& path) {
    const std::unique_ptr<char, decltype(&std::free)> real(realpath(path.c_str(), nullptr),
                                                           &std::free);
    return real ? NativePath(real.get()) : path;
}

mode_t modeOfNewFiles() {
    const mode_t mask = umask(0);
    umask(mask);
    return 0666 & ~mask;
}

// The permissions that the file has, or is to have. Throws Failure where it may not be replaced.
mode_t modeFor(const NativePath& path) {
    struct stat status {};
    if (stat(path.c_str(), &status) != 0)
        return modeOfNewFiles();
    if (!S_ISREG(status.st_mode))
        throw Failure("The file " + path.utf8() + " can not be written: it is no ordinary file.");
    if (faccessat(AT_FDCWD, path.c_str(), W_OK, AT_EACCESS) != 0)
        throw systemFailure("The file " + path.utf8() + " can not be written", errno);
    return status.st_mode & 07777;
}

}  // namespace

void writeAtomically(const NativePath& path, std::string_view bytes) {
    const NativePath target = followLinks(path);
    const mode_t mode = modeFor(target);
    FileBeside beside(target);
    if (!beside.isOpen() || !beside.fill(bytes, mode) || !beside.moveTo(target))
        throw systemFailure("The file " + target.utf8() + " can not be written", errno);
    flushFolderOf(target);
}

}  // namespace velmora
