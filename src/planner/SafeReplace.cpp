#include "planner/SafeReplace.h"

#include <fcntl.h>
#include <unistd.h>

#include <cerrno>
#include <cstdio>
#include <filesystem>

#include "platform/Failure.h"

namespace velmora {

namespace {

class Descriptor {
  public:
    Descriptor(const std::string& path, int flags) : number_(::open(path.c_str(), flags, 0644)) {
        if (number_ < 0)
            throw systemFailure("\"" + path + "\" can not be opened", errno);
    }
    ~Descriptor() { ::close(number_); }
    Descriptor(const Descriptor&) = delete;
    Descriptor& operator=(const Descriptor&) = delete;

    [[nodiscard]] int number() const { return number_; }

  private:
    int number_;
};

void writeAll(int descriptor, const char* bytes, std::size_t count, const std::string& path) {
    while (count > 0) {
        const ssize_t written = ::write(descriptor, bytes, count);
        if (written < 0 && errno == EINTR)
            continue;
        if (written < 0)
            throw systemFailure("\"" + path + "\" can not be written", errno);
        bytes += written;
        count -= static_cast<std::size_t>(written);
    }
}

}  // namespace

void flushFile(const std::string& path) {
    const Descriptor file(path, O_RDONLY | O_CLOEXEC);
    if (::fsync(file.number()) != 0)
        throw systemFailure("\"" + path + "\" can not be handed to the disk", errno);
}

void flushFolderOf(const std::string& path) {
    const auto folder = std::filesystem::path(path).parent_path();
    const Descriptor handle(folder.empty() ? "." : folder.string(), O_RDONLY | O_CLOEXEC);
    // Some file systems can not flush a folder; the rename then rests on their own order.
    (void)::fsync(handle.number());
}

void copyFile(const std::string& from, const std::string& to) {
    const Descriptor source(from, O_RDONLY | O_CLOEXEC);
    const Descriptor target(to, O_WRONLY | O_CREAT | O_TRUNC | O_CLOEXEC);
    std::string buffer(1 << 16, '\0');
    while (true) {
        const ssize_t got = ::read(source.number(), buffer.data(), buffer.size());
        if (got < 0 && errno == EINTR)
            continue;
        if (got < 0)
            throw systemFailure("\"" + from + "\" can not be read", errno);
        if (got == 0)
            break;
        writeAll(target.number(), buffer.data(), static_cast<std::size_t>(got), to);
    }
    if (::fsync(target.number()) != 0)
        throw systemFailure("\"" + to + "\" can not be handed to the disk", errno);
}

void keepUnderSecondName(const std::string& from, const std::string& to) {
    if (::link(from.c_str(), to.c_str()) == 0)
        return flushFolderOf(to);
    if (errno != EPERM && errno != EOPNOTSUPP && errno != ENOSYS && errno != EMLINK)
        throw systemFailure("\"" + from + "\" can not be kept as \"" + to + "\"", errno);
    const std::string beside = to + ".copying";
    copyFile(from, beside);
    renameOver(beside, to);
}

void renameOver(const std::string& from, const std::string& to) {
    if (std::rename(from.c_str(), to.c_str()) != 0)
        throw systemFailure("\"" + from + "\" can not be renamed to \"" + to + "\"", errno);
    flushFolderOf(to);
}

void removeIfThere(const std::string& path) {
    if (::unlink(path.c_str()) != 0 && errno != ENOENT)
        throw systemFailure("\"" + path + "\" can not be removed", errno);
}

}  // namespace velmora
