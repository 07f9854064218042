#include "planner/Occasions.h"

#include <gmock/gmock.h>

#include "platform/Failure.h"
#include "support/MemorySettings.h"

namespace velmora {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class OccasionsTest : public testing::Test {
  protected:
    void save(const std::string& key, const std::string& value) { settings.Save(key, value); }
    std::string read(const std::string& key) { return settings.Read(key); }

    test::MemorySettings medium;
    SettingsStore settings{medium};
    Occasions occasions{settings};
};

TEST_F(OccasionsTest, AreKeptUnderTheEnglishMonthAndADayOfTwoDigits) {
    occasions.Add({3, 9}, "Birthday: Clara");
    occasions.Add({3, 9}, "Founding day");
    occasions.Add({12, 31}, "Old year");
    EXPECT_EQ(read(R"(Events\March\09\NumTasks)"), "2");
    EXPECT_EQ(read(R"(Events\March\09\1M)"), "Birthday: Clara");
    EXPECT_EQ(read(R"(Events\March\09\2M)"), "Founding day");
    EXPECT_EQ(read(R"(Events\December\31\NumTasks)"), "1");
    EXPECT_EQ(read(R"(Events\December\31\1M)"), "Old year");
    EXPECT_EQ(medium.values.size(), 5U);
}

TEST_F(OccasionsTest, AreListedFromJanuaryToDecemberAndFromFirstToLast) {
    occasions.Add({12, 1}, "d");
    occasions.Add({1, 31}, "c");
    occasions.Add({1, 2}, "a");
    occasions.Add({1, 2}, "b");
    EXPECT_THAT(occasions.Lines(), ElementsAre("January 02 - a", "January 02 - b", "January 31 - c",
                                               "December 01 - d"));
}

TEST_F(OccasionsTest, BlankTextsAreNotListed) {
    save(R"(Events\May\05\NumTasks)", "4");
    save(R"(Events\May\05\2M)", "   ");
    save(R"(Events\May\05\3M)", " kept as it is ");
    save(R"(Events\May\05\4M)", "\r\n");
    EXPECT_THAT(occasions.On({5, 5}), ElementsAre(" kept as it is ", "\r\n"));
    EXPECT_THAT(occasions.Lines(), ElementsAre("May 05 -  kept as it is ", "May 05 - \r\n"));
}

TEST_F(OccasionsTest, CountsThatAreNegativeOrNoNumberAreNone) {
    save(R"(Events\May\05\1M)", "x");
    for (const char* count : {"", "-3", "many", "0", "-99999999999999999999"}) {
        save(R"(Events\May\05\NumTasks)", count);
        EXPECT_THAT(occasions.Lines(), IsEmpty()) << count;
    }
}

TEST_F(OccasionsTest, AHugeCountListsWhatIsThere) {
    save(R"(Events\May\05\1M)", "x");
    save(R"(Events\May\05\7M)", "y");
    for (const char* count : {"7", "2147483647", "99999999999999999999", " 12 days"}) {
        save(R"(Events\May\05\NumTasks)", count);
        EXPECT_THAT(occasions.Lines(), ElementsAre("May 05 - x", "May 05 - y")) << count;
    }
}

TEST_F(OccasionsTest, DaysThatAMonthLacksAreListedAllTheSame) {
    save(R"(Events\February\31\NumTasks)", "1");
    save(R"(Events\February\31\1M)", "never");
    EXPECT_THAT(occasions.Lines(), ElementsAre("February 31 - never"));
    EXPECT_TRUE(occasions.Remove("February 31 - never"));
    EXPECT_THAT(occasions.Lines(), IsEmpty());
}

TEST_F(OccasionsTest, OfTwoEqualTextsTheFirstIsRemoved) {
    occasions.Add({3, 9}, "same");
    occasions.Add({3, 9}, "other");
    occasions.Add({3, 9}, "same");
    EXPECT_TRUE(occasions.Remove("March 09 - same"));
    EXPECT_THAT(occasions.On({3, 9}), ElementsAre("other", "same"));
    EXPECT_EQ(read(R"(Events\March\09\NumTasks)"), "2");
}

TEST_F(OccasionsTest, TheLastOneLeavesACountOfZero) {
    occasions.Add({3, 9}, "only");
    EXPECT_TRUE(occasions.Remove("March 09 - only"));
    EXPECT_EQ(read(R"(Events\March\09\NumTasks)"), "0");
    EXPECT_EQ(medium.values.size(), 1U);
}

TEST_F(OccasionsTest, RemovalClosesUpInOrderAndDropsBlankTexts) {
    save(R"(Events\May\05\NumTasks)", "4");
    save(R"(Events\May\05\1M)", "a");
    save(R"(Events\May\05\2M)", " ");
    save(R"(Events\May\05\3M)", "c");
    save(R"(Events\May\05\4M)", " d ");
    EXPECT_TRUE(occasions.Remove("May 05 - a"));
    EXPECT_EQ(read(R"(Events\May\05\1M)"), "c");
    EXPECT_EQ(read(R"(Events\May\05\2M)"), "d");
    EXPECT_EQ(read(R"(Events\May\05\NumTasks)"), "3");
    EXPECT_THAT(occasions.On({5, 5}), ElementsAre("c", "d"));
}

TEST_F(OccasionsTest, RemovalComparesTrimmedTextsWithRegardToCase) {
    occasions.Add({3, 9}, "Tea");
    occasions.Add({3, 9}, "  tea ");
    EXPECT_TRUE(occasions.Remove("March 09 -   tea "));
    EXPECT_THAT(occasions.On({3, 9}), ElementsAre("Tea"));
    EXPECT_FALSE(occasions.Remove("March 09 - TEA"));
}

TEST_F(OccasionsTest, TextsWithDashesAndMarkUpAreFoundAgain) {
    for (const char* text : {"A - B", " - ", "-", "Tea & <b>cake</b>", "a -b"}) {
        occasions.Add({3, 9}, text);
        ASSERT_EQ(occasions.Lines().size(), 1U) << text;
        EXPECT_EQ(occasions.Lines()[0], "March 09 - " + std::string(text));
        EXPECT_TRUE(occasions.Remove(occasions.Lines()[0])) << text;
        EXPECT_THAT(occasions.Lines(), IsEmpty());
    }
}

TEST_F(OccasionsTest, RemovingWhatIsNotThereChangesNothing) {
    occasions.Add({3, 9}, "a");
    const auto before = medium.values;
    for (const char* line : {"", "March", "March 09", "March 09 - b", "March 10 - a",
                             "Merch 09 - a", " - a", "march 09 - a", "March x - a", "March -1 - a"})
        EXPECT_FALSE(occasions.Remove(line)) << line;
    EXPECT_EQ(medium.values, before);
}

TEST_F(OccasionsTest, AFailureLeavesTheListAsItWas) {
    occasions.Add({3, 9}, "a");
    occasions.Add({3, 9}, "b");
    const auto before = medium.values;
    medium.failing = true;
    EXPECT_THROW(occasions.Add({3, 9}, "c"), Failure);
    EXPECT_THROW(occasions.Remove("March 09 - a"), Failure);
    EXPECT_EQ(medium.values, before);
}

TEST(OccasionLines, AreTakenApartAtTheFirstDash) {
    const OccasionLine line = splitOccasionLine("March 09 - Tea - with - Clara ");
    EXPECT_EQ(line.day, (OccasionDay{3, 9}));
    EXPECT_EQ(line.text, "Tea - with - Clara");
    EXPECT_EQ(splitOccasionLine("September 30").day, (OccasionDay{9, 30}));
    EXPECT_EQ(splitOccasionLine("September 30").text, "");
    EXPECT_EQ(splitOccasionLine("").day, (OccasionDay{0, 0}));
}

TEST(OccasionLines, MonthsEndOnTheirHighestDayInAnyYear) {
    const std::vector<unsigned> expected{31, 29, 31, 30, 31, 30, 31, 31, 30, 31, 30, 31};
    for (unsigned month = 1; month <= 12; ++month)
        EXPECT_EQ(highestDayOf(month), expected[month - 1]) << month;
}

}  // namespace
}  // namespace velmora
