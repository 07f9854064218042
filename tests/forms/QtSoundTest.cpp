#include "platform/qt/QtSound.h"

#include <gtest/gtest.h>
#include <sys/stat.h>

#include <QTest>

#include "support/SamePaths.h"
#include "support/TemporaryFolder.h"

namespace velmora::test {
namespace {

// Plays with programs of the test, which write down what they are asked for.
class QtSoundTest : public testing::Test {
  protected:
    QtSoundTest() {
        folder.write("bell.wav", "RIFF" + std::string("\x10\0\0\0", 4) + "WAVEfmt and so on");
        folder.write("noise.wav", "this is no sound");
    }

    // A player that ends with `code` after having waited for "release", if it is to.
    std::string makePlayer(const std::string& name, int code, bool waits = false) {
        std::string path = folder.file(name);
        std::string script = "#!/bin/sh\necho \"$@\" >>'" + path + ".heard'\n";
        if (waits)
            script += "exec cat '" + folder.file("pipe") + "'\n";
        script += "exit " + std::to_string(code) + "\n";
        folder.write(name, script);
        ::chmod(path.c_str(), 0700);
        return path;
    }
    std::string heardBy(const std::string& player) { return folder.read(player + ".heard"); }
    // The file is there before its line is.
    bool hasHeard(const std::string& player) {
        return folder.has(player + ".heard") && heardBy(player).ends_with('\n');
    }

    std::unique_ptr<QtSound> soundWith(const std::vector<std::string>& players) {
        std::vector<QtSound::Player> list;
        list.reserve(players.size());
        for (const std::string& player : players)
            list.push_back({QString::fromStdString(player), {QStringLiteral("-q")}});
        return std::make_unique<QtSound>(test::samePaths(), list, [this] { ++beeps; });
    }

    TemporaryFolder folder;
    int beeps = 0;
};

TEST_F(QtSoundTest, GivesTheFileToTheFirstPlayerThatIsThere) {
    const auto sound =
        soundWith({folder.file("missing"), makePlayer("one", 0), makePlayer("two", 0)});
    sound->play(folder.file("bell.wav"));
    ASSERT_TRUE(QTest::qWaitFor([&] { return hasHeard("one"); }));
    EXPECT_EQ(heardBy("one"), "-q " + folder.file("bell.wav") + "\n");
    EXPECT_FALSE(hasHeard("two"));
    EXPECT_EQ(beeps, 0);
}

TEST_F(QtSoundTest, ReturnsWhileThePlayerIsStillPlaying) {
    ASSERT_EQ(::mkfifo(folder.file("pipe").c_str(), 0600), 0);
    const auto sound = soundWith({makePlayer("slow", 0, true)});
    sound->play(folder.file("bell.wav"));
    sound->play(folder.file("bell.wav"));  // cuts the first one off
    ASSERT_TRUE(QTest::qWaitFor([&] { return hasHeard("slow"); }));
    EXPECT_EQ(beeps, 0);
}

TEST_F(QtSoundTest, AFileThatIsNoSoundAndAMissingOneBeepThreeTimes) {
    const auto sound = soundWith({makePlayer("player", 0)});
    for (const char* file : {"noise.wav", "missing.wav"}) {
        beeps = 0;
        sound->play(folder.file(file));
        EXPECT_EQ(beeps, 1);
        ASSERT_TRUE(QTest::qWaitFor([&] { return beeps == 3; }));
    }
    EXPECT_FALSE(hasHeard("player"));
}

TEST_F(QtSoundTest, APlayerThatFailsOrIsMissingBeepsThreeTimes) {
    for (const auto& players :
         {std::vector{makePlayer("failing", 1)}, std::vector<std::string>{}}) {
        beeps = 0;
        const auto sound = soundWith(players);
        sound->play(folder.file("bell.wav"));
        EXPECT_TRUE(QTest::qWaitFor([&] { return beeps == 3; }));
    }
}

TEST_F(QtSoundTest, AFileThatBeginsWhileItBeepsEndsTheBeeping) {
    const auto sound = soundWith({makePlayer("player", 0)});
    sound->beepThreeTimes();
    sound->play(folder.file("bell.wav"));
    ASSERT_TRUE(QTest::qWaitFor([&] { return hasHeard("player"); }));
    EXPECT_EQ(beeps, 1);
}

TEST_F(QtSoundTest, BeepsOneAfterTheOther) {
    const auto sound = soundWith({});
    sound->beepThreeTimes();
    EXPECT_EQ(beeps, 1);
    ASSERT_TRUE(QTest::qWaitFor([&] { return beeps >= 2; }));
    EXPECT_EQ(beeps, 2);
    ASSERT_TRUE(QTest::qWaitFor([&] { return beeps >= 3; }));
    EXPECT_EQ(beeps, 3);
}

TEST_F(QtSoundTest, BeepsSixTimesForTwoAlarmsThatFireTogether) {
    const auto sound = soundWith({});
    sound->beepThreeTimes();
    sound->beepThreeTimes();
    EXPECT_EQ(beeps, 1);
    ASSERT_TRUE(QTest::qWaitFor([&] { return beeps >= 6; }));
    sound->beepThreeTimes();
    ASSERT_TRUE(QTest::qWaitFor([&] { return beeps >= 9; }));
    EXPECT_EQ(beeps, 9);
}

}  // namespace
}  // namespace velmora::test
