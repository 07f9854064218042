#include "platform/qt/EndSignals.h"

#include <gtest/gtest.h>

#include <QCoreApplication>
#include <QTest>
#include <csignal>

namespace velmora {
namespace {

TEST(EndSignals, EachRequestToEndIsHeardInTheEventLoop) {
    // What starts this test in the background may have it ignore some.
    for (const int signal : {SIGTERM, SIGHUP, SIGINT})
        std::signal(signal, SIG_DFL);
    int heard = 0;
    const EndSignals endSignals([&] { ++heard; });
    int expected = 0;
    for (const int signal : {SIGTERM, SIGHUP, SIGINT}) {
        std::raise(signal);
        EXPECT_EQ(heard, expected) << "not in the handler";
        EXPECT_TRUE(QTest::qWaitFor([&] { return heard == expected + 1; })) << signal;
        ++expected;
    }
}

TEST(EndSignals, ASignalThatIsIgnoredStaysSoAndTheOthersAreAsBeforeAfterwards) {
    std::signal(SIGTERM, SIG_DFL);
    const auto before = std::signal(SIGHUP, SIG_IGN);
    {
        int heard = 0;
        const EndSignals endSignals([&] { ++heard; });
        std::raise(SIGHUP);
        std::raise(SIGTERM);
        EXPECT_TRUE(QTest::qWaitFor([&] { return heard > 0; }));
        EXPECT_EQ(heard, 1);
    }
    EXPECT_EQ(std::signal(SIGHUP, before), SIG_IGN);
    EXPECT_EQ(std::signal(SIGTERM, SIG_DFL), SIG_DFL);
}

}  // namespace
}  // namespace velmora
