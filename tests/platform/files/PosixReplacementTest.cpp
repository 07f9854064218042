#include "platform/files/PosixReplacement.h"

#include <gtest/gtest.h>
#include <signal.h>
#include <sys/stat.h>
#include <unistd.h>

#include <filesystem>
#include <string>

#include "platform/Failure.h"
#include "platform/StorageFailure.h"
#include "support/ChildProcess.h"
#include "support/OrdinaryUser.h"
#include "support/SmallDisk.h"
#include "support/TemporaryFolder.h"

namespace velmora {
namespace {

namespace fs = std::filesystem;

constexpr int kCanNotMount = 77;

class PosixReplacementTest : public testing::Test {
  protected:
    [[nodiscard]] NativePath path(const std::string& name) const {
        return NativePath(folder.file(name));
    }
    [[nodiscard]] std::size_t files() const {
        const fs::directory_iterator listing(folder.path());
        return static_cast<std::size_t>(std::distance(begin(listing), end(listing)));
    }
    [[nodiscard]] unsigned modeOf(const std::string& name) const {
        struct stat status {};
        EXPECT_EQ(stat(folder.file(name).c_str(), &status), 0);
        return status.st_mode & 07777;
    }

    test::TemporaryFolder folder;
    PosixReplacements replacements;
};

TEST_F(PosixReplacementTest, TheEarlierFileStaysUntilTheNewOneTakesItsPlace) {
    folder.write("data", "the old text");
    const auto file = replacements.beside(path("data"));
    file->append("new ");
    file->append("bytes");
    EXPECT_EQ(file->size(), 9U);
    file->flush();
    std::string back(20, '\0');
    EXPECT_EQ(file->readAt(4, back), 5U);
    EXPECT_EQ(back.substr(0, 5), "bytes");
    EXPECT_EQ(folder.read("data"), "the old text");
    file->takePlace();
    EXPECT_EQ(folder.read("data"), "new bytes");
    EXPECT_EQ(files(), 1U);
}

TEST_F(PosixReplacementTest, ANewFileThatIsGivenUpLeavesNothing) {
    { replacements.beside(path("data"))->append("given up"); }
    EXPECT_EQ(files(), 0U);
    folder.write("data", "old");
    { replacements.beside(path("data"))->append("given up"); }
    EXPECT_EQ(folder.read("data"), "old");
    EXPECT_EQ(files(), 1U);
}

TEST_F(PosixReplacementTest, WhatAKilledProgramLeftIsClearedByTheNext) {
    test::ChildProcess child([&] {
        const auto file = replacements.beside(path("data"));
        file->append("half");
        raise(SIGKILL);
        return 0;
    });
    EXPECT_EQ(child.wait(), -SIGKILL);
    EXPECT_EQ(files(), 1U) << "the half file is there";
    const auto file = replacements.beside(path("data"));
    file->append("whole");
    file->takePlace();
    EXPECT_EQ(folder.read("data"), "whole");
    EXPECT_EQ(files(), 1U);
}

TEST_F(PosixReplacementTest, ItCanBeginAnew) {
    const auto file = replacements.beside(path("data"));
    file->append("a long beginning");
    file->startOver();
    EXPECT_EQ(file->size(), 0U);
    file->append("short");
    file->takePlace();
    EXPECT_EQ(folder.read("data"), "short");
}

TEST_F(PosixReplacementTest, PermissionsAreThoseOfTheFileReplacedOrOfTheModel) {
    folder.write("model", "");
    folder.write("there", "");
    fs::permissions(folder.file("model"), fs::perms(0600));
    fs::permissions(folder.file("there"), fs::perms(0664));
    replacements.beside(path("made"), path("model"))->takePlace();
    replacements.beside(path("there"), path("model"))->takePlace();
    const mode_t before = umask(0022);
    replacements.beside(path("plain"))->takePlace();
    umask(before);
    EXPECT_EQ(modeOf("made"), 0600U);
    EXPECT_EQ(modeOf("there"), 0664U);
    EXPECT_EQ(modeOf("plain"), 0644U);
}

TEST_F(PosixReplacementTest, AGroupThatCanNotBeHadGetsNoMoreThanEverybody) {
    if (geteuid() != 0)
        GTEST_SKIP() << "only root can make a file of another owner";
    folder.write("model", "");
    fs::permissions(folder.file("model"), fs::perms(0660));
    ASSERT_EQ(chown(folder.file("model").c_str(), 0, 65533), 0);
    {
        const test::OrdinaryUser user(folder.path());
        replacements.beside(path("made"), path("model"))->takePlace();
    }
    EXPECT_EQ(modeOf("made"), 0600U);
}

TEST_F(PosixReplacementTest, LinksAreFollowed) {
    folder.write("target", "old");
    fs::create_symlink("target", folder.file("link"));
    const auto file = replacements.beside(path("link"));
    file->append("new");
    file->takePlace();
    EXPECT_TRUE(fs::is_symlink(folder.file("link")));
    EXPECT_EQ(folder.read("target"), "new");
}

TEST_F(PosixReplacementTest, AFolderIsNeverReplaced) {
    fs::create_directory(folder.file("data"));
    EXPECT_THROW((void)replacements.beside(path("data")), Failure);
    EXPECT_THROW((void)replacements.beside(path("nowhere/data")), Failure);
}

TEST_F(PosixReplacementTest, OneFileUnderTwoNamesIsToldFromTwo) {
    folder.write("a", "same");
    folder.write("b", "same");
    fs::create_hard_link(folder.file("a"), folder.file("c"));
    EXPECT_TRUE(replacements.areOne(path("a"), path("c")));
    EXPECT_TRUE(replacements.areOne(path("a"), path("a")));
    EXPECT_TRUE(replacements.areOne(path(""), NativePath(folder.path())));
    EXPECT_FALSE(replacements.areOne(path("a"), path("b")));
    EXPECT_FALSE(replacements.areOne(path("none"), path("none")));
}

TEST_F(PosixReplacementTest, AFullDiskIsToldAndWhatWasWrittenBeforeStays) {
    test::ChildProcess child([&] {
        if (!test::mountSmallDisk(folder.path(), "64k"))
            return kCanNotMount;
        folder.write("data", "the old text");
        const auto file = replacements.beside(path("data"));
        file->append("whole");
        try {
            file->append(std::string(100000, 'x'));
            return 1;
        } catch (const Failure& failure) {
            if (obstacleOf(failure) != Obstacle::DiskFull)
                return 2;
        }
        file->append(" lines");
        if (folder.read("data") != "the old text")
            return 3;
        file->flush();
        file->takePlace();
        return folder.read("data") == "whole lines" && files() == 1 ? 0 : 4;
    });
    const int code = child.wait();
    if (code == kCanNotMount)
        GTEST_SKIP() << "this system lets no test mount a disk";
    EXPECT_EQ(code, 0);
}

}  // namespace
}  // namespace velmora
