#include "phonebook/HitListPrint.h"

#include <gmock/gmock.h>

#include "support/FakeClock.h"
#include "support/Golden.h"
#include "support/MemorySettings.h"
#include "support/PrintDesk.h"

namespace velmora {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;

class HitListPrintTest : public testing::Test {
  protected:
    test::PrintDesk desk_;
    test::FakePrintSurface& printer_ = desk_.printer;
    test::FakeMessages& messages_ = desk_.messages;
    test::MemorySettings medium_;
    SettingsStore settings_{medium_};
    test::FakeClock clock_;
    LocaleFormats locale_;
    HitListPrint printing_{desk_.printing, settings_, clock_, locale_};
};

TEST_F(HitListPrintTest, PrintsAHeadAndTheLines) {
    const std::vector<std::string> lines{"Y: Zorn, Jo\tMatch: First Name=Jo      ",
                                         "W: M\xFCller & Co\tMatch: Note=a joke",
                                         "Y: Abel, Jo\tMatch: First Name=Jo"};
    printing_.print(lines);
    test::expectGolden(printer_.takeDump(), "search-results.txt");
}

TEST_F(HitListPrintTest, AnEmptyListHasItsHead) {
    printing_.print({});
    EXPECT_EQ(printer_.takeDump(),
              "printer Pocket, portrait\n"
              "page 1\n"
              "0.000 0.000 Arial 14 |Velmora: Search Results          Thursday, March 12, 2026|\n");
}

TEST_F(HitListPrintTest, LinesHaveTheFaceOfTheListAndTenPointsWhateverWasPrintedBefore) {
    settings_.Save("ListFont", "Inter");
    printer_.SetFontName("Times");
    printer_.SetFontSize(13);
    printer_.SetForeColor(0x0000FF);
    printer_.SetFontBold(true);
    printing_.print(std::vector<std::string>{"a line"});
    const std::string dump = printer_.takeDump();
    EXPECT_THAT(dump, HasSubstr("Inter 14 |Velmora: "));
    EXPECT_THAT(dump, HasSubstr("Inter 10 |a line|"));
}

TEST_F(HitListPrintTest, ALongListGoesOnOnTheNextPage) {
    printing_.print(std::vector<std::string>(100, "a line"));
    const auto jobs = printer_.takeJobs();
    ASSERT_EQ(jobs.size(), 1U);
    EXPECT_EQ(jobs[0].pages.size(), 2U);
}

TEST_F(HitListPrintTest, APrinterThatFailsIsToldAndNothingIsThrown) {
    printer_.refusal = "The printer is on fire.";
    EXPECT_NO_THROW(printing_.print({}));
    EXPECT_THAT(messages_.takeShown(), ElementsAre("error|Velmora|The printer is on fire."));
}

TEST_F(HitListPrintTest, IsRefusedWhileAnotherJobRuns) {
    desk_.jobs.run([&](LongJob&) { printing_.print(std::vector<std::string>{"Y: Abel, Jo"}); });
    EXPECT_EQ(printer_.takeDump(), "");
    EXPECT_EQ(desk_.status.text, "Velmora is still busy with a job. Try again when it is done.");
}

TEST_F(HitListPrintTest, HitsThatGoMeanwhileAreStillPrinted) {
    std::vector<std::string> hits(3, "Y: Abel, Jo");
    desk_.loop.onYield = [&] { hits.clear(); };
    printing_.print(hits);
    const auto jobs = printer_.takeJobs();
    ASSERT_EQ(jobs.size(), 1U);
    EXPECT_EQ(jobs[0].pages.at(0).size(), 4U);
}

}  // namespace
}  // namespace velmora
