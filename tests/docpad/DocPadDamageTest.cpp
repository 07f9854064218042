#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <signal.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include <filesystem>

#include "docpad/DocPadWorld.h"
#include "support/Soak.h"

namespace velmora {
namespace {

using ::testing::StartsWith;

// Saves that go wrong: the old file stays whole and the text stays in the pad, still unsaved.
class DocPadDamage : public ::testing::Test, protected test::DocPadWorld {
  protected:
    void SetUp() override {
        std::filesystem::create_directory(folder.file("docs"));
        folder.write("docs/a.txt", "old");
        dialog.setFileName(folder.file("docs/a.txt"));
        type("new text");
    }

    void expectSaveFails() {
        willChoose("docs/a.txt");
        EXPECT_FALSE(pad.Save());
        EXPECT_THAT(messages.takeShown().back(), StartsWith("error|Velmora|The file "));
        EXPECT_EQ(text.text, "new text");
        EXPECT_EQ(state.DocPadDirty, 1);
        EXPECT_EQ(view.current, "DocPad");
        EXPECT_EQ(status.text, "");
    }
};

TEST_F(DocPadDamage, AFullDiskKeepsTheOldFileAndTheText) {
    rlimit before{};
    getrlimit(RLIMIT_FSIZE, &before);
    const auto signalBefore = signal(SIGXFSZ, SIG_IGN);
    const rlimit full{4, before.rlim_max};
    setrlimit(RLIMIT_FSIZE, &full);
    expectSaveFails();
    setrlimit(RLIMIT_FSIZE, &before);
    signal(SIGXFSZ, signalBefore);
    EXPECT_EQ(folder.read("docs/a.txt"), "old");
    EXPECT_EQ(std::distance(std::filesystem::directory_iterator(folder.file("docs")), {}), 1)
        << "nothing half written lies beside it";
}

TEST_F(DocPadDamage, AFolderThatMayNotBeWrittenKeepsTheOldFileAndTheText) {
    chmod(folder.path().c_str(), 0755);
    chmod(folder.file("docs").c_str(), 0555);
    const uid_t user = geteuid();
    if (user == 0) {
        ASSERT_EQ(seteuid(65534), 0);
    }
    expectSaveFails();
    if (user == 0) {
        ASSERT_EQ(seteuid(user), 0);
    }
    chmod(folder.file("docs").c_str(), 0755);
    EXPECT_EQ(folder.read("docs/a.txt"), "old");
}

TEST_F(DocPadDamage, AFolderThatIsGoneKeepsTheText) {
    std::filesystem::remove_all(folder.file("docs"));
    expectSaveFails();
    EXPECT_FALSE(folder.has("docs"));
}

TEST_F(DocPadDamage, TheCopyThatACancelledSaveKeepsComesBeforeTheWrite) {
    std::filesystem::create_directory(folder.file("docs/a.txt~"));
    willCancel();
    EXPECT_FALSE(pad.Save());
    EXPECT_EQ(folder.read("docs/a.txt"), "old") << "not overwritten without its copy";
    EXPECT_EQ(state.DocPadDirty, 1);
    messages.takeShown();
}

TEST_F(DocPadDamage, AProcessThatIsKilledWhileItSavesLeavesTheOldOrTheNewFileWhole) {
    const std::string path = folder.file("docs/a.txt");
    const std::string one(400000, '1');
    const std::string two(300000, '2');
    for (int round = 0; round < test::soaked(20); ++round) {
        folder.write("docs/a.txt", one);
        int started[2];
        ASSERT_EQ(pipe(started), 0);
        const pid_t child = fork();
        ASSERT_GE(child, 0);
        if (child == 0) {
            PosixFiles own{NativePaths(CodePage::western())};
            for (int i = 0;; ++i) {
                if (i == round % 20 && write(started[1], "s", 1) != 1)
                    _exit(1);
                own.writeWhole(path, i % 2 == 0 ? two : one);
            }
        }
        char ready = 0;
        EXPECT_EQ(read(started[0], &ready, 1), 1);
        kill(child, SIGKILL);
        int how = 0;
        ASSERT_EQ(waitpid(child, &how, 0), child);
        ASSERT_TRUE(WIFSIGNALED(how));
        close(started[0]);
        close(started[1]);
        const std::string left = folder.read("docs/a.txt");
        EXPECT_TRUE(left == one || left == two) << "length " << left.size();
    }
}

}  // namespace
}  // namespace velmora
