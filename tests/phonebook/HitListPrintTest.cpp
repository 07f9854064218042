#include "phonebook/HitListPrint.h"

#include <gmock/gmock.h>

#include "support/FakeClock.h"
#include "support/FakeMessages.h"
#include "support/FakePrintSurface.h"
#include "support/FakeStatusLine.h"
#include "support/Golden.h"

namespace velmora {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;

class HitListPrintTest : public testing::Test {
  protected:
    test::FakePrintSurface printer_;
    test::FakeMessages messages_;
    test::FakeClock clock_;
    LocaleFormats locale_;
    JobRunning jobs_;
    test::FakeStatusLine status_;
    HitListPrint printing_{printer_, jobs_, status_, messages_, clock_, locale_};
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

TEST_F(HitListPrintTest, TheFontGoesBackToWhatItWas) {
    printer_.SetFontName("Inter");
    printer_.SetFontSize(7.75F);
    printing_.print({});
    EXPECT_EQ(printer_.FontSize(), 7.75F);
    printing_.print(std::vector<std::string>{"a line"});
    EXPECT_THAT(printer_.takeDump(), HasSubstr("Inter 7.75 |a line|"));
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

TEST_F(HitListPrintTest, WaitsForAJobThatIsUnderWay) {
    const auto job = jobs_.begin();
    printing_.print(std::vector<std::string>{"Y: Abel, Jo"});
    EXPECT_EQ(printer_.takeDump(), "");
    EXPECT_EQ(status_.text, "Velmora is still busy with a job. Try again when it is done.");
}

}  // namespace
}  // namespace velmora
