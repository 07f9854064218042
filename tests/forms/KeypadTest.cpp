#include "platform/controls/Keypad.h"

#include <gmock/gmock.h>

#include <QSignalSpy>

#include "forms/Widgets.h"

namespace velmora {
namespace {

class KeypadTest : public testing::Test {
  protected:
    KeypadKey& key(int command) {
        return test::named<KeypadKey>(keypad, ("Command" + std::to_string(command)).c_str());
    }

    Keypad keypad;
};

TEST_F(KeypadTest, HasTwelveKeysThatTellTheirCharacter) {
    test::showActive(keypad);
    std::string captions;
    std::string pressed;
    QObject::connect(&keypad, &Keypad::pressed, &keypad, [&](char c) { pressed += c; });
    for (int command = 8; command <= 19; ++command) {
        captions += key(command).text().toStdString();
        QTest::mouseClick(&key(command), Qt::LeftButton);
    }
    EXPECT_EQ("123456789*0,", captions);
    EXPECT_EQ("123456789*0,", pressed);
}

TEST_F(KeypadTest, IsDrivenByTheKeyboard) {
    test::showActive(keypad);
    key(8).setFocus(Qt::TabFocusReason);
    QSignalSpy pressed(&keypad, &Keypad::pressed);
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Down);
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Right);
    EXPECT_TRUE(key(12).hasFocus());
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Space);
    EXPECT_EQ(2, pressed.count());
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Up);
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Up);
    EXPECT_TRUE(key(9).hasFocus());
}

TEST_F(KeypadTest, FlashesTheKeyOfATypedCharacterForAMoment) {
    keypad.flash('#');
    for (int command = 8; command <= 19; ++command)
        EXPECT_FALSE(key(command).flashing());
    QSignalSpy pressed(&keypad, &Keypad::pressed);
    keypad.flash('0');
    EXPECT_TRUE(key(18).flashing());
    EXPECT_TRUE(QTest::qWaitFor([&] { return !key(18).flashing(); }));
    EXPECT_EQ(0, pressed.count());
}

TEST_F(KeypadTest, KeepsItsKeysLargeAndItselfNarrow) {
    EXPECT_EQ(330, keypad.maximumWidth());
    keypad.resize(keypad.minimumSizeHint());
    test::showActive(keypad);
    EXPECT_GE(key(8).width(), 88);
    EXPECT_GE(key(8).height(), 78);
}

}  // namespace
}  // namespace velmora
