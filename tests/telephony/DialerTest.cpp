#include "telephony/Dialer.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "support/FakeClock.h"
#include "support/FakeDialerPane.h"
#include "support/FakeEventLoop.h"
#include "support/FakeMessages.h"
#include "support/FakeModemPort.h"
#include "support/FakePhonebookPane.h"
#include "support/FakeStatusLine.h"
#include "support/PhonebookFixture.h"

namespace velmora {
namespace {

using namespace std::chrono_literals;
using ::testing::ElementsAre;
using ::testing::IsEmpty;

class DialerTest : public ::testing::Test, protected test::PhonebookFixture {
  protected:
    DialerTest() {
        settings.Save("ComPort", "COM3");
        clock.set(std::chrono::year(2001) / 11 / 15, 17h + 34min);
    }

    // Dials, and returns what became of the number.
    std::string dial(std::string number) {
        dialer.DialNumber(number);
        return number;
    }
    std::string log() { return files["/velmora\\phonelog.txt"]; }

    test::FakeModemPort port;
    test::FakeDialerPane pane;
    test::FakePhonebookPane list;
    test::FakeStatusLine status;
    test::FakeMessages messages;
    test::FakeEventLoop loop;
    test::FakeClock clock;
    LocaleFormats locale;
    PhoneLog phoneLog{"/velmora", files, clock, locale};
    SelectedEntry entry{state, store, list};
    Dialer dialer{{port, settings, entry, phoneLog, pane, status, messages, loop, codePage}};
};

TEST_F(DialerTest, SendsTheInitialisationAndThreeSecondsLaterTheNumber) {
    settings.Save("ComInit", "  ATZ ");
    dial("5551212");
    EXPECT_THAT(port.calls, ElementsAre("open 3", "ATZ\r", "ATDT5551212\r\n"));
    EXPECT_EQ(loop.frozen, 3s);
    EXPECT_TRUE(port.isOpen());
    EXPECT_EQ(status.text,
              "Dialing: 5551212.   When a RING is heard, pick up your phone and click Hangup.");
    EXPECT_THAT(messages.takeShown(), IsEmpty());
}

TEST_F(DialerTest, AnEmptyInitialisationIsALoneCarriageReturn) {
    dial("1");
    EXPECT_THAT(port.calls, ElementsAre("open 3", "\r", "ATDT1\r\n"));
}

TEST_F(DialerTest, ThePrefixStandsBeforeTheNumberAsItIs) {
    settings.Save("ComType", "Tone");
    settings.Save("ComPrefix", "9,");
    dial("5551212");
    EXPECT_EQ(port.calls.back(), "ATDT9,5551212\r\n");
    settings.Save("ComPrefix", " 9 ");
    dial("5551212");
    EXPECT_EQ(port.calls.back(), "ATDT 9 5551212\r\n");
}

TEST_F(DialerTest, TheModeCountsByItsExactLetters) {
    for (const auto& [mode, sent] : {std::pair{"Tone", "ATDT1\r\n"},
                                     {"Pulse", "ATDP1\r\n"},
                                     {"", "ATDT1\r\n"},
                                     {"TONE", "1\r\n"},
                                     {" Tone", "1\r\n"}}) {
        settings.Save("ComType", mode);
        dial("1");
        EXPECT_EQ(port.calls.back(), sent) << mode;
    }
}

TEST_F(DialerTest, TheLastCharacterOfThePortsNameIsItsNumber) {
    for (const auto& [name, call] : {std::pair{"COM3", "open 3"},
                                     {" COM8  ", "open 8"},
                                     {"COM10", "open 0"},
                                     {"", "open 0"},
                                     {"COMx", "open 0"}}) {
        settings.Save("ComPort", name);
        port.close();
        port.calls.clear();
        dial("1");
        EXPECT_EQ(port.calls.front(), call) << name;
    }
}

TEST_F(DialerTest, APortThatCanNotBeOpenedEndsTheCallInSilence) {
    status.text = "before";
    settings.Save("LogPhone", "1");
    settings.Save("ComPort", "");
    dial("5551212");
    port.failOpen = true;
    settings.Save("ComPort", "COM1");
    dial("5551212");
    EXPECT_THAT(port.calls, ElementsAre("open 0", "open 1"));
    EXPECT_THAT(messages.takeShown(), IsEmpty());
    EXPECT_EQ(status.text, "before");
    EXPECT_EQ(log(), "");
}

TEST_F(DialerTest, ADeviceThatVanishesBetweenTheTwoTextsEndsTheCallInSilence) {
    settings.Save("LogPhone", "1");
    port.failSend = 1;
    dial("5551212");
    EXPECT_THAT(port.calls, ElementsAre("open 3", "\r"));
    EXPECT_THAT(messages.takeShown(), IsEmpty());
    EXPECT_EQ(status.text, "");
    EXPECT_EQ(log(), "");
    EXPECT_TRUE(port.isOpen());
}

TEST_F(DialerTest, ADeviceThatIsUnavailableIsToldAndTried) {
    port.statusAfterOpen = 68;
    dial("1");
    EXPECT_THAT(messages.takeShown(),
                ElementsAre("tell|Hardware Error|Please select Preferences to set the appropriate "
                            "COM port."));
    EXPECT_EQ(port.calls.back(), "ATDT1\r\n");
}

TEST_F(DialerTest, AStatusAboveEightThousandIsToldAndNothingIsLogged) {
    settings.Save("LogPhone", "1");
    port.statusAfterSend = 8001;
    dial("1");
    EXPECT_THAT(messages.takeShown(),
                ElementsAre("warn|Error|Unable to dial number. Error Number 0."));
    EXPECT_EQ(log(), "");
    EXPECT_EQ(status.text, "");
    port.statusAfterSend = 8000;
    dial("1");
    EXPECT_THAT(messages.takeShown(), IsEmpty());
    EXPECT_NE(log(), "");
}

TEST_F(DialerTest, AnEmptyNumberIsRefusedAndNeverReachesThePort) {
    pane.callHangUpShown = true;
    dial("");
    EXPECT_THAT(messages.takeShown(),
                ElementsAre("tell|Velmora|No Phone Number was Entered. Do try again."));
    EXPECT_THAT(port.calls, IsEmpty());
    EXPECT_TRUE(pane.sendEnabled);
    EXPECT_FALSE(pane.callHangUpShown);
}

TEST_F(DialerTest, ANumberOfBlanksIsDialedAndHidesTheHangUpOfTheCall) {
    pane.callHangUpShown = true;
    dial("  ");
    EXPECT_EQ(port.calls.back(), "ATDT  \r\n");
    EXPECT_FALSE(pane.callHangUpShown);
}

TEST_F(DialerTest, TheOwnAreaCodeComesOffWhereverItStandsInTheFirstFour) {
    for (const auto& [code, number, dialed] : {std::tuple{"212", "2125551212", "5551212"},
                                               {"212", "1212555", "2555"},
                                               {"516", "(516) 555-1212", "6) 555-1212"},
                                               {" 212 ", "2125551212", "5551212"},
                                               {"", "2125551212", "2125551212"},
                                               {"212", "5552125", "5552125"},
                                               {"ab", "xABc5", "Bc5"},
                                               {"21255", "2125551212", "2125551212"}}) {
        settings.Save("LocalAreaCode", code);
        EXPECT_EQ(dial(number), dialed) << code;
        EXPECT_EQ(port.calls.back(), std::string("ATDT") + dialed + "\r\n");
    }
}

TEST_F(DialerTest, ANumberThatIsTheAreaCodeIsRefusedAsEmpty) {
    settings.Save("LocalAreaCode", "212");
    EXPECT_EQ(dial("212"), "");
    EXPECT_EQ(messages.takeShown().size(), 1U);
    EXPECT_THAT(port.calls, IsEmpty());
}

TEST_F(DialerTest, ASecondCallDropsTheLineFirst) {
    dial("1");
    dial("2");
    EXPECT_THAT(port.calls,
                ElementsAre("open 3", "\r", "ATDT1\r\n", "close", "open 3", "\r", "ATDT2\r\n"));
}

TEST_F(DialerTest, ACallFromAPendingEventRunsWhollyFirst) {
    loop.onYield = [this] {
        loop.onYield = nullptr;
        dial("1");
    };
    dial("2");
    EXPECT_THAT(port.calls,
                ElementsAre("open 3", "\r", "ATDT1\r\n", "close", "open 3", "\r", "ATDT2\r\n"));
}

TEST_F(DialerTest, AProgramThatClosesDialsNoMore) {
    loop.onYield = [this] { loop.isClosing = true; };
    dial("1");
    EXPECT_THAT(port.calls, IsEmpty());
}

TEST_F(DialerTest, LogsTheNumberAsItIsDialedOnlyWhenTheSettingIsOne) {
    settings.Save("LocalAreaCode", "212");
    settings.Save("ComPrefix", "9,");
    for (const char* off : {"", "0", "10", "-1", "YES"}) {
        settings.Save("LogPhone", off);
        dial("2125551212");
        EXPECT_EQ(log(), "") << off;
    }
    settings.Save("LogPhone", " 1.0");
    dial("2125551212");
    EXPECT_EQ(log(), "15-Nov-01\t05:34 PM\tOutgoing\t5551212\r\n");
}

TEST_F(DialerTest, ALogThatCanNotBeWrittenEndsTheCallWithTheModemDialing) {
    settings.Save("LogPhone", "1");
    files.writesUntilFailure = 0;
    dial("1");
    EXPECT_EQ(port.calls.back(), "ATDT1\r\n");
    EXPECT_THAT(messages.takeShown(), IsEmpty());
    EXPECT_EQ(status.text, "");
}

TEST_F(DialerTest, SendKeepsTheDisplayAndRemembersItUnstripped) {
    settings.Save("LocalAreaCode", "212");
    pane.display = "2125551212";
    loop.onYield = [this] { EXPECT_FALSE(pane.hangUpEnabled); };
    pane.hangUpEnabled = true;
    dialer.Send();
    EXPECT_TRUE(pane.hangUpEnabled);
    EXPECT_EQ(pane.display, "2125551212");
    EXPECT_EQ(port.calls.back(), "ATDT5551212\r\n");
    EXPECT_EQ(settings.Read("LastNumber"), "2125551212");
}

TEST_F(DialerTest, SendEnablesHangUpEvenWhenTheNumberIsEmpty) {
    dialer.Send();
    EXPECT_EQ(messages.takeShown().size(), 1U);
    EXPECT_TRUE(pane.hangUpEnabled);
    EXPECT_EQ(settings.Read("LastNumber"), "");
}

TEST_F(DialerTest, EachCommandOfAnEntryDialsItsField) {
    PhonebookRecord smith = test::personRecord("Smith", "Ann");
    smith.assign(Field::Phone, "111");
    smith.assign(Field::WorkPhone, "222");
    smith.assign(Field::OtherPhone, "333");
    yellow() = test::bytesOf(smith);
    list.selected = "Smith, Ann";
    for (const auto& [field, sent] : {std::pair{Field::Phone, "ATDT111\r\n"},
                                      {Field::WorkPhone, "ATDT222\r\n"},
                                      {Field::OtherPhone, "ATDT333\r\n"}}) {
        pane.callHangUpShown = false;
        dialer.dialEntry(field);
        EXPECT_EQ(port.calls.back(), sent);
        EXPECT_TRUE(pane.callHangUpShown);
    }
    EXPECT_EQ(settings.Read("LastNumber"), "");
}

TEST_F(DialerTest, AnEntryWithoutThatNumberIsToldAndNoPortIsTouched) {
    yellow() = test::bytesOf(test::personRecord("Smith", "Ann"));
    for (const char* line : {"Smith, Ann", "Nobody, Here", ""}) {
        list.selected = line;
        dialer.dialEntry(Field::WorkPhone);
        EXPECT_THAT(messages.takeShown(),
                    ElementsAre("tell|Velmora|No Phone Number was Entered. Do try again."));
        EXPECT_FALSE(pane.callHangUpShown);
    }
    EXPECT_THAT(port.calls, IsEmpty());
}

TEST_F(DialerTest, HangingUpDropsTheLineAndEmptiesTheStatus) {
    dial("1");
    pane.hangUpEnabled = true;
    dialer.hangUp();
    EXPECT_THAT(port.calls, ElementsAre("open 3", "\r", "ATDT1\r\n", "ATH0", "close"));
    EXPECT_FALSE(port.isOpen());
    EXPECT_EQ(status.text, "");
    EXPECT_FALSE(pane.hangUpEnabled);
}

TEST_F(DialerTest, HangingUpACallHidesItsButtonWhateverThePortDoes) {
    pane.callHangUpShown = true;
    status.text = "Dialing";
    dialer.hangUpCall();
    EXPECT_FALSE(pane.callHangUpShown);
    EXPECT_EQ(status.text, "");
}

}  // namespace
}  // namespace velmora
