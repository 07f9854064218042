#include "platform/files/CaseTwins.h"

#include <gtest/gtest.h>
#include <sys/stat.h>

#include <filesystem>
#include <string>

#include "platform/files/PosixFiles.h"
#include "support/FakeClock.h"
#include "support/TemporaryFolder.h"

namespace velmora {
namespace {

class CaseTwinsTest : public testing::Test {
  protected:
    // Writes a file so that its status is newer than that of `older`.
    void writeAfter(const std::string& older, const std::string& name, const std::string& bytes) {
        do
            folder.write(name, bytes);
        while (!isNewer(statusTime(name), statusTime(older)));
    }

    timespec statusTime(const std::string& name) const {
        struct stat status {};
        EXPECT_EQ(stat(folder.file(name).c_str(), &status), 0);
        return status.st_ctim;
    }
    static bool isNewer(const timespec& a, const timespec& b) {
        return a.tv_sec != b.tv_sec ? a.tv_sec > b.tv_sec : a.tv_nsec > b.tv_nsec;
    }

    std::string bytesOfBook(const std::string& name) {
        const auto file = files.openOrCreate(folder.path() + "\\" + name);
        std::string bytes(file->size(), '\0');
        (void)!file->readAt(0, bytes);
        return bytes;
    }

    std::size_t filesInFolder() const {
        const std::filesystem::directory_iterator listing(folder.path());
        return static_cast<std::size_t>(std::distance(begin(listing), end(listing)));
    }

    test::TemporaryFolder folder;
    test::FakeClock clock;
    CaseTwins twins{CodePage::western(), clock, {"DATAY.QEL", "DATAW.QEL"}};
    PosixFiles files{NativePaths(CodePage::western()), &twins};
};

TEST_F(CaseTwinsTest, ABookCopiedBackReplacesTheOneThatIsThere) {
    folder.write("DATAY.QEL", "spoilt");
    writeAfter("DATAY.QEL", "datay.qel", "restored");
    EXPECT_EQ(bytesOfBook("DATAY.QEL"), "restored");
    EXPECT_EQ(folder.read("DATAY.QEL.replaced-20260312-104200"), "spoilt");
    EXPECT_FALSE(folder.has("DATAY.QEL"));
    EXPECT_EQ(bytesOfBook("DATAY.QEL"), "restored");
    EXPECT_EQ(filesInFolder(), 2U);
}

TEST_F(CaseTwinsTest, AnOldFileBesideTheBookIsPutAside) {
    folder.write("datay.qel", "old");
    writeAfter("datay.qel", "DATAY.QEL", "book");
    EXPECT_EQ(bytesOfBook("DATAY.QEL"), "book");
    EXPECT_EQ(folder.read("datay.qel.replaced-20260312-104200"), "old");
    EXPECT_EQ(folder.read("DATAY.QEL"), "book");
}

TEST_F(CaseTwinsTest, ANameThatIsTakenGetsANumber) {
    folder.write("DATAY.QEL.replaced-20260312-104200", "earlier");
    folder.write("DATAY.QEL", "spoilt");
    writeAfter("DATAY.QEL", "datay.qel", "restored");
    EXPECT_EQ(bytesOfBook("DATAY.QEL"), "restored");
    EXPECT_EQ(folder.read("DATAY.QEL.replaced-20260312-104200"), "earlier");
    EXPECT_EQ(folder.read("DATAY.QEL.replaced-20260312-104200-2"), "spoilt");
}

TEST_F(CaseTwinsTest, OneFileIsTheBookWhateverItsCase) {
    folder.write("DataW.qel", "book");
    EXPECT_EQ(bytesOfBook("DATAW.QEL"), "book");
    EXPECT_EQ(filesInFolder(), 1U);
}

TEST_F(CaseTwinsTest, OtherFilesMayHaveTwins) {
    folder.write("sig.txt", "one");
    folder.write("SIG.TXT", "two");
    EXPECT_EQ(bytesOfBook("SIG.TXT"), "two");
    EXPECT_EQ(filesInFolder(), 2U);
}

TEST_F(CaseTwinsTest, AFolderOfTheNameIsNoBook) {
    std::filesystem::create_directory(folder.file("datay.qel"));
    folder.write("DATAY.QEL", "book");
    EXPECT_EQ(bytesOfBook("DATAY.QEL"), "book");
    EXPECT_TRUE(folder.has("datay.qel"));
}

TEST_F(CaseTwinsTest, LookingAtABookTakesTheNewestAndRenamesNothing) {
    folder.write("DATAY.QEL", "spoilt");
    writeAfter("DATAY.QEL", "datay.qel", "restored");
    EXPECT_EQ(files.readWhole(folder.path() + "\\DATAY.QEL", 100), "restored");
    EXPECT_TRUE(files.exists(folder.path() + "\\DATAY.QEL"));
    EXPECT_TRUE(folder.has("DATAY.QEL"));
    EXPECT_TRUE(folder.has("datay.qel"));
}

}  // namespace
}  // namespace velmora
