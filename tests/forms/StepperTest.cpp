#include "platform/controls/Stepper.h"

#include <gtest/gtest.h>

#include <QAccessible>
#include <QLabel>
#include <QTest>
#include <QWheelEvent>
#include <vector>

#include "forms/Widgets.h"

namespace velmora::test {
namespace {

class StepperTest : public testing::Test {
  protected:
    StepperTest() {
        stepper.setRange(0, 23, 12);
        stepper.setValue(10);
        QObject::connect(&stepper, &Stepper::valueChanged,
                         [this](int value) { values.push_back(value); });
        showActive(stepper);
    }

    StepperArrows& arrows() { return *stepper.arrows(); }
    QPoint upper() { return {arrows().width() / 2, 4}; }
    QPoint lower() { return {arrows().width() / 2, arrows().height() - 4}; }
    void wheel(int turn) {
        const QPointF point = arrows().rect().center();
        QWheelEvent event(point, arrows().mapToGlobal(point), {}, {0, turn}, Qt::NoButton,
                          Qt::NoModifier, Qt::NoScrollPhase, false);
        QCoreApplication::sendEvent(&arrows(), &event);
    }

    // Until an arrow that was pressed after all others has repeated several times.
    static void letAnotherRepeat() {
        Stepper other(QStringLiteral("VScroll2"), QStringLiteral("Label2"));
        other.setRange(0, 59, 30);
        other.show();
        QTest::mousePress(other.arrows(), Qt::LeftButton, {}, {5, 4});
        EXPECT_TRUE(QTest::qWaitFor([&other] { return other.value() >= 5; }));
    }

    Stepper stepper{QStringLiteral("VScroll1"), QStringLiteral("Label1")};
    std::vector<int> values;
};

TEST_F(StepperTest, NamesItsParts) {
    EXPECT_EQ(&named<StepperArrows>(stepper, "VScroll1"), &arrows());
    EXPECT_EQ(&named<QLabel>(stepper, "Label1"), stepper.label());
}

TEST_F(StepperTest, TheUpperHalfAddsAndTheLowerTakesAway) {
    QTest::mouseClick(&arrows(), Qt::LeftButton, {}, upper());
    QTest::mouseClick(&arrows(), Qt::LeftButton, {}, lower());
    QTest::mouseClick(&arrows(), Qt::LeftButton, {}, lower());
    EXPECT_EQ(values, (std::vector<int>{11, 10, 9}));
    EXPECT_TRUE(arrows().hasFocus());
}

TEST_F(StepperTest, OtherMouseButtonsDoNothing) {
    QTest::mouseClick(&arrows(), Qt::RightButton, {}, upper());
    EXPECT_TRUE(values.empty());
}

TEST_F(StepperTest, AnArrowHeldDownRepeatsUntilItIsReleased) {
    QTest::mousePress(&arrows(), Qt::LeftButton, {}, upper());
    EXPECT_TRUE(QTest::qWaitFor([this] { return stepper.value() >= 14; }));
    QTest::mouseRelease(&arrows(), Qt::LeftButton, {}, upper());
    const int released = stepper.value();
    letAnotherRepeat();
    EXPECT_EQ(stepper.value(), released);
}

TEST_F(StepperTest, AnArrowHeldDownStopsWhenItsFormCloses) {
    QTest::mousePress(&arrows(), Qt::LeftButton, {}, upper());
    stepper.hide();
    const int hidden = stepper.value();
    letAnotherRepeat();
    EXPECT_EQ(stepper.value(), hidden);
}

TEST_F(StepperTest, TakesDigits) {
    QTest::keyClicks(&arrows(), QStringLiteral("14"));
    EXPECT_EQ(values, (std::vector<int>{1, 14}));
    QTest::keyClick(&arrows(), Qt::Key_Up);
    QTest::keyClicks(&arrows(), QStringLiteral("2"));
    QTest::keyClicks(&arrows(), QStringLiteral("7"));
    EXPECT_EQ(stepper.value(), 7) << "27 is above the range";
    QTest::keyClick(&arrows(), Qt::Key_1, Qt::AltModifier);
    EXPECT_EQ(stepper.value(), 7);
}

TEST_F(StepperTest, ADigitBelowTheRangeWaitsForMore) {
    stepper.setRange(1, 31, 7);
    QTest::keyClick(&arrows(), Qt::Key_0);
    EXPECT_EQ(stepper.value(), 10);
    QTest::keyClick(&arrows(), Qt::Key_9);
    EXPECT_EQ(stepper.value(), 9);
}

TEST_F(StepperTest, TypedDigitsBeginAnewWithTheFocus) {
    QTest::keyClick(&arrows(), Qt::Key_1);
    arrows().clearFocus();
    arrows().setFocus();
    QTest::keyClick(&arrows(), Qt::Key_2);
    EXPECT_EQ(stepper.value(), 2);
}

TEST_F(StepperTest, TheWheelOverTheNumberSteps) {
    // The label lets the wheel pass to what it stands on.
    const QPointF point = stepper.label()->geometry().center();
    QWheelEvent event(point, stepper.mapToGlobal(point), {}, {0, 120}, Qt::NoButton, Qt::NoModifier,
                      Qt::NoScrollPhase, false);
    QCoreApplication::sendEvent(&stepper, &event);
    EXPECT_EQ(stepper.value(), 11);
}

TEST_F(StepperTest, StopsAtBothEnds) {
    stepper.setValue(22);
    QTest::mouseClick(&arrows(), Qt::LeftButton, {}, upper());
    QTest::mouseClick(&arrows(), Qt::LeftButton, {}, upper());
    EXPECT_EQ(stepper.value(), 23);
    stepper.setValue(0);
    QTest::mouseClick(&arrows(), Qt::LeftButton, {}, lower());
    EXPECT_EQ(values, (std::vector<int>{22, 23, 0}));
}

TEST_F(StepperTest, KeysStep) {
    for (const Qt::Key key : {Qt::Key_Up, Qt::Key_Plus, Qt::Key_Down, Qt::Key_Minus, Qt::Key_PageUp,
                              Qt::Key_PageDown, Qt::Key_End, Qt::Key_Home})
        QTest::keyClick(&arrows(), key);
    EXPECT_EQ(values, (std::vector<int>{11, 12, 11, 10, 22, 10, 23, 0}));
}

TEST_F(StepperTest, WheelNotchesAddUp) {
    wheel(60);
    EXPECT_TRUE(values.empty());
    wheel(60);
    wheel(-240);
    EXPECT_EQ(values, (std::vector<int>{11, 9}));
}

TEST_F(StepperTest, TheSameValueIsNoChange) {
    stepper.setValue(10);
    EXPECT_TRUE(values.empty());
}

TEST_F(StepperTest, AClickOnTheNumberTakesTheFocusAndChangesNothing) {
    QTest::mouseClick(&stepper, Qt::LeftButton, {}, {10, 20});
    EXPECT_TRUE(arrows().hasFocus());
    EXPECT_TRUE(values.empty());
}

TEST_F(StepperTest, TellsItsValueToAssistiveTools) {
    QAccessibleInterface* interface = QAccessible::queryAccessibleInterface(&arrows());
    ASSERT_TRUE(interface && interface->valueInterface());
    EXPECT_EQ(interface->valueInterface()->currentValue().toInt(), 10);
    EXPECT_EQ(interface->valueInterface()->maximumValue().toInt(), 23);
}

}  // namespace
}  // namespace velmora::test
