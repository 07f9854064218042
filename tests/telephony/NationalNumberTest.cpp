#include "telephony/NationalNumber.h"

#include <gtest/gtest.h>

namespace velmora {
namespace {

TEST(NationalNumber, NorthAmericansLeaveTheOneOut) {
    for (const char* country : {"US", "ca", "PR"})
        for (const char* received : {"+15165551212", "15165551212", "0015165551212",
                                     "+1 (516) 555-1212", "1-516-555-1212"})
            EXPECT_EQ(nationalNumber(received, country), "5165551212") << received;
}

TEST(NationalNumber, ElsewhereTheOwnCountryCodeGivesWayToWhatCallsWithinBeginWith) {
    EXPECT_EQ(nationalNumber("+4930123456", "DE"), "030123456");
    EXPECT_EQ(nationalNumber("004930123456", "de"), "030123456");
    EXPECT_EQ(nationalNumber("+44 20 7946 0000", "GB"), "02079460000");
    EXPECT_EQ(nationalNumber("+43(1)123456", "AT"), "01123456");
}

TEST(NationalNumber, CountriesWithoutSuchADigitHaveTheBareNumber) {
    EXPECT_EQ(nationalNumber("+34912345678", "ES"), "912345678");
    EXPECT_EQ(nationalNumber("+390612345678", "IT"), "0612345678");
}

TEST(NationalNumber, AnyOtherNumberComesBackAsItIs) {
    for (const char* received : {"", "5551212", "030123456", "+33123456789", "0033123456789", "+49",
                                 "+", "00", "+49x30", "anonymous", "*21#", "110"})
        EXPECT_EQ(nationalNumber(received, "DE"), received);
    for (const char* received :
         {"", "5551212", "+49301234567", "+1516555121", "2125551212", "911", "25165551212"})
        EXPECT_EQ(nationalNumber(received, "US"), received);
    EXPECT_EQ(nationalNumber("+15165551212", "??"), "+15165551212");
    EXPECT_EQ(nationalNumber("+15165551212", ""), "+15165551212");
    const std::string endless(500, '5');
    EXPECT_EQ(nationalNumber(endless, "US"), endless);
}

}  // namespace
}  // namespace velmora
