#include "accessories/PocketMachine.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <sstream>

#include "accessories/CalculatorKeys.h"
#include "platform/Failure.h"
#include "support/FakeMessages.h"

namespace velmora {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

class PocketMachineTest : public ::testing::Test {
  protected:
    PocketMachineTest() { machine.Load(); }

    // Presses the keys; blanks stand between them, numbers are typed digit by digit, CE is one key.
    std::string press(const std::string& keys) {
        std::istringstream words(keys);
        for (std::string word; words >> word;) {
            if (word == "CE")
                machine.CancelEntry();
            else
                for (const char key : word)
                    pressKey(machine, calculatorKey(key));
        }
        return machine.Readout();
    }

    // The readout of a fresh machine after the keys.
    std::string afterLoad(const std::string& keys) {
        machine.Load();
        return press(keys);
    }

    test::FakeMessages messages;
    PocketMachine machine{messages};
};

TEST_F(PocketMachineTest, BeginsAtZero) {
    EXPECT_EQ("0.", machine.Readout());
}

TEST_F(PocketMachineTest, AddsDigitsBeforeThePointUntilItIsPressed) {
    EXPECT_EQ("5.", press("5"));
    EXPECT_EQ("52.", press("2"));
    EXPECT_EQ("5.2", afterLoad("5 . 2"));
    EXPECT_EQ("5.2", press("."));
    EXPECT_EQ("5.23", afterLoad("5 . 2 . 3"));
    EXPECT_EQ("0.5", afterLoad(". 5"));
    EXPECT_EQ("005.", afterLoad("0 0 5"));
}

TEST_F(PocketMachineTest, TypesNumbersOfAnyLength) {
    const std::string digits(60, '7');
    EXPECT_EQ(digits + ".", press(digits));
}

TEST_F(PocketMachineTest, AMinusAtTheStartIsASign) {
    EXPECT_EQ("-0.", press("-"));
    EXPECT_EQ("-0.", press("-"));
    EXPECT_EQ("-5.", press("5"));
    EXPECT_EQ("-53.", press("3"));
    EXPECT_EQ("-0.5", afterLoad("- . 5"));
    EXPECT_EQ("-3", afterLoad("- 5 + 2 ="));
}

TEST_F(PocketMachineTest, WorksFromLeftToRight) {
    EXPECT_EQ("20", afterLoad("2 + 3 X 4 ="));
    EXPECT_EQ("14", afterLoad("3 X 4 + 2 ="));
    EXPECT_EQ("2.5", afterLoad("10 / 4 ="));
    EXPECT_EQ("-3", afterLoad("4 - 7 ="));
}

TEST_F(PocketMachineTest, EqualsTwiceLeavesTheResult) {
    EXPECT_EQ("5", press("2 + 3 ="));
    EXPECT_EQ("5", press("="));
    EXPECT_EQ("5", press("="));
}

TEST_F(PocketMachineTest, AMinusBehindAnOperatorIsASign) {
    EXPECT_EQ("2", afterLoad("5 + - 3 ="));
    EXPECT_EQ("8", afterLoad("5 - - 3 ="));
    EXPECT_EQ("-16", afterLoad("8 X - 2 ="));
    EXPECT_EQ("8", afterLoad("5 + - CE 3 ="));
}

TEST_F(PocketMachineTest, AMinusBehindAResultSubtracts) {
    EXPECT_EQ("3", afterLoad("5 = - 2 ="));
}

TEST_F(PocketMachineTest, ALoneMinusCountsAsZero) {
    EXPECT_EQ("-4", afterLoad("9 + - - 4 ="));
    EXPECT_EQ("0", afterLoad("5 X - + 3 ="));
}

TEST_F(PocketMachineTest, ResultsKeepAllDigitsButTypedTextIsTakenAsItStands) {
    EXPECT_EQ("1", afterLoad("1 / 3 X 3 ="));
    EXPECT_EQ("0.999999999999999", afterLoad("1 / 3 = X 3 ="));
    EXPECT_EQ("4.", afterLoad("5 + 3 = 4 ="));
    EXPECT_EQ("5.", afterLoad("5 + ="));
    EXPECT_EQ("8.33333333333333E-02", afterLoad("1 / 12 ="));
}

TEST_F(PocketMachineTest, PercentMultipliesTheFirstOperand) {
    EXPECT_EQ("20", afterLoad("200 + 10 % ="));
    EXPECT_EQ("15", afterLoad("200 - 10 % - 5 ="));
    EXPECT_EQ("100", afterLoad("5000 % X 2 ="));
    EXPECT_EQ("0.08", afterLoad("5 + 3 = %"));
    EXPECT_EQ("0.64", press("="));
}

TEST_F(PocketMachineTest, PercentTwiceHasNoFirstOperand) {
    EXPECT_EQ("0", afterLoad("5 % % ="));
    EXPECT_EQ("-15", afterLoad("500 % - 3 ="));
}

TEST_F(PocketMachineTest, DigitsBehindPercentOnlyEchoUntilCancel) {
    EXPECT_EQ("5.", afterLoad("200 + 10 % 5 ="));
    EXPECT_EQ("3.", press("+ 3 ="));
    EXPECT_EQ("7", press("C 3 + 4 ="));
}

TEST_F(PocketMachineTest, CancelForgetsEverything) {
    EXPECT_EQ("0.", press("5 + 3 C"));
    EXPECT_EQ("4.", press("4 ="));
}

TEST_F(PocketMachineTest, LoadForgetsEverything) {
    press("5 + 3");
    machine.Load();
    EXPECT_EQ("0.", machine.Readout());
    EXPECT_EQ("4.", press("4 ="));
}

TEST_F(PocketMachineTest, CancelEntryKeepsTheOperands) {
    EXPECT_EQ("0.", press("5 + 3 CE"));
    EXPECT_EQ("9", press("4 ="));
    EXPECT_EQ("2", afterLoad("5 + 3 CE + 2 ="));
}

TEST_F(PocketMachineTest, DivisionByZeroIsToldAndTheMachineGoesOn) {
    EXPECT_EQ("8.", press("8 / 0 +"));
    EXPECT_THAT(messages.takeShown(), ElementsAre("warn|VLMCalc|Can't divide by zero."));
    EXPECT_EQ("10", press("2 ="));
    EXPECT_THAT(messages.takeShown(), IsEmpty());
}

TEST_F(PocketMachineTest, DivisionOfAResultByZeroLeavesTheResult) {
    EXPECT_EQ("8", press("5 + 3 / 0 ="));
    EXPECT_THAT(messages.takeShown(), ElementsAre("warn|VLMCalc|Can't divide by zero."));
}

TEST_F(PocketMachineTest, AResultThatIsTooLargeIsAFailure) {
    press("1" + std::string(300, '0') + " X 1" + std::string(300, '0'));
    try {
        press("=");
        FAIL() << "no failure";
    } catch (const Failure& failure) {
        EXPECT_STREQ("Overflow", failure.what());
    }
}

TEST_F(PocketMachineTest, ATypedNumberThatIsTooLargeIsAFailure) {
    press(std::string(400, '9'));
    EXPECT_THROW(machine.Percent(), Failure);
    press("+ 1");
    EXPECT_THROW(press("="), Failure);
}

TEST_F(PocketMachineTest, MoreOperandsThanTheCountHoldsAreAFailure) {
    for (int i = 0; i < 32767; ++i)
        machine.Percent();
    EXPECT_THROW(machine.Percent(), Failure);
}

TEST(CalculatorKeys, AreTheListedCharactersOnly) {
    std::string keys;
    for (int code = 0; code < 256; ++code)
        if (const char typed = static_cast<char>(code); calculatorKey(typed) != '\0')
            keys += typed;
    EXPECT_EQ("%+-./0123456789=CEXcex", keys);
    EXPECT_EQ('X', calculatorKey('x'));
    EXPECT_EQ('C', calculatorKey('c'));
    EXPECT_EQ('E', calculatorKey('e'));
}

TEST(CalculatorKeys, OperatorsHaveTheirCaptions) {
    std::string captions;
    for (int i = 0; i < kOperatorCount; ++i)
        captions += captionOf(static_cast<CalculatorOperator>(i));
    EXPECT_EQ("/+X-=", captions);
}

}  // namespace
}  // namespace velmora
