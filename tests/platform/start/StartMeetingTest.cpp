#include "platform/start/StartMeeting.h"

#include <gmock/gmock.h>
#include <poll.h>
#include <sys/socket.h>
#include <sys/stat.h>
#include <sys/un.h>
#include <unistd.h>

#include <atomic>
#include <cstdlib>
#include <cstring>
#include <filesystem>
#include <functional>
#include <future>
#include <string>
#include <thread>
#include <vector>

#include "support/TemporaryFolder.h"

namespace velmora {
namespace {

using namespace std::chrono_literals;
using ::testing::ElementsAre;

constexpr auto kAsLongAsItTakes = 60s;

// Drives a listener until the condition holds, or the time is over.
bool drive(StartListener& listener, const std::function<bool()>& condition,
           std::chrono::milliseconds atMost = kAsLongAsItTakes) {
    const auto end = std::chrono::steady_clock::now() + atMost;
    while (!condition() && std::chrono::steady_clock::now() < end) {
        pollfd waited{.fd = listener.wait().descriptor, .events = POLLIN, .revents = 0};
        (void)::poll(&waited, 1, 10);
        EXPECT_TRUE(listener.goOn());
    }
    return condition();
}

bool isDone(const std::future<Meeting>& meeting) {
    return meeting.wait_for(0s) == std::future_status::ready;
}

class StartMeetingTest : public ::testing::Test {
  protected:
    StartMeetingTest() {
        std::filesystem::permissions(folder.path(), std::filesystem::perms(0700));
    }

    [[nodiscard]] Meeting meet(std::chrono::milliseconds patience = kAsLongAsItTakes) const {
        return meetOtherStarts(place, {}, patience);
    }
    // The first start, which writes down with what it was summoned.
    std::unique_ptr<StartListener> first() {
        Meeting meeting = meet();
        EXPECT_FALSE(meeting.handedOver);
        EXPECT_TRUE(meeting.listener && meeting.listener->begin());
        meeting.listener->onSummons(
            [this](const Summons& summons) { tokens.push_back(summons.activationToken); });
        return std::move(meeting.listener);
    }
    [[nodiscard]] std::future<Meeting> laterStart(const std::string& token = {}) const {
        return std::async(std::launch::async, [this, token] {
            return meetOtherStarts(place, {.activationToken = token}, kAsLongAsItTakes);
        });
    }
    // The other end of a connection that says what the test wants.
    [[nodiscard]] FileDescriptor stranger() const { return LocalSocket(place).connect(); }

