#include "phonebook/forms/Other.h"

#include <gmock/gmock.h>

#include <QPushButton>
#include <functional>

#include "forms/Widgets.h"
#include "platform/controls/EntryCard.h"
#include "platform/controls/EntryList.h"
#include "support/FakeMessages.h"
#include "support/FakePhonebookPane.h"
#include "support/FakeStatusLine.h"
#include "support/PhonebookFixture.h"

namespace velmora {
namespace {

using ::testing::ElementsAre;
using ::testing::StartsWith;

class OtherTest : public ::testing::Test, protected test::PhonebookFixture {
  protected:
    void SetUp() override {
        yellow() = test::bytesOf(test::formRecord("Zorn", "Al", "Acme")) +
                   test::bytesOf(test::formRecord("Doe", "Jane", "Acme"));
        white() = test::bytesOf(test::formRecord("Bell", "Jo", "Acme"));
    }

    void open() {
        pane.selected = "Doe, Jane";
        form.findOthers();
        test::showActive(form);
    }

    EntryList& list() { return test::named<EntryList>(form, "List1"); }
    EntryCard& card() { return test::named<EntryCard>(form, "Label1"); }
    QPushButton& closeButton() { return test::named<QPushButton>(form, "Command1"); }

    void clickLine(int row) {
        QTest::mouseClick(list().viewport(), Qt::LeftButton, {},
                          list().visualRect(list().model()->index(row, 0)).center());
    }

    test::FakePhonebookPane pane;
    test::FakeStatusLine status;
    test::FakeMessages messages;
    Other form{store, pane, status, messages};
};

TEST_F(OtherTest, ShowsTheAssociatesInTheOrderOfTheFiles) {
    open();
    EXPECT_EQ("Other Associates...", form.windowTitle().toStdString());
    EXPECT_EQ("&Close", closeButton().text().toStdString());
    EXPECT_THAT(list().lines(), ElementsAre("Y: Zorn, Al", "Y: Doe, Jane", "W: Bell, Jo"));
    EXPECT_EQ("Search Was Successful.", status.text);
    EXPECT_EQ("", card().text());
    EXPECT_FALSE(form.isModal());
    EXPECT_FALSE(list().dragEnabled());
    EXPECT_TRUE(closeButton().hasFocus());
    EXPECT_TRUE(closeButton().isDefault());
}

TEST_F(OtherTest, ShowsTheEntryOfTheLineClicked) {
    open();
    clickLine(1);
    EXPECT_THAT(card().text(), StartsWith(" Jane Doe\r\n Acme\r\n"));
    EXPECT_FALSE(card().whitePages());
    clickLine(2);
    EXPECT_THAT(card().text(), StartsWith(" Jo Bell\r\n Acme\r\n"));
    EXPECT_TRUE(card().whitePages());
}

TEST_F(OtherTest, TheKeyboardChoosesALineToo) {
    open();
    list().setFocus();
    QTest::keyClick(&list(), Qt::Key_Down);
    EXPECT_THAT(card().text(), StartsWith(" Al Zorn\r\n"));
}

TEST_F(OtherTest, ANewQueryEmptiesTheCard) {
    open();
    clickLine(0);
    form.findOthers();
    EXPECT_EQ("", card().text());
    EXPECT_THAT(list().lines(), testing::SizeIs(3));
}

TEST_F(OtherTest, StaysAwayWithoutAnAssociate) {
    pane.selected = "Nobody, Jo";
    form.findOthers();
    EXPECT_FALSE(form.isVisible());
    EXPECT_EQ("No other associates found.", status.text);
}

TEST_F(OtherTest, ClosesByButtonEscapeAndFrame) {
    const std::function<void()> ways[] = {
        [&] { QTest::mouseClick(&closeButton(), Qt::LeftButton); },
        [&] { QTest::keyClick(&list(), Qt::Key_Escape); },
        [&] { form.close(); },
    };
    for (const auto& way : ways) {
        open();
        way();
        EXPECT_FALSE(form.isVisible());
    }
}

}  // namespace
}  // namespace velmora
