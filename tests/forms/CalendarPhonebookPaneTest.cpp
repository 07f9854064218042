#include "app/CalendarPhonebookPane.h"

#include <gtest/gtest.h>

#include "core/forms/LeftColumn.h"
#include "forms/CalendarFixture.h"
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
