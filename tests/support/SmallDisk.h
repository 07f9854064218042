#pragma once

#include <fcntl.h>
#include <sched.h>
#include <sys/mount.h>
#include <unistd.h>

#include <string>

namespace velmora::test {

// Mounts a file system of `size` ("64k") at `folder`, seen by this process only, which is to be a
// ChildProcess. False where the system does not allow it.
inline bool mountSmallDisk(const std::string& folder, const std::string& size) {
    const auto mapUser = [](const char* file, unsigned id) {
        const std::string line = "0 " + std::to_string(id) + " 1";
        const int map = open(file, O_WRONLY | O_CLOEXEC);
        if (map < 0)
            return;
        (void)!write(map, line.data(), line.size());
        close(map);
    };
    const unsigned user = geteuid();
    const unsigned group = getegid();
    if (unshare(CLONE_NEWUSER | CLONE_NEWNS) == 0) {
        const int groups = open("/proc/self/setgroups", O_WRONLY | O_CLOEXEC);
        if (groups >= 0) {
            (void)!write(groups, "deny", 4);
            close(groups);
        }
        mapUser("/proc/self/uid_map", user);
        mapUser("/proc/self/gid_map", group);
    } else if (unshare(CLONE_NEWNS) != 0) {
        return false;
    }
    (void)mount(nullptr, "/", nullptr, MS_REC | MS_PRIVATE, nullptr);
    return mount("tmpfs", folder.c_str(), "tmpfs", 0, ("size=" + size).c_str()) == 0;
}

}  // namespace velmora::test
