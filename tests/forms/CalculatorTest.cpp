#include "accessories/forms/Calculator.h"

#include <gmock/gmock.h>

#include <QAccessible>
#include <QClipboard>
#include <QLabel>
#include <QPushButton>

#include "forms/Widgets.h"
#include "support/FakeMessages.h"

namespace velmora {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

class CalculatorTest : public ::testing::Test {
  protected:
    void SetUp() override {
        form.present();
        ASSERT_TRUE(QTest::qWaitForWindowActive(&form));
    }
    CalculatorKey& key(const char* name) { return test::named<CalculatorKey>(form, name); }
    QLabel& readout() { return test::named<QLabel>(form, "Readout"); }
    std::string shown() { return readout().text().toStdString(); }
    void click(const char* name) { QTest::mouseClick(&key(name), Qt::LeftButton); }
    void type(const char* text) {
        QTest::keyClicks(QApplication::focusWidget(), QString::fromLatin1(text));
    }

    test::FakeMessages messages;
    std::vector<std::string> ended;
    Calculator form{messages, [this](const std::string& text) { ended.push_back(text); }};
};

TEST_F(CalculatorTest, HasItsTitleAndItsFixedSizeAndHoldsNobodyUp) {
    EXPECT_EQ("VLMCalc", form.windowTitle().toStdString());
    EXPECT_EQ(QSize(288, 422), form.size());
    EXPECT_EQ(form.minimumSize(), form.maximumSize());
    EXPECT_FALSE(form.isModal());
    EXPECT_EQ("0.", shown());
}

TEST_F(CalculatorTest, HasItsCaptions) {
    for (int i = 0; i < 10; ++i)
        EXPECT_EQ(QString::number(i), key(("Number_" + std::to_string(i)).c_str()).text());
    std::string operators;
    for (int i = 0; i < 5; ++i)
        operators += key(("Operator_" + std::to_string(i)).c_str()).text().toStdString();
    EXPECT_EQ("/+X-=", operators);
    EXPECT_EQ(".", key("Decimal").text().toStdString());
    EXPECT_EQ("%", key("Percent").text().toStdString());
    EXPECT_EQ("C", key("Cancel").text().toStdString());
    EXPECT_EQ("CE", key("CancelEntry").text().toStdString());
}

TEST_F(CalculatorTest, IsClicked) {
    for (const char* name : {"Number_2", "Operator_1", "Number_3", "Operator_2", "Number_4"})
        click(name);
    EXPECT_EQ("4.", shown());
    click("Operator_4");
    EXPECT_EQ("20", shown());
    for (const char* name : {"Number_9", "Decimal", "Number_6", "Number_5", "CancelEntry"})
        click(name);
    EXPECT_EQ("0.", shown());
    for (const char* name : {"Number_8", "Percent"})
        click(name);
    EXPECT_EQ("0.08", shown());
    for (const char* name :
         {"Cancel", "Number_7", "Operator_3", "Number_1", "Operator_0", "Number_2", "Operator_4"})
        click(name);
    EXPECT_EQ("3", shown());
    click("Number_0");
    EXPECT_EQ("0.", shown());
    EXPECT_THAT(messages.takeShown(), IsEmpty());
}

TEST_F(CalculatorTest, IsTyped) {
    type("200+10%=");
    EXPECT_EQ("20", shown());
    type("c8x2=");
    EXPECT_EQ("16", shown());
    type("C9/4-.25X2e3=");
    EXPECT_EQ("6", shown());
}

TEST_F(CalculatorTest, OtherKeysDoNothing) {
    type("5+3");
    type("*,a ");
    for (const Qt::Key other : {Qt::Key_Return, Qt::Key_Enter, Qt::Key_Backspace, Qt::Key_Escape,
                                Qt::Key_Space, Qt::Key_Left})
        QTest::keyClick(QApplication::focusWidget(), other);
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_7, Qt::ControlModifier);
    EXPECT_EQ("3.", shown());
    EXPECT_TRUE(form.isVisible());
    type("=");
    EXPECT_EQ("8", shown());
}

