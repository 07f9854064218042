#include "accessories/RunProgram.h"

#include <gmock/gmock.h>

#include "support/FakeMessages.h"
#include "support/FakeProgramStarter.h"

namespace velmora {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class RunProgramTest : public testing::Test {
  protected:
    std::vector<std::string> started(const std::string& commandLine, bool minimised = false) {
        starter.started.clear();
        program.Run(commandLine, minimised);
        return starter.started;
    }

    test::FakeProgramStarter starter;
    test::FakeMessages messages;
    RunProgram program{starter, messages};
};

TEST_F(RunProgramTest, TheFirstWordIsTheProgramAndTheOthersAreItsArguments) {
    EXPECT_THAT(started("editor notes.txt  -r"), ElementsAre("editor|notes.txt|-r"));
    EXPECT_THAT(started("  editor  "), ElementsAre("editor"));
}

TEST_F(RunProgramTest, QuotesKeepBlanksTogether) {
    EXPECT_THAT(started("\"/opt/my editor\" \"my notes.txt\""),
                ElementsAre("/opt/my editor|my notes.txt"));
}

TEST_F(RunProgramTest, ATextThatNamesAProgramIsThatProgramBlanksIncluded) {
    starter.known = {"/opt/my editor"};
    EXPECT_THAT(started(" /opt/my editor "), ElementsAre("/opt/my editor"));
}

TEST_F(RunProgramTest, NothingStandsForAnythingElse) {
    EXPECT_THAT(started("a $HOME *; b | c > d & `e` \\f"),
                ElementsAre("a|$HOME|*;|b|||c|>|d|&|`e`|\\f"));
}

TEST_F(RunProgramTest, AMinimisedWindowIsAskedFor) {
    EXPECT_THAT(started("editor x", true), ElementsAre("editor|x minimised"));
}

TEST_F(RunProgramTest, AnEmptyTextAndAMissingProgramFailInSilence) {
    EXPECT_THAT(started(""), IsEmpty());
    EXPECT_THAT(started("   "), IsEmpty());
    EXPECT_THAT(started("nowhere"), ElementsAre("nowhere"));
    EXPECT_THAT(messages.takeShown(), IsEmpty());
}

TEST_F(RunProgramTest, BrowseAsksForAProgram) {
    messages.willAnswer(std::optional<std::string>("/bin/true"));
    EXPECT_EQ(program.Browse(), "/bin/true");
    EXPECT_THAT(messages.takeShown(),
                ElementsAre("open|Select Program File|.exe|Programs (*.exe)|*.exe|All Files "
                            "(*.*)|*.*"));
}

}  // namespace
}  // namespace velmora
