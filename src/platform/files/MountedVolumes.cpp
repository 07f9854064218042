#include "platform/files/MountedVolumes.h"

#include <fcntl.h>
#include <limits.h>
#include <mntent.h>
#include <stdio.h>
#include <sys/stat.h>
#include <sys/sysmacros.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <cstdlib>
#include <memory>
#include <optional>
#include <string_view>

#include "platform/files/FileSteps.h"

namespace velmora {
namespace {

// Folders of other machines have no device of their own.
constexpr std::array<std::string_view, 11> kOnOtherMachines{"nfs",   "nfs4", "cifs",      "smb3",
                                                            "smbfs", "9p",   "virtiofs",  "vboxsf",
                                                            "ceph",  "afs",  "fuse.sshfs"};

// What the system needs for itself, even where the user may write to it.
constexpr std::array<std::string_view, 5> kOfTheSystem{"/", "/boot", "/boot/efi", "/home", "/var"};

template <typename Names>
bool isOneOf(std::string_view name, const Names& names) {
    return std::find(names.begin(), names.end(), name) != names.end();
}

bool isVolume(const mntent& mount) {
    const std::string_view device = mount.mnt_fsname;
    const std::string_view kind = mount.mnt_type;
    if (isOneOf(mount.mnt_dir, kOfTheSystem) || kind == "squashfs")
        return false;
    return device.starts_with("/dev/") || isOneOf(kind, kOnOtherMachines);
}

bool mayBeWritten(const NativePath& folder) {
    struct stat status {};
    return stat(folder.c_str(), &status) == 0 && S_ISDIR(status.st_mode) &&
           faccessat(AT_FDCWD, folder.c_str(), W_OK | X_OK, AT_EACCESS) == 0;
}

std::vector<NativePath> foldersIn(std::string_view list) {
    std::vector<NativePath> folders;
    while (!list.empty()) {
        const std::string_view folder = list.substr(0, list.find(':'));
        if (!folder.empty() && mayBeWritten(NativePath(std::string(folder))))
            folders.emplace_back(std::string(folder));
        list.remove_prefix(std::min(folder.size() + 1, list.size()));
    }
    return folders;
}

struct CloseTable {
    void operator()(FILE* table) const { endmntent(table); }
};

}  // namespace

std::vector<NativePath> MountedVolumes::mounted() const {
    if (const char* named = std::getenv("VELMORA_VOLUMES"))
        return foldersIn(named);
    const std::unique_ptr<FILE, CloseTable> table(setmntent(table_.c_str(), "re"));
    std::vector<NativePath> roots;
    std::array<char, 4 * PATH_MAX> room{};
    mntent entry{};
    while (table && getmntent_r(table.get(), &entry, room.data(), static_cast<int>(room.size()))) {
        NativePath root(entry.mnt_dir);
        // One that is mounted over another hides it.
        roots.erase(std::remove(roots.begin(), roots.end(), root), roots.end());
        if (isVolume(entry) && mayBeWritten(root))
            roots.push_back(std::move(root));
    }
    std::stable_partition(roots.begin(), roots.end(),
                          [this](const NativePath& root) { return isRemovable(root); });
    return roots;
}

// A part of a disk is told of in a folder of the disk's.
bool MountedVolumes::isRemovable(const NativePath& root) const {
    struct stat status {};
    if (stat(root.c_str(), &status) != 0)
        return false;
    const NativePath device = NativePath(devices_) / (std::to_string(major(status.st_dev)) + ":" +
                                                      std::to_string(minor(status.st_dev)));
    for (const char* place : {"removable", "../removable"})
        if (const auto told = headOf(device / place, 1))
            return *told == "1";
    return false;
}

}  // namespace velmora
