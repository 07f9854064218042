#include "planner/OldPlannerImport.h"

#include <gmock/gmock.h>

#include <string>
#include <vector>

#include "platform/Failure.h"
#include "support/MemoryFiles.h"
#include "support/PlannerFixture.h"
#include "support/PrintDesk.h"

namespace velmora {
namespace {

using namespace std::chrono;
using test::RawRow;
using Days = std::vector<OldPlannerDay>;

const CodePage& page() {
    return CodePage::western();
}

TEST(OldPlannerIndex, NamesADayForEachSectionWithAComma) {
    EXPECT_EQ(daysOfOldPlanner("[Monday, 3/9/98]\r\nFile=C:\\V\\a.dat \r\n[none]\r\nFile=b\r\n"
                               "[x,March 12, 1998]\r\n",
                               page()),
              (Days{{"Monday, 3/9/98", "C:\\V\\a.dat"}, {"x,March 12, 1998", ""}}));
}

TEST(OldPlannerIndex, LosesTheLastByteOfAHeaderWhateverItIs) {
    EXPECT_EQ(daysOfOldPlanner("[a, 3/9/98] \nFile=x\n", page()), (Days{{"a, 3/9/98]", ""}}));
    EXPECT_EQ(daysOfOldPlanner(" [a, 3/9/98]\nFile=x\n", page()), Days{});
}

TEST(OldPlannerIndex, CutsALongPath) {
    const auto days = daysOfOldPlanner("[a, 3/9/98]\nFile=" + std::string(300, 'x') + "\n", page());
    EXPECT_EQ(days[0].file, std::string(255, 'x'));
}

TEST(OldPlannerSection, HasItsDayBehindTheFirstComma) {
    EXPECT_EQ(dayOfOldSection("Monday, 3/9/98", year(2026)), year(1998) / 3 / 9);
    EXPECT_EQ(dayOfOldSection("x,March 12, 1998", year(2026)), year(1998) / 3 / 12);
    EXPECT_EQ(dayOfOldSection("x, 13/13/98", year(2026)), std::nullopt);
    EXPECT_EQ(dayOfOldSection("", year(2026)), std::nullopt);
}

TEST(OldNote, WithoutMarkersStandsAsItIs) {
    EXPECT_EQ(textOfOldNote("Dentist at 9"), "Dentist at 9");
    EXPECT_EQ(textOfOldNote(" chr$(13) x"), "chr$(13) x");
}

TEST(OldNote, EachMarkerTakesOneCharacterWithIt) {
    EXPECT_EQ(textOfOldNote("aChr$(13)\nbChr$(13)xc"), "a    b    c");
    EXPECT_EQ(textOfOldNote("aChr$(13)Chr$(13)b"), "a    hr$(13)b");
    EXPECT_EQ(textOfOldNote("aChr$(13)"), "a");
}

TEST(OldNote, SomeSayThatThereIsNothing) {
    EXPECT_TRUE(isNoNote("`"));
    EXPECT_TRUE(isNoNote("\x17"));
    EXPECT_FALSE(isNoNote(""));
    EXPECT_FALSE(isNoNote("``"));
}

class OldPlannerImportTest : public testing::Test, protected test::PlannerFixture {
  protected:
    bool import(const std::string& chosen = "/old/cname.dat") {
        desk.messages.willAnswer(std::optional<std::string>(chosen));
        return importer.import();
    }

    [[nodiscard]] std::vector<RawRow> rows() const { return test::rawRows(path); }

    // As it lies in the table, with the moment of the clock.
    static RawRow event(const std::string& date, const std::string& text) {
        return {"2026-03-12 10:42:00", date, "11:00 AM", "1:00 PM", text, "Event"};
    }
    static RawRow lastPass() { return event("NULL", "Events of the Day"); }

