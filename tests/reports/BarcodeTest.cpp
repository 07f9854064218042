#include "reports/Barcode.h"

#include <gmock/gmock.h>

#include "support/FakeMessages.h"

namespace velmora {
namespace {

using testing::ElementsAre;

constexpr const char* kQuestion =
    "input|Barcode Formatter|Please enter a 5 or 9 digit ZIP code:\rEx: 11741-0189|";
constexpr const char* kInvalid =
    "warn|I N V A L I D|Invalid ZIP Code! Make sure that you include the dash";

TEST(Barcode, HasTheDigitsTheirCheckDigitAndAFrameBarAtBothEnds) {
    EXPECT_EQ(barcodeOf("12345"), "s123455s");
    EXPECT_EQ(barcodeOf("11741-0189"), "s1174101898s");
    EXPECT_EQ(barcodeOf("60555"), "s605559s");
}

TEST(Barcode, ASumThatDividesByTenHasTheCheckDigitZero) {
    EXPECT_EQ(barcodeOf("55000"), "s550000s");
}

TEST(Barcode, LettersCountNothing) {
    EXPECT_EQ(barcodeOf("ABCDE"), "sABCDE0s");
    EXPECT_EQ(barcodeOf("A1741-0-89"), "sA17410-890s");
}

TEST(Barcode, OtherLengthsAreNone) {
    for (const char* zip : {"", "1", "1234", "123456", "117410189", "1174110189", "11741-01890"})
        EXPECT_EQ(barcodeOf(zip), std::nullopt) << zip;
}

TEST(Barcode, IsAskedForUntilThereIsOne) {
    test::FakeMessages messages;
    messages.willAnswer(
        std::optional<std::string>("117410189"));  // nine without the dash: again, and no word
    messages.willAnswer(std::optional<std::string>("1174110189"));  // ten without the dash
    messages.willAnswer(std::optional<std::string>(" 12345"));      // as typed, blanks and all
    messages.willAnswer(std::optional<std::string>("11741-0189"));
    EXPECT_EQ(askForBarcode(messages), "s1174101898s");
    EXPECT_THAT(messages.takeShown(),
                ElementsAre(kQuestion, kQuestion, kInvalid, kQuestion, kQuestion));
}

TEST(Barcode, AnEmptyAnswerAndACancelGiveUp) {
    test::FakeMessages messages;
    messages.willAnswer(std::optional<std::string>(""));
    EXPECT_EQ(askForBarcode(messages), std::nullopt);
    messages.willAnswer(std::optional<std::string>());
    EXPECT_EQ(askForBarcode(messages), std::nullopt);
}

}  // namespace
}  // namespace velmora
