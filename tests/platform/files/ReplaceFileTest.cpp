#include "platform/files/ReplaceFile.h"

#include <gtest/gtest.h>
#include <signal.h>
#include <sys/mount.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <unistd.h>

#include <filesystem>
#include <string>

#include "platform/Failure.h"
#include "support/ChildProcess.h"
#include "support/OrdinaryUser.h"
#include "support/SmallDisk.h"
#include "support/TemporaryFolder.h"

namespace velmora {
namespace {

namespace fs = std::filesystem;

constexpr int kCanNotMount = 77;

class ReplaceFileTest : public testing::Test {
  protected:
    [[nodiscard]] NativePath path(const std::string& name) const {
        return NativePath(folder.file(name));
    }

    // A file that may be written in a folder that may not.
    void lockIn(const std::string& bytes) const {
        fs::create_directory(folder.file("locked"));
        folder.write("locked/data", bytes);
        fs::permissions(folder.file("locked/data"), fs::perms(0666));
        fs::permissions(folder.file("locked"), fs::perms(0555));
    }
    void TearDown() override {
        std::error_code ignored;
        fs::permissions(folder.file("locked"), fs::perms(0777), ignored);
    }

    [[nodiscard]] std::size_t filesIn(const std::string& name) const {
        const fs::directory_iterator listing(folder.file(name));
        return static_cast<std::size_t>(std::distance(begin(listing), end(listing)));
    }
    [[nodiscard]] struct stat statusOf(const std::string& name) const {
        struct stat status {};
        EXPECT_EQ(stat(folder.file(name).c_str(), &status), 0);
        return status;
    }

    test::TemporaryFolder folder;
};

TEST_F(ReplaceFileTest, AFileInAFolderThatMayNotBeWrittenIsWrittenInPlace) {
    lockIn("the old text");
    const auto node = statusOf("locked/data").st_ino;
    {
        const test::OrdinaryUser user(folder.path());
        replaceFile(path("locked/data"), "new");
        EXPECT_EQ(folder.read("locked/data"), "new");
        replaceFile(path("locked/data"), "a longer text than the old one");
    }
    EXPECT_EQ(folder.read("locked/data"), "a longer text than the old one");
    EXPECT_EQ(statusOf("locked/data").st_ino, node);
    EXPECT_EQ(filesIn("locked"), 1U);
}

TEST_F(ReplaceFileTest, NoRoomInPlaceLeavesTheOldBytes) {
    lockIn("the old text");
    test::ChildProcess child([&] {
        signal(SIGXFSZ, SIG_IGN);
        const test::OrdinaryUser user(folder.path());
        const rlimit limit{1000, 1000};
        if (setrlimit(RLIMIT_FSIZE, &limit) != 0)
            return 50;
        try {
            replaceFile(path("locked/data"), std::string(2000, 'x'));
        } catch (const Failure&) {
            return 0;
        }
        return 1;
    });
    EXPECT_EQ(child.wait(), 0);
    EXPECT_EQ(folder.read("locked/data"), "the old text");
}

TEST_F(ReplaceFileTest, TheLongestNamesAreReplaced) {
    const std::string name(250, 'n');
    folder.write(name, "old");
    const auto node = statusOf(name).st_ino;
    replaceFile(path(name), "new");
    EXPECT_EQ(folder.read(name), "new");
    EXPECT_NE(statusOf(name).st_ino, node) << "a new file took the name";
    std::string umlauts;
    while (umlauts.size() < 252)
        umlauts += "\xC3\xBC";
    replaceFile(path("x" + umlauts), "made");
    EXPECT_EQ(folder.read("x" + umlauts), "made");
    EXPECT_EQ(filesIn(""), 2U);
}

TEST_F(ReplaceFileTest, AMountedFileIsWrittenInPlace) {
    fs::create_directory(folder.file("disk"));
    test::ChildProcess child([&] {
        if (!test::mountSmallDisk(folder.file("disk"), "64k"))
            return kCanNotMount;
        folder.write("disk/there", "old");
        folder.write("disk/here", "");
        if (mount(folder.file("disk/there").c_str(), folder.file("disk/here").c_str(), nullptr,
                  MS_BIND, nullptr) != 0)
            return kCanNotMount;
        replaceFile(path("disk/here"), "new");
        return folder.read("disk/there") == "new" && filesIn("disk") == 2 ? 0 : 1;
    });
    const int code = child.wait();
    if (code == kCanNotMount)
        GTEST_SKIP() << "this system lets no test mount a file";
    EXPECT_EQ(code, 0);
}

TEST_F(ReplaceFileTest, ALinkWithoutAnEndGetsOne) {
    fs::create_directory(folder.file("elsewhere"));
    fs::create_symlink("elsewhere/second", folder.file("first"));
    fs::create_symlink(folder.file("elsewhere/data"), folder.file("elsewhere/second"));
    replaceFile(path("first"), "made");
    EXPECT_EQ(folder.read("elsewhere/data"), "made");
    EXPECT_TRUE(fs::is_symlink(folder.file("first")));
    fs::create_symlink("nowhere/data", folder.file("lost"));
    EXPECT_THROW(replaceFile(path("lost"), "x"), Failure);
    fs::create_symlink("round", folder.file("round"));
    EXPECT_THROW(replaceFile(path("round"), "x"), Failure);
}

TEST_F(ReplaceFileTest, ModeAndOwnerStay) {
    folder.write("data", "old");
    fs::permissions(folder.file("data"), fs::perms(0664));
    if (geteuid() == 0)
        ASSERT_EQ(chown(folder.file("data").c_str(), 65534, 65533), 0);
    const struct stat before = statusOf("data");
    replaceFile(path("data"), "new");
    EXPECT_EQ(statusOf("data").st_mode, before.st_mode);
    EXPECT_EQ(statusOf("data").st_uid, before.st_uid);
    EXPECT_EQ(statusOf("data").st_gid, before.st_gid);
}

TEST_F(ReplaceFileTest, AFileOfAnotherOwnerKeepsIt) {
    if (geteuid() != 0)
        GTEST_SKIP() << "only root can make a file of another owner";
    folder.write("data", "old");
    fs::permissions(folder.file("data"), fs::perms(0666));
    {
        const test::OrdinaryUser user(folder.path());
        replaceFile(path("data"), "new");
    }
    EXPECT_EQ(folder.read("data"), "new");
    EXPECT_EQ(statusOf("data").st_uid, 0U);
    EXPECT_EQ(statusOf("data").st_mode & 07777, 0666U);
    EXPECT_EQ(filesIn(""), 1U);
}

TEST_F(ReplaceFileTest, NewFilesFollowTheMaskOrAreForTheirOwnerOnly) {
    const mode_t before = umask(0022);
    replaceFile(path("shared"), "x");
    replaceFile(path("private"), "x", Audience::OwnerOnly);
    umask(before);
    EXPECT_EQ(statusOf("shared").st_mode & 07777, 0644U);
    EXPECT_EQ(statusOf("private").st_mode & 07777, 0600U);
    fs::permissions(folder.file("private"), fs::perms(0640));
    replaceFile(path("private"), "y", Audience::OwnerOnly);
    EXPECT_EQ(statusOf("private").st_mode & 07777, 0640U);
}

}  // namespace
}  // namespace velmora
