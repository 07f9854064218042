#include "telephony/CallerModem.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "platform/Failure.h"
#include "support/FakeCallerReport.h"
#include "support/FakeClock.h"
#include "support/FakeEventLoop.h"
#include "support/FakeMessages.h"
#include "support/FakeStatusLine.h"
#include "support/PhonebookFixture.h"

namespace velmora {
namespace {

using namespace std::chrono_literals;
using ::testing::ElementsAre;
using ::testing::IsEmpty;

// Port and timer, which write down together what is done to them.
class FakeCallerDevice final : public CallerPort, public CallerTimer {
  public:
    void open(int number) override { act("open " + std::to_string(number)); }
    void send(std::string_view bytes) override { act(std::string(bytes)); }
    [[nodiscard]] std::string read() override {
        act("read");
        return std::exchange(input, {});
    }
    void close() override { act("close"); }
    void enable(bool enabled) override { done.emplace_back(enabled ? "timer on" : "timer off"); }

    std::string input;
    bool broken = false;
    std::vector<std::string> done;

  private:
    void act(const std::string& what) {
        done.push_back(what);
        if (broken)
            throw Failure("The port is gone.");
    }
};

class CallerModemTest : public ::testing::Test, protected test::PhonebookFixture {
  protected:
    CallerModemTest() { settings.Save("ComPort", "COM3"); }

    test::FakeCallerReport report;
    test::FakeStatusLine status;
    test::FakeMessages messages;
    test::FakeEventLoop loop;
    test::FakeClock clock;
    LocaleFormats locale;
    PhoneLog log{"/velmora", files, clock, locale};
    CallerId callerId{{settings, store, log, report, status, loop}};
    FakeCallerDevice device;
    CallerModem modem{{device, device, settings, messages, loop, store.codePage(), callerId}};
};

TEST_F(CallerModemTest, WhatComesInIsNotLookedAt) {
    device.input = "NMBR = 5165551212\r\n";
    modem.onModem();
    EXPECT_THAT(device.done, IsEmpty());
    EXPECT_FALSE(report.open);
}

TEST_F(CallerModemTest, ANumberInWhatCameInWouldBeACallWhateverTheSettingSays) {
    device.input = "  RING\r\nnmbr = 5165551212\r\n  ";
    modem.readCall();
    EXPECT_EQ(report.number, "5165551212");
    for (const char* other : {"", "RING\r\n", "NMBR=5\r\n"}) {
        report.open = false;
        device.input = other;
        modem.readCall();
        EXPECT_FALSE(report.open) << other;
    }
    device.input = "NMBR = 5";  // cut short
    modem.readCall();
    EXPECT_EQ(report.number, "");
}

TEST_F(CallerModemTest, TheModemIsPreparedAndThePortClosedAgain) {
    settings.Save("CallerID", " on ");
    device.input = "\r\nok\r\n";
    modem.InitCallerID();
    EXPECT_THAT(device.done,
                ElementsAre("timer off", "timer on", "open 3", "AT#CID=1\r\n", "read", "close"));
    EXPECT_EQ(loop.frozen, 3s);
    EXPECT_THAT(messages.takeShown(), IsEmpty());
}

TEST_F(CallerModemTest, AModemThatDoesNotAgreeIsToldAndTheTimerStops) {
    settings.Save("CallerID", "ON");
    device.input = "ERROR";
    modem.InitCallerID();
    EXPECT_EQ(device.done.back(), "close");
    EXPECT_EQ(device.done[device.done.size() - 2], "timer off");
    EXPECT_THAT(messages.takeShown(),
                ElementsAre("warn|Velmora|Error Sending CallerID Initialization. Please disable "
                            "Caller ID in the Preferences dialog box."));
    device.broken = true;
    modem.InitCallerID();
    EXPECT_THAT(messages.takeShown(), ::testing::SizeIs(1)) << "and nothing is thrown";
}

TEST_F(CallerModemTest, SwitchedOffItOnlyClosesThePort) {
    modem.InitCallerID();
    EXPECT_THAT(device.done, ElementsAre("timer off", "close"));
}

}  // namespace
}  // namespace velmora
