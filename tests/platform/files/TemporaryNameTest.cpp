#include "platform/files/TemporaryName.h"

#include <gtest/gtest.h>
#include <unistd.h>

#include <filesystem>
#include <string>
#include <vector>

#include "platform/files/PosixFiles.h"
#include "support/ChildOfTest.h"
#include "support/TemporaryFolder.h"

namespace velmora {
namespace {

class TemporaryNameTest : public testing::Test {
  protected:
    [[nodiscard]] std::vector<std::string> names() const {
        std::vector<std::string> found;
        for (const auto& entry : std::filesystem::directory_iterator(folder.path()))
            found.push_back(entry.path().filename().string());
        return found;
    }

    // Leaves what a program leaves that is killed while it writes "data".
    void leaveAFile() const {
        test::ChildOfTest child([&](const auto&) {
            folder.write(temporaryBeside(path).name(), "half");
            folder.write(temporaryBeside(path).name() + "-journal", "half");
        });
        ASSERT_TRUE(child.wait());
    }

    test::TemporaryFolder folder;
    NativePath path{folder.file("data")};
};

TEST_F(TemporaryNameTest, WhatAnEndedProgramLeftIsClearedByTheNextWrite) {
    leaveAFile();
    ASSERT_EQ(names().size(), 2U);
    PosixFiles files{NativePaths(CodePage::western())};
    files.writeWhole(folder.path() + "\\other", "x");
    EXPECT_EQ(names(), std::vector<std::string>{"other"});
}

TEST_F(TemporaryNameTest, WhatARunningProgramWritesStays) {
    folder.write(temporaryBeside(path).name(), "half");
    clearAbandonedBeside(path);
    EXPECT_EQ(names().size(), 1U);
}

TEST_F(TemporaryNameTest, WhatAnotherMachineWritesStays) {
    leaveAFile();
    for (const std::string& name : names()) {
        std::string other = name;
        char& digit = other[std::string("data.velmora-").size()];
        digit = digit == '0' ? '1' : '0';
        std::filesystem::rename(folder.file(name), folder.file(other));
    }
    clearAbandonedBeside(path);
    EXPECT_EQ(names().size(), 2U);
}

TEST_F(TemporaryNameTest, WhatOnlyLooksAlikeStays) {
    leaveAFile();
    const std::string name = names().front();
    folder.write(name + "x", "");
    folder.write("data.velmora-", "");
    folder.write("notes.velmora-2024", "");
    folder.write("data.velmora-0123abcd-1-2-3", "");
    std::filesystem::create_directory(folder.file(temporaryBeside(path).name() + "-wal"));
    clearAbandonedBeside(path);
    EXPECT_EQ(names().size(), 5U);
}

}  // namespace
}  // namespace velmora