TEST_F(CalculatorTest, ATypedKeyFlashesForAMoment) {
    type("x");
    EXPECT_TRUE(key("Operator_2").flashing());
    EXPECT_FALSE(key("Operator_1").flashing());
    EXPECT_TRUE(QTest::qWaitFor([&] { return !key("Operator_2").flashing(); }));
}

TEST_F(CalculatorTest, ClicksLeaveTheFocusInTheReadout) {
    EXPECT_TRUE(readout().hasFocus());
    click("Number_5");
    EXPECT_TRUE(readout().hasFocus());
    EXPECT_EQ(Qt::NoFocus, key("Number_5").focusPolicy());
}

TEST_F(CalculatorTest, TabShowsTheFocusAndReachesClose) {
    const QColor withFocus = test::pixelOf(readout(), QPoint(1, 32));
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
    auto& close = test::named<QPushButton>(form, "Command1");
    EXPECT_TRUE(close.hasFocus());
    EXPECT_NE(withFocus.rgb(), test::pixelOf(readout(), QPoint(1, 32)).rgb());
    type("42");
    EXPECT_EQ("42.", shown());
    QTest::keyClick(&close, Qt::Key_Backtab, Qt::ShiftModifier);
    EXPECT_TRUE(readout().hasFocus());
    EXPECT_EQ(withFocus.rgb(), test::pixelOf(readout(), QPoint(1, 32)).rgb());
    QTest::keyClick(&readout(), Qt::Key_Tab);
    QTest::keyClick(&close, Qt::Key_Space);
    EXPECT_FALSE(form.isVisible());
}

TEST_F(CalculatorTest, EachOpeningBeginsAnew) {
    type("5+3");
    test::named<QPushButton>(form, "Command1").click();
    EXPECT_FALSE(form.isVisible());
    form.present();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&form));
    EXPECT_EQ("0.", shown());
    type("4=");
    EXPECT_EQ("4.", shown());
}

TEST_F(CalculatorTest, PresentingAnOpenOneKeepsItsNumbers) {
    type("5+3");
    form.present();
    EXPECT_EQ("3.", shown());
    type("=");
    EXPECT_EQ("8", shown());
}

TEST_F(CalculatorTest, TellsOfADivisionByZero) {
    type("8/0+");
    EXPECT_THAT(messages.takeShown(), ElementsAre("warn|VLMCalc|Can't divide by zero."));
    EXPECT_EQ("8.", shown());
    type("2=");
    EXPECT_EQ("10", shown());
}

TEST_F(CalculatorTest, AnOverflowEndsTheProgram) {
    type(std::string(309, '9').c_str());
    type("+1=");
    EXPECT_THAT(ended, ElementsAre("Overflow"));
}

TEST_F(CalculatorTest, LongNumbersStayInside) {
    type(std::string(200, '8').c_str());
    EXPECT_EQ(QSize(288, 422), form.size());
    EXPECT_EQ(std::string(200, '8') + ".", shown());
}

TEST_F(CalculatorTest, TellsItsNumberAndItsKeysToAssistiveTools) {
    type("12");
    QAccessibleInterface* number = QAccessible::queryAccessibleInterface(&readout());
    ASSERT_NE(nullptr, number);
    EXPECT_EQ("12.", number->text(QAccessible::Name).toStdString());
    std::string names;
    for (const char* name : {"Operator_0", "Operator_1", "Operator_2", "Operator_3", "Operator_4",
                             "Decimal", "Percent", "Cancel", "CancelEntry"})
        names += key(name).accessibleName().toStdString() + ";";
    EXPECT_EQ("Divide;Plus;Times;Minus;Equals;Decimal point;Percent;Clear;Clear entry;", names);
}

TEST_F(CalculatorTest, CopiesItsNumber) {
    type("1/8=");
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_C, Qt::ControlModifier);
    EXPECT_EQ("0.125", QApplication::clipboard()->text().toStdString());
    EXPECT_EQ("0.125", shown());
}

}  // namespace
}  // namespace velmora
