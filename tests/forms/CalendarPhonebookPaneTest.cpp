#include "app/CalendarPhonebookPane.h"

#include <gtest/gtest.h>

#include <QPushButton>

#include "core/forms/LeftColumn.h"
#include "core/forms/PhonebookPage.h"
#include "forms/CalendarFixture.h"
#include "platform/controls/EntryCard.h"
#include "platform/controls/EntryList.h"

namespace velmora {
namespace {

class CalendarPhonebookPaneTest : public test::CalendarFixture {
  protected:
    CalendarPhonebookPane pane{calendar};
    EntryList& list = *calendar.leftColumn().list();
};

TEST_F(CalendarPhonebookPaneTest, AnEmptyLetterIsNamedInTheList) {
    pane.showLetter(16);
    EXPECT_EQ(list.emptyText(), "No entries under Q.");
    pane.showLetter(26);
    EXPECT_EQ(list.emptyText(), "No entries under #.");
    pane.showLetter(0);
    EXPECT_EQ(list.emptyText(), "No entries under A.");
}

TEST_F(CalendarPhonebookPaneTest, HangUpStandsInTheUpperRightCornerOfTheCard) {
    PhonebookPage& page = calendar.phonebookPage();
    const auto fromCorner = [&page] {
        const QPushButton& hangUp = *page.hangUpButton();
        const EntryCard& card = *page.card();
        return hangUp.mapTo(&page, QPoint(hangUp.width(), 0)) -
               card.mapTo(&page, QPoint(card.width(), 0));
    };
    calendar.raisePaneButton(Pane::Phonebook);
    page.hangUpButton()->show();
    QCoreApplication::processEvents();
    EXPECT_EQ(fromCorner(), QPoint(-14, 14));
    for (const QSize size : {QSize(1400, 900), QSize(1024, 566)}) {
        calendar.resize(size);
        QCoreApplication::processEvents();
        EXPECT_EQ(fromCorner(), QPoint(-14, 14));
    }
}

TEST_F(CalendarPhonebookPaneTest, ALineThatTheProgramSelectsShowsNoEntryByItself) {
    bool clicked = false;
    QObject::connect(&list, &EntryList::lineClicked, [&] { clicked = true; });
    pane.addLines({"Adams, Al", "Baker, Bo"});
    EXPECT_TRUE(pane.selectLine("Baker, Bo"));
    EXPECT_EQ(pane.selectedLine(), "Baker, Bo");
    EXPECT_FALSE(clicked);
}

}  // namespace
}  // namespace velmora