    test::TemporaryFolder folder;
    MeetingPlace place{NativePath(folder.path()), "velmora-test"};
    std::vector<std::string> tokens;
};

TEST_F(StartMeetingTest, ASecondStartIsHandedOverWithTheTokenOfTheDesktop) {
    const auto listener = first();
    auto second = laterStart("token-1_TIME42");
    ASSERT_TRUE(drive(*listener, [&] { return isDone(second); }));
    const Meeting meeting = second.get();
    EXPECT_TRUE(meeting.handedOver);
    EXPECT_EQ(meeting.listener, nullptr);
    EXPECT_THAT(tokens, ElementsAre("token-1_TIME42"));
}

TEST_F(StartMeetingTest, EachFurtherStartIsHandedOverToo) {
    const auto listener = first();
    std::vector<std::future<Meeting>> others;
    for (const char* token : {"a", "a", "a"})
        others.push_back(laterStart(token));
    ASSERT_TRUE(
        drive(*listener, [&] { return std::all_of(others.begin(), others.end(), isDone); }));
    for (auto& other : others)
        EXPECT_TRUE(other.get().handedOver);
    EXPECT_THAT(tokens, ElementsAre("a", "a", "a"));
}

TEST_F(StartMeetingTest, OfManyStartsAtOnceOneIsTheFirst) {
    for (int round = 0; round < 5; ++round) {
        // What an earlier start left behind, so that there is something to fight for.
        folder.write("velmora-test", "");
        std::vector<std::future<Meeting>> starts;
        std::atomic<int> firsts = 0, handedOver = 0;
        for (int i = 0; i < 8; ++i)
            starts.push_back(std::async(std::launch::async, [&] {
                Meeting meeting = meet();
                handedOver += meeting.handedOver ? 1 : 0;
                if (!meeting.listener)
                    return Meeting{};
                ++firsts;
                meeting.listener->onSummons([](const Summons&) {});
                drive(*meeting.listener, [&] { return handedOver == 7; });
                return Meeting{};
            }));
        for (auto& start : starts)
            (void)start.get();
        EXPECT_EQ(firsts, 1);
        EXPECT_EQ(handedOver, 7);
    }
}

TEST_F(StartMeetingTest, AnotherNameIsAnotherPlace) {
    const auto listener = first();
    const MeetingPlace other{place.folder, "velmora-other"};
    EXPECT_NE(meetOtherStarts(other, {}, kAsLongAsItTakes).listener, nullptr);
}

TEST_F(StartMeetingTest, TheSocketGoesWithTheFirstStart) {
    {
        const auto listener = first();
        EXPECT_TRUE(std::filesystem::is_socket(folder.file(place.name)));
    }
    EXPECT_FALSE(folder.has(place.name));
    EXPECT_TRUE(std::filesystem::is_empty(folder.path()));
    first();
}

TEST_F(StartMeetingTest, ASocketThatNobodyListensAtIsNoObstacle) {
    (void)LocalSocket(place).listen();  // as one that was killed leaves it
    ASSERT_TRUE(std::filesystem::is_socket(folder.file(place.name)));
    const auto listener = first();
    auto second = laterStart();
    ASSERT_TRUE(drive(*listener, [&] { return isDone(second); }));
    EXPECT_TRUE(second.get().handedOver);
}

TEST_F(StartMeetingTest, AFileInItsPlaceIsNoObstacle) {
    folder.write(place.name, "x");
    first();
}

TEST_F(StartMeetingTest, WithoutAFolderEachStartHasAWindowOfItsOwn) {
    const MeetingPlace nowhere{NativePath(folder.file("gone")), "velmora-test"};
    const Meeting meeting = meetOtherStarts(nowhere, {}, kAsLongAsItTakes);
    EXPECT_FALSE(meeting.handedOver);
    EXPECT_EQ(meeting.listener, nullptr);
}

TEST_F(StartMeetingTest, AFolderThatCanNotBeUsedHasNoMeeting) {
    std::filesystem::create_directory(folder.file(place.name));
    const Meeting meeting = meet();
    EXPECT_FALSE(meeting.handedOver);
    EXPECT_EQ(meeting.listener, nullptr);
}

TEST_F(StartMeetingTest, APathOfAnyLengthWillDo) {
    const std::string deep = folder.file(std::string(120, 'd'));
    std::filesystem::create_directory(deep);
    const MeetingPlace far{NativePath(deep), "velmora-test"};
    EXPECT_NE(meetOtherStarts(far, {}, kAsLongAsItTakes).listener, nullptr);
}

TEST_F(StartMeetingTest, AFirstStartThatDoesNotAnswerIsLeftAlone) {
    const auto listener = first();  // nobody drives it
    const Meeting meeting = meet(50ms);
    EXPECT_FALSE(meeting.handedOver);
    EXPECT_EQ(meeting.listener, nullptr);
    EXPECT_TRUE(tokens.empty());
}

TEST_F(StartMeetingTest, WhoeverMeetsOneThatEndsTakesItsPlace) {
    auto listener = first();
    auto second = laterStart();
    // Not accepted: the end of the first start is all that it hears.
    pollfd waited{.fd = listener->wait().descriptor, .events = POLLIN, .revents = 0};
    ASSERT_EQ(::poll(&waited, 1, 60000), 1);
    listener.reset();
    const Meeting meeting = second.get();
    EXPECT_FALSE(meeting.handedOver);
    EXPECT_NE(meeting.listener, nullptr);
}

TEST_F(StartMeetingTest, WhatIsNoSummonsIsNotAnswered) {
    const auto listener = first();
    for (const std::string& said : {std::string("hide\n"), std::string(5000, 'x')}) {
        const FileDescriptor other = stranger();
        ASSERT_TRUE(other.isOpen());
        ASSERT_EQ(send(other.number(), said.data(), said.size(), MSG_NOSIGNAL),
                  static_cast<ssize_t>(said.size()));
        char answer = 0;
        ASSERT_TRUE(drive(*listener, [&] {
            return recv(other.number(), &answer, 1, 0) == 0 || errno == ECONNRESET;
        })) << said;
    }
    EXPECT_TRUE(tokens.empty());
}

TEST_F(StartMeetingTest, ASummonsThatComesInPiecesIsHeard) {
    const auto listener = first();
    const FileDescriptor other = stranger();
    for (const char piece : std::string("show abc\n")) {
        ASSERT_EQ(send(other.number(), &piece, 1, MSG_NOSIGNAL), 1);
        ASSERT_TRUE(listener->goOn());
    }
    EXPECT_THAT(tokens, ElementsAre("abc"));
}

TEST_F(StartMeetingTest, ThoseWhoSaySomethingAreHeardWhateverOthersKeepSilent) {
    const auto listener = first();
    std::list<FileDescriptor> silent;
    for (int i = 0; i < 40; ++i) {
        silent.push_back(stranger());
        ASSERT_TRUE(silent.back().isOpen());
        ASSERT_TRUE(listener->goOn());
    }
    auto second = laterStart("b");
    ASSERT_TRUE(drive(*listener, [&] { return isDone(second); }));
    EXPECT_TRUE(second.get().handedOver);
}

TEST(SummonsLine, ATokenOfStrangeBytesIsLeftOut) {
    EXPECT_EQ(lineOf({.activationToken = "abc"}), "show abc\n");
    EXPECT_EQ(lineOf({.activationToken = ""}), "show \n");
    EXPECT_EQ(lineOf({.activationToken = "a\nb"}), "show \n");
    EXPECT_EQ(lineOf({.activationToken = "a b"}), "show \n");
    EXPECT_EQ(lineOf({.activationToken = std::string(5000, 'a')}), "show \n");
}

// The run-time folder of the user, for one test.
class MeetingPlaceTest : public ::testing::Test {
  protected:
    MeetingPlaceTest() {
        if (const char* before = std::getenv("XDG_RUNTIME_DIR"))
            before_ = before;
        std::filesystem::permissions(folder.path(), std::filesystem::perms(0700));
        setenv("XDG_RUNTIME_DIR", folder.path().c_str(), 1);
        std::filesystem::create_directory(folder.file("program"));
        std::filesystem::create_directory(folder.file("config"));
    }
    ~MeetingPlaceTest() override {
        if (before_)
            setenv("XDG_RUNTIME_DIR", before_->c_str(), 1);
        else
            unsetenv("XDG_RUNTIME_DIR");
    }
    MeetingPlaceTest(const MeetingPlaceTest&) = delete;
    MeetingPlaceTest& operator=(const MeetingPlaceTest&) = delete;

