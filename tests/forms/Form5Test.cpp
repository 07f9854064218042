#include "accessories/forms/Form5.h"

#include <gmock/gmock.h>

#include <QCheckBox>
#include <QLineEdit>
#include <QPushButton>

#include "forms/Widgets.h"
#include "support/FakeMessages.h"
#include "support/FakeProgramStarter.h"

namespace velmora {
namespace {

using test::named;
using testing::ElementsAre;
using testing::IsEmpty;

class Form5Test : public testing::Test {
  protected:
    void open() {
        form.present();
        ASSERT_TRUE(QTest::qWaitForWindowActive(&form));
    }
    QPushButton& button(const char* name) { return named<QPushButton>(form, name); }
    QLineEdit& line() { return named<QLineEdit>(form, "Text1"); }

    test::FakeProgramStarter starter;
    test::FakeMessages messages;
    RunProgram program{starter, messages};
    Form5 form{program, CodePage::western()};
};

TEST_F(Form5Test, HasItsTextsAndBeginsEmpty) {
    open();
    EXPECT_EQ(form.windowTitle(), "Run...");
    EXPECT_EQ(button("Command2").text(), "&Run");
    EXPECT_EQ(button("Command3").text(), "&Browse");
    EXPECT_EQ(button("Command1").text(), "&Cancel");
    EXPECT_EQ(named<QCheckBox>(form, "Check1").text(), "Run &Minimizied");
    EXPECT_TRUE(line().hasFocus());
    line().setText(QStringLiteral("editor"));
    named<QCheckBox>(form, "Check1").setChecked(true);
    form.reject();
    open();
    EXPECT_EQ(line().text(), "");
    EXPECT_FALSE(named<QCheckBox>(form, "Check1").isChecked());
}

TEST_F(Form5Test, EnterStartsWhatWasTypedAndCloses) {
    open();
    QTest::keyClicks(&line(), "editor notes.txt");
    QTest::keyClick(&line(), Qt::Key_Return);
    EXPECT_THAT(starter.started, ElementsAre("editor|notes.txt"));
    EXPECT_FALSE(form.isVisible());
}

TEST_F(Form5Test, ATickAsksForAMinimisedWindow) {
    open();
    QTest::keyClicks(&line(), "editor");
    QTest::keyClick(&line(), Qt::Key_M, Qt::AltModifier);
    ASSERT_TRUE(QTest::qWaitFor([&] { return named<QCheckBox>(form, "Check1").isChecked(); }));
    QTest::mouseClick(&button("Command2"), Qt::LeftButton);
    EXPECT_THAT(starter.started, ElementsAre("editor minimised"));
}

TEST_F(Form5Test, AnEmptyLineFailsInSilenceAndCloses) {
    open();
    QTest::mouseClick(&button("Command2"), Qt::LeftButton);
    EXPECT_FALSE(form.isVisible());
    EXPECT_THAT(starter.started, IsEmpty());
    EXPECT_THAT(messages.takeShown(), IsEmpty());
}

TEST_F(Form5Test, BrowseFillsTheLineAndACancelLeavesIt) {
    open();
    messages.willAnswer(std::optional<std::string>("/opt/my caf\xE9"));
    QTest::mouseClick(&button("Command3"), Qt::LeftButton);
    EXPECT_EQ(line().text(), QStringLiteral("/opt/my caf\u00E9"));
    messages.willAnswer(std::nullopt);
    QTest::mouseClick(&button("Command3"), Qt::LeftButton);
    EXPECT_EQ(line().text(), QStringLiteral("/opt/my caf\u00E9"));
    EXPECT_TRUE(form.isVisible());
}

TEST_F(Form5Test, CancelStartsNothing) {
    open();
    QTest::keyClicks(&line(), "editor");
    QTest::mouseClick(&button("Command1"), Qt::LeftButton);
    EXPECT_FALSE(form.isVisible());
    EXPECT_THAT(starter.started, IsEmpty());
}

}  // namespace
}  // namespace velmora
