#include "planner/Datewarden.h"

#include <gmock/gmock.h>

#include "support/FakeClock.h"
#include "support/FakeMessages.h"
#include "support/MemorySettings.h"

namespace velmora {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

constexpr const char* kQuestion = "ask|Remove Event?|Are you sure you wish to remove this entry?";

// It is 12 March 2026.
class DatewardenTest : public testing::Test {
  protected:
    std::string bars() { return datewarden.monthLabel() + " " + datewarden.dayLabel(); }
    void add(const std::string& text) {
        datewarden.setText(text);
        datewarden.Add();
    }

    test::MemorySettings medium;
    SettingsStore settings{medium};
    test::FakeMessages messages;
    test::FakeClock clock;
    Datewarden datewarden{settings, messages, clock};
};

TEST_F(DatewardenTest, OpensOnThePresentDayWithASuggestedText) {
    EXPECT_EQ(bars(), "March 12");
    EXPECT_EQ(datewarden.text(), "New Event Today!");
    datewarden.setMonth(5);
    datewarden.setText("x");
    clock.set(std::chrono::year(2028) / 2 / 29, std::chrono::hours(1));
    datewarden.Open();
    EXPECT_EQ(bars(), "February 29");
    EXPECT_EQ(datewarden.text(), "New Event Today!");
}

TEST_F(DatewardenTest, TheDayGoesAsFarAsItsMonthDoesAndFebruaryHas29) {
    const std::vector<int> expected{31, 29, 31, 30, 31, 30, 31, 31, 30, 31, 30, 31};
    for (int month = 1; month <= 12; ++month) {
        datewarden.setMonth(month);
        EXPECT_EQ(datewarden.highestDay(), expected[static_cast<std::size_t>(month - 1)]) << month;
    }
}

TEST_F(DatewardenTest, AShorterMonthTakesTheDayBack) {
    datewarden.setMonth(1);
    datewarden.setDay(31);
    datewarden.setMonth(2);
    EXPECT_EQ(bars(), "February 29");
    datewarden.setMonth(3);
    EXPECT_EQ(bars(), "March 29");
}

TEST_F(DatewardenTest, TheLabelsShowTheMonthsNameAndTwoDigits) {
    datewarden.setMonth(1);
    datewarden.setDay(1);
    EXPECT_EQ(bars(), "January 01");
    datewarden.setMonth(99);
    datewarden.setDay(-5);
    EXPECT_EQ(bars(), "December 01");
    datewarden.setMonth(0);
    datewarden.setDay(32);
    EXPECT_EQ(bars(), "January 31");
}

TEST_F(DatewardenTest, AddsTheTextAsItStands) {
    datewarden.setMonth(9);
    datewarden.setDay(7);
    add("  Tea & <b> - cake ");
    EXPECT_EQ(settings.Read(R"(Events\September\07\1M)"), "  Tea & <b> - cake ");
    EXPECT_EQ(datewarden.text(), "  Tea & <b> - cake ");
    EXPECT_THAT(datewarden.Lines(), ElementsAre("September 07 -   Tea & <b> - cake "));
}

TEST_F(DatewardenTest, ABlankTextIsReplacedInTheBoxToo) {
    add("");
    EXPECT_EQ(datewarden.text(), "Event Set For This Date.");
    add("   ");
    EXPECT_THAT(datewarden.Lines(), ElementsAre("March 12 - Event Set For This Date.",
                                                "March 12 - Event Set For This Date."));
    EXPECT_THAT(messages.takeShown(), IsEmpty());
}

TEST_F(DatewardenTest, AClickedLineSetsBarsAndText) {
    datewarden.setDay(31);
    datewarden.Click("February 29 -   Leap - day ");
    EXPECT_EQ(bars(), "February 29");
    EXPECT_EQ(datewarden.text(), "Leap - day");
    datewarden.Click("October 31 - x");
    EXPECT_EQ(bars(), "October 31");
    datewarden.Click("June 31 - no such day");
    EXPECT_EQ(bars(), "June 30");
    EXPECT_EQ(datewarden.text(), "no such day");
}

TEST_F(DatewardenTest, RemovesTheSelectedLineAfterAQuestion) {
    add("a");
    add("b");
    messages.willAnswer(true);
    EXPECT_TRUE(datewarden.Remove("March 12 - a"));
    EXPECT_THAT(messages.takeShown(), ElementsAre(kQuestion));
    EXPECT_THAT(messages.takePreselected(), ElementsAre(Answer::No));
    EXPECT_THAT(datewarden.Lines(), ElementsAre("March 12 - b"));
    EXPECT_EQ(settings.Read(R"(Events\March\12\NumTasks)"), "1");
}

TEST_F(DatewardenTest, NoKeepsTheLine) {
    add("a");
    messages.willAnswer(false);
    EXPECT_FALSE(datewarden.Remove("March 12 - a"));
    EXPECT_THAT(datewarden.Lines(), ElementsAre("March 12 - a"));
    EXPECT_THAT(messages.takeShown(), ElementsAre(kQuestion));
}

TEST_F(DatewardenTest, WithoutASelectedLineNothingIsAsked) {
    EXPECT_FALSE(datewarden.Remove(""));
    EXPECT_THAT(messages.takeShown(), IsEmpty());
}

TEST_F(DatewardenTest, ALineThatIsGoneMeanwhileIsOnlyShownAnew) {
    add("a");
    messages.whileOpen([&] { settings.Save(R"(Events\March\12\1M)", "changed"); });
    messages.willAnswer(true);
    EXPECT_TRUE(datewarden.Remove("March 12 - a"));
    EXPECT_THAT(datewarden.Lines(), ElementsAre("March 12 - changed"));
}

}  // namespace
}  // namespace velmora
