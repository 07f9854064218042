#include "platform/AtomicWrite.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <cstdlib>
#include <memory>
#include <utility>

#include "platform/Failure.h"
#include "platform/FileDescriptor.h"
#include "platform/NativePaths.h"

namespace velmora {
namespace {

// A new file beside the one to be replaced; gone again unless it was moved into place.
class FileBeside {
  public:
    explicit FileBeside(const std::string& path)
        : name_(path + ".XXXXXX"), file_(mkostemp(name_.data(), O_CLOEXEC)) {
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
        while (!bytes.empty()) {
            const ssize_t count = write(file_.number(), bytes.data(), bytes.size());
            if (count < 0 && errno != EINTR)
                return false;
            bytes.remove_prefix(count < 0 ? 0 : static_cast<std::size_t>(count));
        }
        return fchmod(file_.number(), mode) == 0 && fsync(file_.number()) == 0;
    }

    [[nodiscard]] bool moveTo(const std::string& path) {
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

std::string followLinks(const std::string& path) {
    const std::unique_ptr<char, decltype(&std::free)> real(realpath(path.c_str(), nullptr),
                                                           &std::free);
    return real ? std::string(real.get()) : path;
}

mode_t modeOfNewFiles() {
    const mode_t mask = umask(0);
    umask(mask);
    return 0666 & ~mask;
}

// The permissions that the file has, or is to have. Throws Failure where it may not be replaced.
mode_t modeFor(const std::string& path) {
    struct stat status {};
    if (stat(path.c_str(), &status) != 0)
        return modeOfNewFiles();
    if (!S_ISREG(status.st_mode))
        throw Failure("The file " + path + " can not be written: it is no ordinary file.");
    if (faccessat(AT_FDCWD, path.c_str(), W_OK, AT_EACCESS) != 0)
        throw systemFailure("The file " + path + " can not be written", errno);
    return status.st_mode & 07777;
}

void flushFolder(const std::string& path) {
    const std::string folder = splitNativePath(path).folder;
    const FileDescriptor file = openFile(folder.empty() ? "." : folder, O_RDONLY | O_DIRECTORY);
    if (file.isOpen())
        fsync(file.number());
}

}  // namespace

void writeAtomically(const std::string& nativePath, std::string_view bytes) {
    const std::string path = followLinks(nativePath);
    const mode_t mode = modeFor(path);
    FileBeside beside(path);
    if (!beside.isOpen() || !beside.fill(bytes, mode) || !beside.moveTo(path))
        throw systemFailure("The file " + path + " can not be written", errno);
    flushFolder(path);
}

}  // namespace velmora
