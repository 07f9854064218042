#include "core/PatientCommand.h"

#include <gtest/gtest.h>

#include <optional>

#include "platform/StorageFailure.h"
#include "support/FakeEventLoop.h"
#include "support/FakeStatusLine.h"
#include "support/FakeUserInput.h"

namespace velmora {
namespace {

using namespace std::chrono_literals;

class PatientCommandTest : public testing::Test {
  protected:
    // Fails so often as if another program used the file.
    void run(int busy) {
        patient.run([&] {
            ++tries;
            wasShutOut = input.isOut;
            if (tries <= busy)
                throw StorageFailure("in use", Obstacle::InUse);
        });
    }

    test::FakeEventLoop loop;
    test::FakeStatusLine status;
    test::FakeUserInput input;
    PatientCommand patient{loop, status, input};
    int tries = 0;
    bool wasShutOut = false;
};

TEST_F(PatientCommandTest, DoesAtOnceWhatNothingStandsInTheWayOf) {
    status.text = "as it was";
    run(0);
    EXPECT_EQ(tries, 1);
    EXPECT_EQ(loop.waited, 0ms);
    EXPECT_EQ(input.times, 0);
    EXPECT_EQ(status.text, "as it was");
}

TEST_F(PatientCommandTest, TriesAgainWithTheWaitShownAndInputShutOut) {
    run(3);
    EXPECT_EQ(tries, 4);
    EXPECT_GT(loop.waited, 0ms);
    EXPECT_TRUE(wasShutOut);
    EXPECT_FALSE(input.isOut);
    EXPECT_EQ(status.text, "");
}

TEST_F(PatientCommandTest, GivesUpAfterSomeFiveSecondsAndSaysWhy) {
    EXPECT_THROW(run(1000), StorageFailure);
    // Each try waits for a lock by itself, too.
    const auto all = loop.waited + tries * 200ms;
    EXPECT_GE(all, 4500ms);
    EXPECT_LE(all, 5500ms);
    EXPECT_FALSE(input.isOut);
    EXPECT_EQ(status.text, "Waiting: another copy of Velmora is using the file.");
}

TEST_F(PatientCommandTest, WaitsAloneWhereThereIsNoWindowYet) {
    patient.runAlone([&] {
        if (++tries <= 3)
            throw StorageFailure("in use", Obstacle::InUse);
    });
    EXPECT_EQ(tries, 4);
    EXPECT_EQ(loop.frozen, 300ms);
    EXPECT_EQ(loop.waited, 0ms);
    EXPECT_EQ(input.times, 0);
}

TEST_F(PatientCommandTest, GivesUpAloneAfterSomeFiveSeconds) {
    const auto work = [&] {
        ++tries;
        throw StorageFailure("in use", Obstacle::InUse);
    };
    EXPECT_THROW(patient.runAlone(work), StorageFailure);
    const auto all = loop.frozen + tries * 200ms;
    EXPECT_GE(all, 4500ms);
    EXPECT_LE(all, 5500ms);
}

TEST_F(PatientCommandTest, WaitsForNothingElse) {
    EXPECT_THROW(patient.run([] { throw StorageFailure("full", Obstacle::DiskFull); }), Failure);
    EXPECT_THROW(patient.run([] { throw Failure("damaged"); }), Failure);
    EXPECT_EQ(loop.waited, 0ms);
}

TEST_F(PatientCommandTest, EndsWithTheProgram) {
    loop.isClosing = true;
    EXPECT_THROW(run(1000), StorageFailure);
    EXPECT_EQ(tries, 2);
}

}  // namespace
}  // namespace velmora
