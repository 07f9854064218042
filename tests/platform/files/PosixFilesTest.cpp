#include "platform/files/PosixFiles.h"

#include <gtest/gtest.h>
#include <signal.h>
#include <sys/resource.h>
#include <sys/stat.h>

#include <chrono>
#include <filesystem>
#include <string>

#include "platform/Failure.h"
#include "support/ChildProcess.h"
#include "support/OrdinaryUser.h"
#include "support/SmallDisk.h"
#include "support/TemporaryFolder.h"

namespace velmora {
namespace {

constexpr int kCanNotMount = 77;

constexpr std::chrono::milliseconds kMoment(20);

class PosixFilesTest : public testing::Test {
  protected:
    std::string path(const std::string& name) const { return folder.path() + "\\" + name; }

    template <typename Work>
    static std::string failureOf(Work&& work) {
        try {
            work();
        } catch (const Failure& failure) {
            return failure.what();
        }
        return "";
    }

    std::size_t filesInFolder() const {
        const std::filesystem::directory_iterator listing(folder.path());
        return static_cast<std::size_t>(std::distance(begin(listing), end(listing)));
    }

    test::TemporaryFolder folder;
    PosixFiles files{NativePaths(CodePage::western())};
};

TEST_F(PosixFilesTest, OnlyRegularFilesExist) {
    folder.write("file.txt", "x");
    std::filesystem::create_directory(folder.file("folder"));
    std::filesystem::create_symlink(folder.file("file.txt"), folder.file("link"));
    std::filesystem::create_symlink(folder.file("nowhere"), folder.file("dangling"));
    EXPECT_TRUE(files.exists(path("file.txt")));
    EXPECT_TRUE(files.exists(path("FILE.TXT")));
    EXPECT_TRUE(files.exists(path("link")));
    EXPECT_FALSE(files.exists(path("folder")));
    EXPECT_FALSE(files.exists(path("dangling")));
    EXPECT_FALSE(files.exists(path("*")));
    EXPECT_FALSE(files.exists(path("none")));
    EXPECT_FALSE(files.exists(""));
}

TEST_F(PosixFilesTest, OpeningCreatesAFileAsSpeltButNeverAFolder) {
    EXPECT_EQ(files.openOrCreate(path("New.dat"))->size(), 0U);
    EXPECT_EQ(folder.read("New.dat"), "");
    EXPECT_EQ(failureOf([&] { (void)files.openOrCreate(path("none\\New.dat")); }),
              "The file " + folder.file("none/New.dat") +
                  " can not be opened: No such file or directory.");
    EXPECT_FALSE(folder.has("none"));
}

TEST_F(PosixFilesTest, FoldersAndPipesAreNotOpened) {
    std::filesystem::create_directory(folder.file("folder"));
    ASSERT_EQ(mkfifo(folder.file("pipe").c_str(), 0600), 0);
    EXPECT_THROW((void)files.openOrCreate(path("folder")), Failure);
    EXPECT_THROW((void)files.openOrCreate(path("pipe")), Failure);
    EXPECT_THROW((void)files.readWhole(path("folder"), 10), Failure);
    EXPECT_THROW((void)files.readWhole(path("pipe"), 10), Failure);
    EXPECT_THROW(files.writeWhole(path("folder"), "x"), Failure);
    EXPECT_THROW(files.writeWhole(path("pipe"), "x"), Failure);
}

TEST_F(PosixFilesTest, ReadsAndWritesAtAnyPlace) {
    const auto file = files.openOrCreate(path("data"));
    file->writeAt(0, std::string("abcdef"));
    file->writeAt(2, std::string("XY"));
    file->writeAt(8, std::string("z"));
    EXPECT_EQ(file->size(), 9U);
    EXPECT_EQ(folder.read("data"), std::string("abXYef\0\0z", 9));
    std::string bytes(4, '.');
    EXPECT_EQ(file->readAt(4, bytes), 4U);
    EXPECT_EQ(bytes, std::string("ef\0\0", 4));
    EXPECT_EQ(file->readAt(7, bytes), 2U);
    EXPECT_EQ(file->readAt(9, bytes), 0U);
    EXPECT_EQ(file->readAt(100, bytes), 0U);
}

TEST_F(PosixFilesTest, WritesSeveralPiecesTogether) {
    folder.write("file.txt", "0123456789");
    const auto file = files.openOrCreate(path("file.txt"));
    const FilePiece pieces[] = {
        {2, std::span("ab", 2)}, {9, std::span("cde", 3)}, {14, std::span("f", 1)}};
    file->writePieces(pieces);
    EXPECT_EQ(folder.read("file.txt"), std::string("01ab45678cde\0\0f", 15));
}

TEST_F(PosixFilesTest, AFileThatMayOnlyBeReadIsReadAndItsWritesSayWhy) {
    folder.write("data", "abc");
    std::filesystem::permissions(folder.file("data"), std::filesystem::perms(0444));
    const test::OrdinaryUser user(folder.path());
    const auto file = files.openOrCreate(path("data"));
    std::string bytes(3, '.');
    EXPECT_EQ(file->readAt(0, bytes), 3U);
    EXPECT_EQ(bytes, "abc");
    EXPECT_FALSE(file->lock(kMoment));
    EXPECT_EQ(failureOf([&] { file->writeAt(0, std::string("x")); }),
              "The file " + folder.file("data") + " can not be written: Permission denied.");
    EXPECT_THROW(files.writeWhole(path("data"), "x"), Failure);
    EXPECT_EQ(folder.read("data"), "abc");
}

TEST_F(PosixFilesTest, AFileThatMayNotBeReadOrMadeIsAFailure) {
    folder.write("data", "abc");
    std::filesystem::permissions(folder.file("data"), std::filesystem::perms(0));
    const test::OrdinaryUser user(folder.path());
    EXPECT_EQ(failureOf([&] { (void)files.openOrCreate(path("data")); }),
              "The file " + folder.file("data") + " can not be opened: Permission denied.");
    EXPECT_THROW((void)files.readWhole(path("data"), 10), Failure);
}

TEST_F(PosixFilesTest, ALockKeepsOthersOutUntilItIsGivenBack) {
    const auto first = files.openOrCreate(path("data"));
    const auto second = files.openOrCreate(path("data"));
    EXPECT_TRUE(first->lock(kMoment));
    EXPECT_EQ(failureOf([&] { (void)second->lock(kMoment); }),
              "The file " + folder.file("data") + " is in use by another copy of the program.");
    first->unlock();
    EXPECT_TRUE(second->lock(kMoment));
    second->unlock();
}

TEST_F(PosixFilesTest, ALockEndsWithItsFile) {
    EXPECT_TRUE(files.openOrCreate(path("data"))->lock(kMoment));
    const auto second = files.openOrCreate(path("data"));
    EXPECT_TRUE(second->lock(kMoment));
    second->unlock();
}

TEST_F(PosixFilesTest, ReadsAFileWholeUpToItsLimit) {
    folder.write("data", std::string(40000, 'x'));
    EXPECT_EQ(files.readWhole(path("DATA"), 40000), std::string(40000, 'x'));
    EXPECT_EQ(files.readWhole(path("data"), 39999), std::nullopt);
    EXPECT_EQ(files.readWhole(path("data"), 0), std::nullopt);
    folder.write("empty", "");
    EXPECT_EQ(files.readWhole(path("empty"), 0), "");
    folder.write("large", std::string(300000, 'y') + std::string(1, '\0'));
    EXPECT_EQ(files.readWhole(path("large"), UINT64_MAX),
              std::string(300000, 'y') + std::string(1, '\0'));
    EXPECT_EQ(failureOf([&] { (void)files.readWhole(path("none"), 1); }),
              "The file " + folder.file("none") + " can not be opened: No such file or directory.");
}

TEST_F(PosixFilesTest, ReplacesAFileWholeAndKeepsItsPermissions) {
    folder.write("Data", "old");
    std::filesystem::permissions(folder.file("Data"), std::filesystem::perms(0640));
    files.writeWhole(path("DATA"), "new");
    EXPECT_EQ(folder.read("Data"), "new");
    EXPECT_EQ(std::filesystem::status(folder.file("Data")).permissions(),
              std::filesystem::perms(0640));
    files.writeWhole(path("fresh"), std::string("a\0b", 3));
    EXPECT_EQ(folder.read("fresh"), std::string("a\0b", 3));
    EXPECT_EQ(filesInFolder(), 2U);
}

TEST_F(PosixFilesTest, ReplacingThroughALinkKeepsTheLink) {
    folder.write("data", "old");
    std::filesystem::create_symlink("data", folder.file("link"));
    files.writeWhole(path("link"), "new");
    EXPECT_TRUE(std::filesystem::is_symlink(folder.file("link")));
    EXPECT_EQ(folder.read("data"), "new");
}

TEST_F(PosixFilesTest, RemovesFiles) {
    folder.write("Data", "x");
    files.remove(path("DATA"));
    EXPECT_FALSE(folder.has("Data"));
    EXPECT_THROW(files.remove(path("DATA")), Failure);
    EXPECT_THROW(files.writeWhole(path("none\\x"), "x"), Failure);
}

// What the tests of a full disk check, in a process of its own. Returns 0 or the number of the
// step that went wrong.
int useFullDisk(PosixFiles& files, const test::TemporaryFolder& folder, std::size_t room) {
    const std::string book = folder.path() + "\\data";
    const std::string old(100, 'o');
    {
        const auto file = files.openOrCreate(book);
        file->writeAt(0, old);
        try {
            file->writeAt(50, std::string(room * 2, 'n'));
            return 1;
        } catch (const Failure&) {
        }
        if (file->size() != 100)
            return 2;
        const std::string big(room * 2, 'n');
        const FilePiece pieces[] = {{10, std::span("pp", 2)}, {100, big}};
        try {
            file->writePieces(pieces);
            return 8;
        } catch (const Failure&) {
        }
        if (file->size() != 100)
            return 9;
    }
    if (folder.read("data") != old)
        return 3;
    try {
        files.writeWhole(book, std::string(room * 2, 'n'));
        return 4;
    } catch (const Failure&) {
    }
    if (folder.read("data") != old)
        return 5;
    const std::filesystem::directory_iterator listing(folder.path());
    if (std::distance(begin(listing), end(listing)) != 1)
        return 6;
    files.openOrCreate(book)->writeAt(100, old);
    return folder.read("data") == old + old ? 0 : 7;
}

TEST_F(PosixFilesTest, AFullDiskLeavesFilesAsTheyWere) {
    test::ChildProcess child([&] {
        if (!test::mountSmallDisk(folder.path(), "64k"))
            return kCanNotMount;
        return useFullDisk(files, folder, 65536);
    });
    const int code = child.wait();
    if (code == kCanNotMount)
        GTEST_SKIP() << "this system lets no test mount a small disk";
    EXPECT_EQ(code, 0);
}

TEST_F(PosixFilesTest, ALimitOfFileSizeLeavesFilesAsTheyWere) {
    test::ChildProcess child([&] {
        signal(SIGXFSZ, SIG_IGN);
        const rlimit limit{1000, 1000};
        if (setrlimit(RLIMIT_FSIZE, &limit) != 0)
            return 50;
        return useFullDisk(files, folder, 1000);
    });
    EXPECT_EQ(child.wait(), 0);
}

}  // namespace
}  // namespace velmora
