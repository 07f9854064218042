#include "platform/files/NativePaths.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <string>
#include <vector>

#include "support/TemporaryFolder.h"

namespace velmora {
namespace {

class NativePathsTest : public testing::Test {
  protected:
    [[nodiscard]] std::string resolved(std::string_view path) const {
        return paths.resolve(path).utf8();
    }

    test::TemporaryFolder folder;
    NativePaths paths{CodePage::western()};
};

TEST_F(NativePathsTest, BackslashesSeparateFoldersToo) {
    EXPECT_EQ(resolved(folder.path() + "\\new\\file.txt"), folder.path() + "/new/file.txt");
    EXPECT_EQ(resolved("\\"), "/");
    EXPECT_EQ(resolved(""), "");
    EXPECT_EQ(resolved("no such folder\\x"), "no such folder/x");
    EXPECT_EQ(resolved(folder.path() + "\\\\a//b"), folder.path() + "/a/b");
}

TEST_F(NativePathsTest, TheExactNameWinsElseTheFirstThatDiffersInCaseElseTheSpelling) {
    EXPECT_EQ(resolved(folder.path() + "\\DataY.qel"), folder.path() + "/DataY.qel");
    folder.write("datay.qel", "");
    folder.write("dATAY.QEL", "");
    EXPECT_EQ(resolved(folder.path() + "\\DATAY.QEL"), folder.path() + "/dATAY.QEL");
    folder.write("DATAY.QEL", "");
    EXPECT_EQ(resolved(folder.path() + "\\DATAY.QEL"), folder.path() + "/DATAY.QEL");
    EXPECT_EQ(resolved(folder.path() + "\\datay.qel"), folder.path() + "/datay.qel");
}

TEST_F(NativePathsTest, FoldersAreMatchedLikeFiles) {
    std::filesystem::create_directories(folder.file("Office/Data"));
    folder.write("Office/Data/File", "");
    EXPECT_EQ(resolved(folder.path() + "\\OFFICE\\data\\FILE"),
              folder.path() + "/Office/Data/File");
}

TEST_F(NativePathsTest, CodePageTextBecomesUtf8) {
    folder.write(
        "B\xC3\xBC"
        "cher",
        "");
    EXPECT_EQ(resolved(folder.path() + "\\b\xDC"
                                       "cher"),
              folder.path() +
                  "/B\xC3\xBC"
                  "cher");
    EXPECT_EQ(resolved(folder.path() + "\\\x80"), folder.path() + "/\xE2\x82\xAC");
}

TEST_F(NativePathsTest, NamesOutsideTheCodePageMatchNothing) {
    folder.write("\xE4\xB8\xAD", "");
    folder.write("\xFF", "");
    EXPECT_EQ(resolved(folder.path() + "\\?"), folder.path() + "/?");
}

TEST_F(NativePathsTest, TheProgramFolderMayHaveCharactersOutsideTheCodePage) {
    const std::string native = folder.file("\xE4\xB8\xAD");
    std::filesystem::create_directory(native);
    folder.write("\xE4\xB8\xAD/datay.qel", "");
    const NativePaths own(CodePage::western(), folder.path() + "/?", NativePath(native));
    EXPECT_EQ(own.resolve(folder.path() + "/?\\DATAY.QEL").utf8(), native + "/datay.qel");
    EXPECT_EQ(own.resolve(folder.path() + "/?").utf8(), native);
    EXPECT_EQ(own.resolve(folder.path() + "/?x\\y").utf8(), folder.path() + "/?x/y");
}

TEST_F(NativePathsTest, AlikeNamesComeInByteOrder) {
    for (const char* name : {"abc", "ABC", "Abc", "abd", "ab"})
        folder.write(name, "");
    EXPECT_EQ(paths.alike(NativePath(folder.path()), "aBC"),
              (std::vector<std::string>{"ABC", "Abc", "abc"}));
    EXPECT_EQ(paths.alike(NativePath(folder.file("none")), "x"), std::vector<std::string>{});
}

}  // namespace
}  // namespace velmora
