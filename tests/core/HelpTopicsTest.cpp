#include "core/HelpTopics.h"

#include <gtest/gtest.h>

namespace velmora {
namespace {

TEST(HelpTopics, EachWindowHasItsPage) {
    EXPECT_EQ("add-entry", helpTopicOf("AddForm"));
    EXPECT_EQ("search", helpTopicOf("Form4"));
    EXPECT_EQ("associates", helpTopicOf("Other"));
    EXPECT_EQ("scheduling", helpTopicOf("Schedule"));
    EXPECT_EQ("alarms", helpTopicOf("Alarm"));
    EXPECT_EQ("alarms", helpTopicOf("AlarmAlert"));
    EXPECT_EQ("tasks", helpTopicOf("Form3"));
    EXPECT_EQ("tasks", helpTopicOf("Form10"));
    EXPECT_EQ("tasks", helpTopicOf("Monthly"));
    EXPECT_EQ("docpad-search", helpTopicOf("TextSearch"));
    EXPECT_EQ("letters", helpTopicOf("Form9"));
    EXPECT_EQ("reports", helpTopicOf("Form6"));
    EXPECT_EQ("envelope", helpTopicOf("Envelope"));
    EXPECT_EQ("callers", helpTopicOf("CallID"));
    EXPECT_EQ("fax", helpTopicOf("Faxer"));
    EXPECT_EQ("fonts", helpTopicOf("FontDialog"));
    EXPECT_EQ("printing", helpTopicOf("PrinterDialog"));
    EXPECT_EQ("calculator", helpTopicOf("Calculator"));
    EXPECT_EQ("week", helpTopicOf("WeekataGlance"));
    EXPECT_EQ("datewarden", helpTopicOf("Form7"));
    EXPECT_EQ("events", helpTopicOf("Form8"));
    EXPECT_EQ("help", helpTopicOf("HelpWindow"));
    EXPECT_EQ("import", helpTopicOf("DataImport"));
    EXPECT_EQ("import", helpTopicOf("Form2"));
    EXPECT_EQ("backup", helpTopicOf("Form11"));
    EXPECT_EQ("preferences", helpTopicOf("Setup"));
    EXPECT_EQ("run", helpTopicOf("Form5"));
}

TEST(HelpTopics, OtherWindowsHaveTheFirstPage) {
    EXPECT_EQ("welcome", helpTopicOf("MessageBox"));
    EXPECT_EQ("welcome", helpTopicOf(""));
}

TEST(HelpTopics, EachPaneHasItsPage) {
    EXPECT_EQ("planner", helpTopicOf(Pane::Planner));
    EXPECT_EQ("phonebook", helpTopicOf(Pane::Phonebook));
    EXPECT_EQ("dialer", helpTopicOf(Pane::Dialer));
}

}  // namespace
}  // namespace velmora