    test::PrintDesk desk;
    test::MemoryFiles files;
    int copies = 0;
    int shown = 0;
    std::string copyFailure;
    OldPlannerImport importer{{desk.jobs, desk.messages, store, files, clock, page(),
                               [this]() -> std::string {
                                   ++copies;
                                   if (!copyFailure.empty())
                                       throw Failure(copyFailure);
                                   return "/copy.mdb";
                               },
                               [this] { ++shown; }}};
};

TEST_F(OldPlannerImportTest, CancellingTheFileDialogImportsNothing) {
    for (const char* chosen : {"", "cname.dat"})
        EXPECT_FALSE(import(chosen));
    desk.messages.willAnswer(std::nullopt);
    EXPECT_FALSE(importer.import());
    EXPECT_TRUE(rows().empty());
    EXPECT_EQ(copies, 0);
}

TEST_F(OldPlannerImportTest, EachDayBecomesOneRowAndTheLastPassOneMore) {
    files["/old/cname.dat"] =
        "[Mon, 3/9/98]\r\nFile=/old/a.dat\r\n[Tue, 3/10/98]\r\nFile=/old/b.dat";
    files["/old/a.dat"] = "[Text]\r\nText= Dentist Chr$(13)~ then lunch\r\n";
    files["/old/b.dat"] = "[text]\r\ntext=\r\n";
    EXPECT_TRUE(import(" /old/cname.dat "));
    EXPECT_EQ(rows(), (std::vector<RawRow>{event("1998-03-09", "Dentist      then lunch"),
                                           event("1998-03-10", ""), lastPass()}));
    EXPECT_EQ(copies, 1);
    EXPECT_EQ(shown, 1);
    EXPECT_EQ(desk.status.text, "3 appointments added. The planner as it was before: /copy.mdb");
}

TEST_F(OldPlannerImportTest, AnIndexWithoutACommaAddsOnlyTheEmptyLastPass) {
    files["/old/cname.dat"] = "[Monday]\nFile=/old/a.dat\n";
    EXPECT_TRUE(import());
    EXPECT_EQ(rows(), (std::vector<RawRow>{lastPass()}));
}

TEST_F(OldPlannerImportTest, ADayThatHoldsNothingGetsNoRow) {
    files["/old/cname.dat"] = "[a, 3/9/98]\nFile=/old/a.dat\n[b, 3/10/98]\nFile=/old/b.dat\n";
    files["/old/a.dat"] = "[Text]\nText=`\n";
    files["/old/b.dat"] = "[Text]\nText=\x17\n";
    EXPECT_TRUE(import());
    EXPECT_EQ(rows(), (std::vector<RawRow>{lastPass()}));
}

TEST_F(OldPlannerImportTest, ANoteIsCutAt32000Characters) {
    files["/old/cname.dat"] = "[a, 3/9/98]\nFile=/old/a.dat\n";
    files["/old/a.dat"] = "[Text]\nText=" + std::string(32001, 'n') + "\n";
    EXPECT_TRUE(import());
    EXPECT_EQ(rows()[0][4], std::string(32000, 'n'));
}

TEST_F(OldPlannerImportTest, AFileThatMovedIsFoundBesideTheIndexByItsName) {
    files["/old/cname.dat"] = "[a, 3/9/98]\nFile=C:\\VLM\\DAY1.DAT\n";
    files["/old/day1.dat"] = "[Text]\nText=found\n";
    EXPECT_TRUE(import());
    EXPECT_EQ(rows()[0], event("1998-03-09", "found"));
}

TEST_F(OldPlannerImportTest, AMissingFileGivesTheDefaultTextAndIsTold) {
    files["/old/cname.dat"] = "[a, 3/9/98]\nFile=C:\\VLM\\none.dat\n";
    EXPECT_TRUE(import());
    EXPECT_EQ(rows(), (std::vector<RawRow>{event("1998-03-09", "Events of the Day"), lastPass()}));
    EXPECT_NE(desk.status.text.find("The files of 1 day could not be read"), std::string::npos);
}

TEST_F(OldPlannerImportTest, ADateThatCanNotBeReadLeavesTheRowWithoutOne) {
    files["/old/cname.dat"] = "[a, some day]\nFile=/old/a.dat\n";
    files["/old/a.dat"] = "[Text]\nText=x\n";
    EXPECT_TRUE(import());
    EXPECT_EQ(rows()[0], event("NULL", "x"));
}

TEST_F(OldPlannerImportTest, WithoutACopyOfThePlannerNothingIsImported) {
    files["/old/cname.dat"] = "[a, 3/9/98]\nFile=x\n";
    copyFailure = "The disk is full.";
    EXPECT_FALSE(import());
    EXPECT_TRUE(rows().empty());
    EXPECT_EQ(desk.status.text, "Nothing was imported: The disk is full.");
}

TEST_F(OldPlannerImportTest, AnIndexThatCanNotBeReadIsTold) {
    EXPECT_FALSE(import("/old/none.dat"));
    EXPECT_TRUE(rows().empty());
    EXPECT_TRUE(desk.status.text.starts_with("Nothing was imported: "));
}

TEST_F(OldPlannerImportTest, WhatCanNotBeStoredIsCounted) {
    files["/old/cname.dat"] = "[a, 3/9/98]\nFile=/old/a.dat\n";
    files["/old/a.dat"] = "[Text]\nText=x\n";
    store.OpenDatabase(folder.file("none.mdb"));
    EXPECT_TRUE(import());
    EXPECT_TRUE(
        desk.status.text.starts_with("0 appointments added. 2 appointments could not be stored: "))
        << desk.status.text;
}

TEST_F(OldPlannerImportTest, AnImportThatIsCalledOffKeepsTheDaysBefore) {
    std::string index;
    for (int day = 1; day <= 20; ++day)
        index += "[a, 3/" + std::to_string(day) + "/98]\nFile=/old/a.dat\n";
    files["/old/cname.dat"] = index;
    files["/old/a.dat"] = "[Text]\nText=x\n";
    desk.cancelInYield(6);
    EXPECT_TRUE(import());
    EXPECT_EQ(rows().size(), 5U);
    EXPECT_NE(desk.status.text.find("The import was called off."), std::string::npos);
    EXPECT_EQ(shown, 1);
}

TEST_F(OldPlannerImportTest, DoesNothingWhileAnotherJobRuns) {
    desk.jobs.run([&](LongJob&) { EXPECT_FALSE(importer.import()); });
    EXPECT_TRUE(desk.messages.takeShown().empty());
}

}  // namespace
}  // namespace velmora
