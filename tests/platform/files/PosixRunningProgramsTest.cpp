#include "platform/files/PosixRunningPrograms.h"

#include <gtest/gtest.h>
#include <signal.h>
#include <sys/wait.h>
#include <unistd.h>

#include <string>

namespace velmora {
namespace {

TEST(PosixRunningPrograms, ThisRunRunsAndItsMarkIsOneLine) {
    const PosixRunningPrograms programs;
    const std::string mark = programs.ownMark();
    EXPECT_TRUE(programs.runs(mark));
    EXPECT_EQ(mark, programs.ownMark());
    EXPECT_EQ(mark.find_first_of("\r\n "), std::string::npos);
}

TEST(PosixRunningPrograms, TheSameNumberOfAnotherMomentIsAnotherRun) {
    const PosixRunningPrograms programs;
    EXPECT_FALSE(programs.runs(std::to_string(getpid()) + "-1-elsewhere"));
    EXPECT_FALSE(programs.runs(std::to_string(getpid())));
}

TEST(PosixRunningPrograms, TextsThatAreNoMarksRunNot) {
    const PosixRunningPrograms programs;
    for (const char* mark : {"", "-", "self-1-2", "../1-2-3", "0"})
        EXPECT_FALSE(programs.runs(mark)) << mark;
}

TEST(PosixRunningPrograms, ARunThatHasEndedRunsNoMore) {
    const PosixRunningPrograms programs;
    int tell[2];
    ASSERT_EQ(pipe(tell), 0);
    const pid_t child = fork();
    ASSERT_GE(child, 0);
    if (child == 0) {
        const std::string mark = programs.ownMark();
        (void)!write(tell[1], mark.data(), mark.size());
        pause();
        _exit(0);
    }
    char buffer[200];
    const ssize_t size = read(tell[0], buffer, sizeof buffer);
    ASSERT_GT(size, 0);
    const std::string mark(buffer, static_cast<std::size_t>(size));
    EXPECT_TRUE(programs.runs(mark));
    kill(child, SIGKILL);
    ASSERT_EQ(waitpid(child, nullptr, 0), child);
    EXPECT_FALSE(programs.runs(mark));
    close(tell[0]);
    close(tell[1]);
}

}  // namespace
}  // namespace velmora
