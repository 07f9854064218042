#include "platform/files/FolderSteps.h"

#include <dirent.h>
#include <limits.h>
#include <sys/stat.h>
#include <sys/statvfs.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <memory>

#include "platform/Failure.h"
#include "platform/files/FileSteps.h"

namespace velmora {
namespace {

struct CloseFolder {
    void operator()(DIR* folder) const { closedir(folder); }
};

}  // namespace

std::vector<std::string> filesIn(const NativePath& folder) {
    const std::unique_ptr<DIR, CloseFolder> listing(opendir(folder.c_str()));
    std::vector<std::string> names;
    while (const dirent* entry = listing ? readdir(listing.get()) : nullptr)
        if (isRegularFile(folder / entry->d_name))
            names.emplace_back(entry->d_name);
    std::sort(names.begin(), names.end());
    return names;
}

void makePrivateFolder(const NativePath& folder) {
    if (mkdir(folder.c_str(), 0700) != 0 && errno != EEXIST)
        throw systemFailure("The folder " + folder.utf8() + " can not be made", errno);
}

std::uint64_t freeRoomAt(const NativePath& folder) {
    struct statvfs status {};
    return statvfs(folder.c_str(), &status) == 0
               ? std::uint64_t{status.f_bavail} * std::uint64_t{status.f_frsize}
               : 0;
}

std::uint64_t sizeOfFile(const NativePath& path) {
    struct stat status {};
    return stat(path.c_str(), &status) == 0 ? static_cast<std::uint64_t>(status.st_size) : 0;
}

std::string nameOfMachine() {
    std::array<char, HOST_NAME_MAX + 1> name{};
    return gethostname(name.data(), name.size() - 1) == 0 ? std::string(name.data()) : "";
}

}  // namespace velmora
