#include "core/HelpIndex.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "platform/Failure.h"

namespace velmora {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

constexpr const char* kPages =
    "# a remark\n"
    "planner | The planner | day, appointments\r\n"
    "\n"
    "phonebook | The phonebook | letters, list\n"
    "search | Searching | find, phonebook, both books\n"
    "data|Where data lies|backup, list of files\n"
    "find-day | Day by day |\n";

class HelpIndexTest : public ::testing::Test {
  protected:
    std::vector<std::string> lines(const char* typed) const {
        std::vector<std::string> result;
        for (const HelpHit& hit : index.matching(typed))
            result.push_back(hit.topic + ": " + hit.line);
        return result;
    }

    HelpIndex index{kPages, CodePage::western()};
};

TEST_F(HelpIndexTest, ReadsPagesInTheOrderOfTheContents) {
    std::vector<std::string> topics;
    for (const HelpPage& page : index.pages())
        topics.push_back(page.topic);
    EXPECT_THAT(topics, ElementsAre("planner", "phonebook", "search", "data", "find-day"));
    const HelpPage* page = index.page("search");
    ASSERT_NE(nullptr, page);
    EXPECT_EQ("Searching", page->title);
    EXPECT_THAT(page->keywords, ElementsAre("find", "phonebook", "both books"));
    EXPECT_THAT(index.page("find-day")->keywords, IsEmpty());
}

TEST_F(HelpIndexTest, KnowsNoOtherTopics) {
    EXPECT_EQ(nullptr, index.page("printing"));
    EXPECT_EQ(nullptr, index.page(""));
}

TEST_F(HelpIndexTest, WithoutATextItShowsTheContents) {
    for (const char* typed : {"", "   "})
        EXPECT_THAT(lines(typed), ElementsAre("planner: The planner", "phonebook: The phonebook",
                                              "search: Searching", "data: Where data lies",
                                              "find-day: Day by day"));
}

TEST_F(HelpIndexTest, TitlesComeBeforeKeywordsAndTheseBeforeWordsInside) {
    EXPECT_THAT(lines("day"), ElementsAre("find-day: Day by day", "planner: The planner (day)"));
    EXPECT_THAT(lines("list"), ElementsAre("phonebook: The phonebook (list)",
                                           "data: Where data lies (list of files)"));
    EXPECT_THAT(lines("phone"),
                ElementsAre("search: Searching (phonebook)", "phonebook: The phonebook"));
    EXPECT_THAT(lines("books"), ElementsAre("search: Searching (both books)"));
    EXPECT_THAT(lines("oint"), ElementsAre("planner: The planner (appointments)"));
}

TEST_F(HelpIndexTest, IgnoresCaseAndBlanksAround) {
    EXPECT_THAT(lines("  SEARCHing "), ElementsAre("search: Searching"));
}

TEST_F(HelpIndexTest, FindsPagesThatHoldEachWord) {
    EXPECT_THAT(lines("files where"), ElementsAre("data: Where data lies"));
    EXPECT_THAT(lines("files  phonebook"), IsEmpty());
}

TEST_F(HelpIndexTest, FindsNothingForWhatIsNowhere) {
    EXPECT_THAT(lines("fax"), IsEmpty());
}

TEST(HelpIndex, RefusesADamagedText) {
    for (const char* text : {"planner", "planner | The planner", " | The planner | day",
                             "planner | | day", "a | A |\na | B |"})
        EXPECT_THROW(HelpIndex(text, CodePage::western()), Failure) << text;
}

TEST(HelpIndex, MayBeEmpty) {
    const HelpIndex index("", CodePage::western());
    EXPECT_THAT(index.pages(), IsEmpty());
    EXPECT_THAT(index.matching(""), IsEmpty());
}

}  // namespace
}  // namespace velmora
