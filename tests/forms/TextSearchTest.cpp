#include "docpad/forms/TextSearch.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <QCheckBox>
#include <QLineEdit>
#include <QPushButton>
#include <QTest>

#include "docpad/forms/PadEditText.h"
#include "platform/controls/PadEdit.h"
#include "support/FakeMessages.h"

namespace velmora {
namespace {

using ::testing::ElementsAre;

class TextSearchTest : public ::testing::Test {
  protected:
    void click(const char* name) {
        auto* button = form.findChild<QPushButton*>(QString::fromLatin1(name));
        ASSERT_NE(button, nullptr) << name;
        QTest::mouseClick(button, Qt::LeftButton);
    }
    [[nodiscard]] QLineEdit* what() { return form.findChild<QLineEdit*>(QStringLiteral("Text1")); }
    [[nodiscard]] QCheckBox* matchCase() {
        return form.findChild<QCheckBox*>(QStringLiteral("Check1"));
    }

    PadEdit pad{CodePage::western()};
    PadEditText text{pad};
    test::FakeMessages messages;
    PadSearch search{text, CodePage::western(), messages};
    TextSearch form{search, CodePage::western()};
};

TEST_F(TextSearchTest, HasItsCaptionsAndStaysAboveWithoutHoldingTheProgram) {
    EXPECT_EQ(form.windowTitle(), QStringLiteral("Search..."));
    EXPECT_EQ(matchCase()->text(), QStringLiteral("&Match Case"));
    const auto caption = [this](const char* name) {
        return form.findChild<QPushButton*>(QString::fromLatin1(name))->text();
    };
    EXPECT_EQ(caption("Command1"), QStringLiteral("&Find"));
    EXPECT_EQ(caption("Command2"), QStringLiteral("&Find Next"));
    EXPECT_EQ(caption("Command3"), QStringLiteral("&Cancel"));
    form.present();
    EXPECT_TRUE(form.isVisible());
    EXPECT_FALSE(form.isModal());
    EXPECT_TRUE(form.windowFlags().testFlag(Qt::WindowStaysOnTopHint));
}

TEST_F(TextSearchTest, AHitHidesItWithItsTextAndFindNextGoesOn) {
    pad.setBytes("one\r\ntwo\none");
    form.present();
    what()->setText(QStringLiteral("one"));
    click("Command1");
    EXPECT_FALSE(form.isVisible());
    EXPECT_EQ(pad.selectionStart(), 0u);
    EXPECT_EQ(pad.selectedBytes(), "one");

    form.present();
    EXPECT_EQ(what()->text(), QStringLiteral("one"));
    click("Command2");
    EXPECT_EQ(pad.selectionStart(), 9u);
    EXPECT_EQ(pad.selectedBytes(), "one");
}

TEST_F(TextSearchTest, WithoutAHitItTellsAndStays) {
    pad.setBytes("text");
    form.present();
    what()->setText(QStringLiteral("other"));
    click("Command1");
    EXPECT_THAT(messages.takeShown(), ElementsAre("tell|Search Complete|Text not found."));
    EXPECT_TRUE(form.isVisible());
}

TEST_F(TextSearchTest, MatchCaseIsTheTick) {
    pad.setBytes("Text text");
    form.present();
    what()->setText(QStringLiteral("text"));
    matchCase()->setChecked(true);
    QTest::keyClick(what(), Qt::Key_Return);
    EXPECT_EQ(pad.selectionStart(), 5u);
}

TEST_F(TextSearchTest, CancelEmptiesTheForm) {
    form.present();
    what()->setText(QStringLiteral("text"));
    matchCase()->setChecked(true);
    click("Command3");
    EXPECT_FALSE(form.isVisible());
    form.present();
    EXPECT_EQ(what()->text(), QString());
    EXPECT_FALSE(matchCase()->isChecked());
}

TEST_F(TextSearchTest, ClosingItsWindowIsCancel) {
    form.present();
    what()->setText(QStringLiteral("text"));
    form.close();
    EXPECT_EQ(what()->text(), QString());
}

}  // namespace
}  // namespace velmora
