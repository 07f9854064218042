#include "platform/files/ProgramFolder.h"

#include <unistd.h>

#include <cstdlib>
#include <filesystem>

#include "platform/Failure.h"

namespace velmora {
namespace {

namespace fs = std::filesystem;

// A folder of the user's by the desktop's convention: `variable` if it names an absolute path,
// else `fallback` below the home folder; in it "velmora".
fs::path userFolder(const char* variable, const char* fallback) {
    const char* named = std::getenv(variable);
    const char* home = std::getenv("HOME");
    fs::path base = named ? named : "";
    if (!base.is_absolute())
        base = fs::path(home ? home : "/") / fallback;
    fs::path folder = base / "velmora";
    std::error_code error;
    fs::create_directories(folder, error);
    if (!fs::is_directory(folder))
        throw Failure("The folder " + folder.string() + " can not be made: " + error.message() +
                      ".");
    return folder;
}

}  // namespace

NativePath programFolder() {
    std::error_code error;
    const fs::path executable = fs::read_symlink("/proc/self/exe", error);
    const fs::path folder = executable.parent_path();
    if (!error && access(folder.c_str(), W_OK) == 0)
        return NativePath(folder.string());
    return NativePath(userFolder("XDG_DATA_HOME", ".local/share").string());
}

NativePath configurationFolder() {
    return NativePath(userFolder("XDG_CONFIG_HOME", ".config").string());
}

}  // namespace velmora
