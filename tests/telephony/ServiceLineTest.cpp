#include "telephony/ServiceLine.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "support/FakeCallService.h"
#include "support/FakeEventLoop.h"

namespace velmora {
namespace {

using namespace std::chrono_literals;
using ::testing::ElementsAre;

class ServiceLineTest : public ::testing::Test {
  protected:
    ServiceLine lineOf(const char* country) {
        return ServiceLine(
            {{&modem, &phone}, country, CodePage::western(), loop, [this] { return now; }});
    }
    void listenTo(ServiceLine& line) {
        line.activate([this](const Caller& caller) {
            names.push_back(caller.name);
            numbers.push_back(caller.number);
        });
    }

    test::FakeEventLoop loop;
    test::FakeCallService modem{"modem"}, phone{"phone"};
    CallMerger::Time now;
    std::vector<std::string> names, numbers;
};

TEST_F(ServiceLineTest, AsksItsServicesOnlyWhenItIsActivated) {
    ServiceLine line = lineOf("US");
    EXPECT_FALSE(modem.isHeard());
    listenTo(line);
    EXPECT_TRUE(modem.isHeard());
    EXPECT_TRUE(phone.isHeard());
}

TEST_F(ServiceLineTest, ACallIsToldFromTheLoopAndInTheFormOfTheCountry) {
    ServiceLine line = lineOf("US");
    listenTo(line);
    modem.ring({"Ann", "+15165551212"});
    EXPECT_THAT(numbers, ElementsAre()) << "the service is still at work";
    loop.runPosted();
    EXPECT_THAT(names, ElementsAre("Ann"));
    EXPECT_THAT(numbers, ElementsAre("5165551212"));
}

TEST_F(ServiceLineTest, OtherCountriesHaveTheirOwnForm) {
    ServiceLine line = lineOf("DE");
    listenTo(line);
    modem.ring({"", "+4930123456"});
    modem.ring({"", "+15165551212"});
    loop.runPosted();
    EXPECT_THAT(numbers, ElementsAre("030123456", "+15165551212"));
}

TEST_F(ServiceLineTest, OneCallThatTwoServicesReportIsOne) {
    ServiceLine line = lineOf("US");
    listenTo(line);
    modem.ring({"", "+15165551212"});
    now += 4s;
    phone.ring({"Ann", "(516) 555-1212"});
    now += 2s;
    phone.ring({"Ann", "5165551212"});
    loop.runPosted();
    EXPECT_THAT(numbers, ElementsAre("5165551212", "5165551212"));
}

TEST_F(ServiceLineTest, WhatIsNoTextOfOneLineBecomesOne) {
    ServiceLine line = lineOf("US");
    listenTo(line);
    modem.ring({"An\xC3\xA9<b>\r\nBell", std::string("555\0001\t2\r\n", 10)});
    modem.ring({"\xE6\x97\xA5\xFF",
                "\xE2\x80\xA8"
                "7"});
    modem.ring({"", std::string(500, '5')});
    modem.ring({std::string(100000, 'x'), ""});
    loop.runPosted();
    EXPECT_EQ("An\xE9<b>  Bell", names[0]);
    EXPECT_EQ("555 1 2", numbers[0]);
    for (const std::string& text : {names[1], numbers[1]})
        for (const char c : text)
            EXPECT_GE(static_cast<unsigned char>(c), 0x20);
    EXPECT_EQ(std::string(500, '5'), numbers[2]);
    EXPECT_EQ("", numbers[3]);
}

TEST_F(ServiceLineTest, ACallOfALineThatIsGoneIsToldToNobody) {
    {
        ServiceLine line = lineOf("US");
        listenTo(line);
        modem.ring({"", "5165551212"});
    }
    loop.runPosted();
    EXPECT_THAT(numbers, ElementsAre());
}

}  // namespace
}  // namespace velmora
