#include "telephony/TelephoneLink.h"

#include <gtest/gtest.h>

namespace velmora {
namespace {

TEST(TelephoneLink, DigitsStarsHashesAndCommasAreTheNumber) {
    EXPECT_EQ(numberOfLink("tel:5551212"), "5551212");
    EXPECT_EQ(numberOfLink("tel:9,*67#"), "9,*67#");
}

TEST(TelephoneLink, WhatIsOnlyThereToBeReadIsLeftOut) {
    EXPECT_EQ(numberOfLink("tel:(516)%20555-1212"), "5165551212");
    EXPECT_EQ(numberOfLink("tel://516.555.1212"), "5165551212");
    EXPECT_EQ(numberOfLink("tel:516 555\r\n1212\"|;rm"), "5165551212");
}

TEST(TelephoneLink, APlusStandsInFrontOnly) {
    EXPECT_EQ(numberOfLink("tel:+1-516-555-1212"), "+15165551212");
    EXPECT_EQ(numberOfLink("tel:%2B1516"), "+1516");
    EXPECT_EQ(numberOfLink("tel:%2b49 (0)30"), "+49030");
    EXPECT_EQ(numberOfLink("tel:0+1"), "01");
    EXPECT_EQ(numberOfLink("tel:++1"), "+1");
}

TEST(TelephoneLink, ParametersAreNoPartOfTheNumber) {
    EXPECT_EQ(numberOfLink("tel:7042;phone-context=+1516"), "7042");
    EXPECT_EQ(numberOfLink("tel:7042?call=1"), "7042");
}

TEST(TelephoneLink, TheSchemeIsReadInAnyCase) {
    EXPECT_EQ(numberOfLink("TEL:12"), "12");
    EXPECT_EQ(numberOfLink("Tel:12"), "12");
}

TEST(TelephoneLink, FortyCharactersAreTaken) {
    const std::string digits(39, '7');
    EXPECT_EQ(numberOfLink("tel:" + digits + "89"), digits + "8");
    EXPECT_EQ(numberOfLink("tel:+" + digits + "89"), "+" + digits);
}

TEST(TelephoneLink, AnythingElseHasNoNumber) {
    for (const char* link : {"", "tel", "tel:", "tel:+", "tel:abc", "5551212", "mailto:1@2",
                             "https://velmora.example/123", "tel:%", "tel:%zz"})
        EXPECT_EQ(numberOfLink(link), "") << link;
}

TEST(TelephoneLink, OfSeveralTheFirstWithANumberCounts) {
    EXPECT_EQ(numberOfLinks({"mailto:a", "tel:x", "tel:12", "tel:34"}), "12");
    EXPECT_EQ(numberOfLinks({}), "");
    EXPECT_EQ(numberOfLinks({"mailto:a"}), "");
}

}  // namespace
}  // namespace velmora
