#include "accessories/DesktopCommands.h"

#include <gmock/gmock.h>

#include "support/FakeMessages.h"
#include "support/FakeStatusLine.h"

namespace velmora {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

constexpr const char* kQuestion = "confirm|Exit Windows|This will end the current Windows Session.";

class FakeSystemTools final : public SystemTools {
  public:
    void openFileManager() override { ++fileManagers; }
    bool openSettings() override { return hasSettings; }
    void logOff(std::function<void(bool taken)> answered) override {
        requests.push_back(std::move(answered));
    }

    int fileManagers = 0;
    bool hasSettings = true;
    std::vector<std::function<void(bool taken)>> requests;
};

class DesktopCommandsTest : public testing::Test {
  protected:
    FakeSystemTools tools;
    test::FakeMessages messages;
    test::FakeStatusLine status;
    DesktopCommands commands{tools, messages, status};
};

TEST_F(DesktopCommandsTest, TheFileManagerIsOpened) {
    commands.RunExplorer();
    EXPECT_EQ(tools.fileManagers, 1);
}

TEST_F(DesktopCommandsTest, MissingSettingsOfTheSystemAreToldOnTheStatusLineOnly) {
    commands.RunControlPanel();
    EXPECT_EQ(status.text, "");
    tools.hasSettings = false;
    commands.RunControlPanel();
    EXPECT_EQ(status.text, "No program for the settings of the system was found.");
    EXPECT_THAT(messages.takeShown(), IsEmpty());
}

TEST_F(DesktopCommandsTest, TheSessionGoesOnWhenTheQuestionIsCancelled) {
    messages.willAnswer(false);
    commands.ExitWindowsSession();
    EXPECT_THAT(tools.requests, IsEmpty());
    EXPECT_THAT(messages.takeShown(), ElementsAre(kQuestion));
}

TEST_F(DesktopCommandsTest, ARequestThatIsTakenNeedsNoMoreWords) {
    messages.willAnswer(true);
    commands.ExitWindowsSession();
    ASSERT_EQ(tools.requests.size(), 1U);
    tools.requests[0](true);
    EXPECT_THAT(messages.takeShown(), ElementsAre(kQuestion));
}

TEST_F(DesktopCommandsTest, ARequestThatNobodyTakesIsToldAndCanBeMadeAgain) {
    messages.willAnswer(true);
    commands.ExitWindowsSession();
    commands.ExitWindowsSession();
    EXPECT_EQ(tools.requests.size(), 1U) << "it has not been answered yet";
    tools.requests[0](false);
    EXPECT_THAT(messages.takeShown(),
                ElementsAre(kQuestion,
                            "tell|Exit Windows|Unable to Exit Windows at this time. Close all DOS "
                            "sessions, and open applications, then, try again."));
    messages.willAnswer(true);
    commands.ExitWindowsSession();
    EXPECT_EQ(tools.requests.size(), 2U);
}

}  // namespace
}  // namespace velmora