    [[nodiscard]] std::optional<MeetingPlace> at(const std::string& settings,
                                                 const std::string& program) const {
        return meetingPlace(NativePath(folder.file(settings)), NativePath(folder.file(program)));
    }

    test::TemporaryFolder folder;

  private:
    std::optional<std::string> before_;
};

TEST_F(MeetingPlaceTest, LiesInTheRunTimeFolderOfTheUser) {
    const auto place = at("config/settings.db", "program");
    ASSERT_TRUE(place);
    EXPECT_EQ(place->folder.utf8(), folder.path());
    EXPECT_THAT(place->name, ::testing::MatchesRegex("velmora-[0-9a-f]{16}"));
}

TEST_F(MeetingPlaceTest, IsTheSameWhateverLinkLeadsThere) {
    std::filesystem::create_directory_symlink(folder.file("program"), folder.file("link"));
    std::filesystem::create_directory_symlink(folder.file("config"), folder.file("other-config"));
    EXPECT_EQ(at("config/settings.db", "program"), at("other-config/settings.db", "link"));
    EXPECT_EQ(at("config/settings.db", "program"), at("config/../config/settings.db", "program/"));
}

TEST_F(MeetingPlaceTest, IsTheSameBeforeAndAfterTheSettingsAreMade) {
    const auto before = at("config/settings.db", "program");
    folder.write("config/settings.db", "x");
    EXPECT_EQ(before, at("config/settings.db", "program"));
}

TEST_F(MeetingPlaceTest, IsAnotherForOtherSettingsAndForAnotherFolder) {
    std::filesystem::create_directory(folder.file("program2"));
    EXPECT_NE(at("config/settings.db", "program"), at("config/settings.db", "program2"));
    EXPECT_NE(at("config/settings.db", "program"), at("config/other.db", "program"));
}

TEST_F(MeetingPlaceTest, ARunTimeFolderThatOthersMayWriteInIsNotUsed) {
    std::filesystem::permissions(folder.path(), std::filesystem::perms(0777));
    const auto place = at("config/settings.db", "program");
    EXPECT_TRUE(!place || place->folder.utf8() != folder.path());
}

TEST_F(MeetingPlaceTest, ARunTimeFolderOfAnotherUserIsNotUsed) {
    if (geteuid() != 0)
        GTEST_SKIP() << "only root can give a folder away";
    ASSERT_EQ(chown(folder.path().c_str(), 65534, 65534), 0);
    const auto place = at("config/settings.db", "program");
    EXPECT_TRUE(!place || place->folder.utf8() != folder.path());
}

TEST_F(MeetingPlaceTest, AFolderThatIsNoneIsNotUsed) {
    setenv("XDG_RUNTIME_DIR", "relative", 1);
    const auto place = at("config/settings.db", "program");
    EXPECT_TRUE(!place || place->folder.utf8() != "relative");
}

}  // namespace
}  // namespace velmora
