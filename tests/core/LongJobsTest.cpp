#include "core/LongJobs.h"

#include <gtest/gtest.h>

#include <stdexcept>

#include "support/PrintDesk.h"

namespace velmora {
namespace {

constexpr const char* kBusy = "Velmora is still busy with a job. Try again when it is done.";

class LongJobsTest : public testing::Test {
  protected:
    test::PrintDesk desk;
    LongJobs& jobs = desk.jobs;
};

TEST_F(LongJobsTest, TheCancelIconIsInViewWhileAJobRunsAndNoLonger) {
    EXPECT_TRUE(jobs.run([&](LongJob& job) {
        EXPECT_TRUE(desk.icon.shown);
        EXPECT_TRUE(job.goOn());
        job.tell("half way");
        EXPECT_EQ(desk.status.text, "half way");
    }));
    EXPECT_FALSE(desk.icon.shown);
    EXPECT_FALSE(jobs.running());
}

TEST_F(LongJobsTest, ASecondJobIsRefusedAndTheStatusLineSaysWhy) {
    bool second = false;
    jobs.run([&](LongJob&) {
        EXPECT_FALSE(jobs.run([&](LongJob&) { second = true; }));
        EXPECT_EQ(desk.status.text, kBusy);
    });
    EXPECT_FALSE(second);
    EXPECT_FALSE(jobs.refuses());
}

TEST_F(LongJobsTest, AClickOnTheIconCallsTheJobOffOnce) {
    int hooks = 0;
    jobs.run([&](LongJob& job) {
        jobs.onCancel([&] { ++hooks; });
        jobs.cancel();
        jobs.cancel();
        EXPECT_TRUE(job.cancelled());
        EXPECT_FALSE(job.goOn());
        EXPECT_FALSE(desk.icon.shown);
    });
    EXPECT_EQ(hooks, 1);
    jobs.run([&](LongJob& job) { EXPECT_TRUE(job.goOn()); });
}

TEST_F(LongJobsTest, AJobMayHaveAnIconOfItsOwn) {
    test::FakeCancelIcon own;
    jobs.run(
        [&](LongJob& job) {
            EXPECT_TRUE(own.shown);
            EXPECT_FALSE(desk.icon.shown);
            jobs.cancel();
            EXPECT_FALSE(own.shown);
            EXPECT_FALSE(job.goOn());
        },
        &own);
    jobs.run([&](LongJob&) { EXPECT_TRUE(desk.icon.shown); });
    EXPECT_EQ(own.log, (std::vector<bool>{true, false}));
}

TEST_F(LongJobsTest, AClickWithoutAJobIsNothing) {
    jobs.cancel();
    jobs.run([&](LongJob& job) { EXPECT_FALSE(job.cancelled()); });
}

TEST_F(LongJobsTest, TheEndOfTheProgramCallsTheJobOff) {
    jobs.run([&](LongJob& job) {
        desk.loop.onYield = [&] { desk.loop.isClosing = true; };
        EXPECT_FALSE(job.goOn());
    });
}

TEST_F(LongJobsTest, WhatAJobThrowsPassesThroughAndTheNextMayCome) {
    EXPECT_THROW(jobs.run([](LongJob&) { throw std::runtime_error("x"); }), std::runtime_error);
    EXPECT_FALSE(desk.icon.shown);
    EXPECT_TRUE(jobs.run([](LongJob&) {}));
}

}  // namespace
}  // namespace velmora
