#include "platform/files/ProgramFolder.h"

#include <limits.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cstdlib>
#include <string>

namespace velmora {
namespace {

constexpr mode_t kForOwner = 0700;
constexpr mode_t kForEverybody = 0777;  // less the user's mask

// Makes a folder and those above it that are missing; these, by the desktop's convention, for
// their owner only.
void makeFolder(const std::string& folder, mode_t mode) {
    for (std::size_t slash = folder.find('/', 1); slash != std::string::npos;
         slash = folder.find('/', slash + 1))
        (void)mkdir(folder.substr(0, slash).c_str(), kForOwner);
    (void)mkdir(folder.c_str(), mode);
}

// A folder of the user's by the desktop's convention: `variable` if it names an absolute path,
// else `fallback` below the home folder; in it "velmora".
NativePath userFolder(const char* variable, const char* fallback, mode_t mode) {
    const char* named = std::getenv(variable);
    const char* home = std::getenv("HOME");
    const NativePath base =
        named && *named == '/' ? NativePath(named) : NativePath(home ? home : "/") / fallback;
    NativePath folder = base / "velmora";
    makeFolder(folder.utf8(), mode);
    return folder;
}

NativePath folderOfExecutable() {
    std::string executable(PATH_MAX, '\0');
    const ssize_t length = readlink("/proc/self/exe", executable.data(), executable.size());
    executable.resize(length < 0 ? 0 : static_cast<std::size_t>(length));
    return NativePath(executable.substr(0, executable.rfind('/')));
}

}  // namespace

NativePath programFolder() {
    NativePath folder = folderOfExecutable();
    if (!folder.utf8().empty() && access(folder.c_str(), W_OK) == 0)
        return folder;
    return userFolder("XDG_DATA_HOME", ".local/share", kForEverybody);
}

NativePath configurationFolder() {
    return userFolder("XDG_CONFIG_HOME", ".config", kForOwner);
}

NativePath stateFolder() {
    return userFolder("XDG_STATE_HOME", ".local/state", kForOwner);
}

}  // namespace velmora
