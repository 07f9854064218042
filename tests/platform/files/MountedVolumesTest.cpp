#include "platform/files/MountedVolumes.h"

#include <gmock/gmock.h>
#include <sys/stat.h>
#include <sys/sysmacros.h>

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <string>
#include <vector>

#include "support/ChildProcess.h"
#include "support/OrdinaryUser.h"
#include "support/SmallDisk.h"
#include "support/TemporaryFolder.h"

namespace velmora {
namespace {

namespace fs = std::filesystem;
using testing::ElementsAre;
using testing::IsEmpty;

constexpr int kCanNotMount = 77;

// A table of mounts on folders of the test's own.
class MountedVolumesTest : public testing::Test {
  protected:
    ~MountedVolumesTest() override { unsetenv("VELMORA_VOLUMES"); }

    [[nodiscard]] NativePath root(const std::string& name) const {
        fs::create_directories(folder.file(name));
        return NativePath(folder.file(name));
    }
    void mount(const std::string& device, const std::string& name, const std::string& kind) {
        mountAt(device, root(name).utf8(), kind);
    }
    void mountAt(const std::string& device, const std::string& place, const std::string& kind) {
        table += device + " " + place + " " + kind + " rw 0 0\n";
        folder.write("table", table);
    }
    [[nodiscard]] std::vector<NativePath> mounted() const { return volumes.mounted(); }

    test::TemporaryFolder folder;
    std::string table;
    MountedVolumes volumes{folder.file("table"), folder.file("devices")};
};

TEST_F(MountedVolumesTest, DisksAndFoldersOfOtherMachinesAreVolumes) {
    mount("/dev/sdb1", "stick", "vfat");
    mount("/dev/sdc", "card", "ext4");
    mount("server:/share", "share", "nfs4");
    mount("//server/share", "office", "cifs");
    mount("me@server:/", "far", "fuse.sshfs");
    EXPECT_THAT(mounted(), ElementsAre(root("stick"), root("card"), root("share"), root("office"),
                                       root("far")));
}

TEST_F(MountedVolumesTest, WhatTheSystemMakesUpIsNone) {
    for (const char* kind : {"proc", "sysfs", "tmpfs", "devtmpfs", "cgroup2", "overlay", "debugfs",
                             "fuse.portal", "autofs", "nsfs"})
        mount(kind, kind, kind);
    mount("/dev/loop3", "package", "squashfs");
    mountAt("/dev/sda1", "/", "ext4");
    EXPECT_THAT(mounted(), IsEmpty());
}

TEST_F(MountedVolumesTest, WhatTheUserMayNotWriteIsNone) {
    mount("/dev/sdb1", "disc", "iso9660");
    mount("/dev/sdc1", "stick", "vfat");
    folder.write("file", "");
    mountAt("/dev/sdd1", folder.file("file"), "ext4");
    mountAt("/dev/sde1", folder.file("gone"), "ext4");
    fs::permissions(root("disc").utf8(), fs::perms(0555));
    fs::permissions(root("stick").utf8(), fs::perms(0777));
    const test::OrdinaryUser user(folder.path());
    EXPECT_THAT(mounted(), ElementsAre(NativePath(folder.file("stick"))));
}

TEST_F(MountedVolumesTest, OneThatIsMountedOverAnotherHidesIt) {
    mount("/dev/sdb1", "place", "vfat");
    mount("tmpfs", "place", "tmpfs");
    EXPECT_THAT(mounted(), IsEmpty());
    mount("/dev/sdc1", "place", "vfat");
    EXPECT_THAT(mounted(), ElementsAre(root("place")));
}

TEST_F(MountedVolumesTest, NamesWithBlanksAreRead) {
    (void)root("My Stick");
    mountAt("/dev/sdb1", folder.file("My\\040Stick"), "vfat");
    EXPECT_THAT(mounted(), ElementsAre(root("My Stick")));
}

TEST_F(MountedVolumesTest, WhatCanBeTakenOutStandsFirst) {
    mount("server:/share", "share", "nfs");
    mount("/dev/sdb1", "stick", "vfat");
    for (const char* place : {"/removable", "/../removable"}) {
        test::ChildProcess child([&] {
            // A device of its own.
            if (!test::mountSmallDisk(folder.file("stick"), "64k"))
                return kCanNotMount;
            struct stat status {};
            if (stat(folder.file("stick").c_str(), &status) != 0)
                return 1;
            const std::string device =
                folder.file("devices/" + std::to_string(major(status.st_dev)) + ":" +
                            std::to_string(minor(status.st_dev)));
            fs::create_directories(device);
            std::ofstream(device + place) << "1\n";
            const std::vector<NativePath> there = mounted();
            return there.size() == 2 && there.front() == NativePath(folder.file("stick")) ? 0 : 2;
        });
        const int code = child.wait();
        fs::remove_all(folder.file("devices"));
        if (code == kCanNotMount)
            GTEST_SKIP() << "this system lets no test mount a disk";
        EXPECT_EQ(code, 0) << place;
    }
}

TEST_F(MountedVolumesTest, TheEnvironmentMayNameThem) {
    mount("/dev/sdb1", "stick", "vfat");
    setenv("VELMORA_VOLUMES",
           (root("a").utf8() + ":" + folder.file("gone") + "::" + root("b").utf8()).c_str(), 1);
    EXPECT_THAT(mounted(), ElementsAre(root("a"), root("b")));
    setenv("VELMORA_VOLUMES", "", 1);
    EXPECT_THAT(mounted(), IsEmpty());
}

TEST_F(MountedVolumesTest, ATableThatCanNotBeReadHasNone) {
    EXPECT_THAT(mounted(), IsEmpty());
}

TEST(MountedVolumesOfThisMachine, AreRead) {
    for (const NativePath& volume : MountedVolumes().mounted())
        EXPECT_TRUE(fs::is_directory(volume.utf8()));
}

}  // namespace
}  // namespace velmora
