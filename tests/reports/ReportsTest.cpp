#include "reports/Reports.h"

#include <gmock/gmock.h>

#include "reports/ReportFixture.h"

namespace velmora {
namespace {

using test::people;
using testing::ElementsAre;
using testing::IsEmpty;
using Texts = std::vector<std::string>;

class ReportsTest : public testing::Test, protected test::ReportFixture {
  protected:
    ReportsTest() {
        yellow() = people(1);
        white() = people(2);
    }

    Texts titles() {
        Texts result;
        for (const PrintJob& job : desk.printer.takeJobs())
            result.push_back(job.title);
        return result;
    }

    Texts ended;
    std::vector<ReportBooks> merged;
    Reports reports{parts,
                    desk.status,
                    {.mergePrint = [this](ReportBooks books) { merged.push_back(books); },
                     .endProgram = [this](const std::string& text) { ended.push_back(text); }}};
};

TEST_F(ReportsTest, PrintsWhatItWasOpenedFor) {
    reports.begin(ReportKind::Listing);
    EXPECT_TRUE(reports.print({ReportBooks::Yellow, ReportSize::Pocket}));
    EXPECT_THAT(titles(), ElementsAre("Velmora: Telecommunications Listing, Yellow Pages"));
    reports.begin(ReportKind::Complete);
    EXPECT_TRUE(reports.print({ReportBooks::White, ReportSize::Normal}));
    EXPECT_THAT(titles(), ElementsAre("Velmora: Complete Report, White Pages"));
    EXPECT_EQ(desk.loop.waited.count(), 0);
}

TEST_F(ReportsTest, OfBothBooksYellowComesFirstAndWhiteTenSecondsLater) {
    reports.begin(ReportKind::Complete);
    EXPECT_TRUE(reports.print({ReportBooks::Both, ReportSize::Normal}));
    EXPECT_THAT(titles(), ElementsAre("Velmora: Complete Report, Yellow Pages",
                                      "Velmora: Complete Report, White Pages"));
    EXPECT_EQ(desk.loop.waited, std::chrono::seconds(10));
}

TEST_F(ReportsTest, ACancelledFirstBookIsFollowedByTheSecond) {
    desk.cancelInYield(1);
    reports.begin(ReportKind::Complete);
    EXPECT_TRUE(reports.print({ReportBooks::Both, ReportSize::Normal}));
    EXPECT_THAT(titles(), ElementsAre("Velmora: Complete Report, White Pages"));
    EXPECT_EQ(desk.loop.waited, std::chrono::seconds(10));
}

TEST_F(ReportsTest, WithoutABookNothingIsPrintedNowOrLater) {
    reports.begin(ReportKind::Listing);
    EXPECT_FALSE(reports.print({ReportBooks::None, ReportSize::Normal}));
    EXPECT_THAT(desk.status.text, testing::StartsWith("No book was chosen"));
    EXPECT_FALSE(reports.print({ReportBooks::Yellow, ReportSize::Normal}));
    EXPECT_THAT(titles(), IsEmpty());
}

TEST_F(ReportsTest, CancelForgetsWhatTheDialogWasOpenedFor) {
    desk.printing.state().MergePending = true;
    reports.begin(ReportKind::Listing);
    EXPECT_FALSE(desk.printing.state().MergePending);
    EXPECT_TRUE(desk.printing.state().ListingPending);
    reports.cancel();
    EXPECT_FALSE(desk.printing.state().ListingPending);
    EXPECT_FALSE(reports.print({ReportBooks::Yellow, ReportSize::Normal}));
}

TEST_F(ReportsTest, AMergeGetsTheBooksOfTheChoiceAndIsDoneOnce) {
    reports.beginMerge();
    EXPECT_TRUE(reports.print({ReportBooks::Both, ReportSize::Mini}));
    EXPECT_FALSE(reports.print({ReportBooks::Both, ReportSize::Mini}));
    EXPECT_THAT(merged, ElementsAre(ReportBooks::Both));
    reports.beginMerge();
    EXPECT_FALSE(reports.print({ReportBooks::None, ReportSize::Mini}));
    reports.beginMerge();
    reports.begin(ReportKind::Listing);
    EXPECT_TRUE(reports.print({ReportBooks::Yellow, ReportSize::Mini}));
    EXPECT_EQ(merged.size(), 1U);
    EXPECT_EQ(titles().size(), 1U);
}

TEST_F(ReportsTest, TheBookOfTheRunIsPutBack) {
    desk.printing.state().ReportBook = 2;
    reports.begin(ReportKind::Listing);
    (void)reports.print({ReportBooks::Yellow, ReportSize::Normal});
    EXPECT_EQ(desk.printing.state().ReportBook, 2);
}

TEST_F(ReportsTest, ASecondReportIsRefusedWhileOneRuns) {
    bool second = true;
    desk.loop.onYield = [&] {
        desk.printing.state().ListingPending = true;
        second = reports.print({ReportBooks::Yellow, ReportSize::Normal});
    };
    reports.begin(ReportKind::Complete);
    EXPECT_TRUE(reports.print({ReportBooks::Yellow, ReportSize::Normal}));
    EXPECT_FALSE(second);
    EXPECT_EQ(titles().size(), 1U);
}

TEST_F(ReportsTest, TooManyNamesEndTheProgramAndTheRun) {
    const std::string one = people(1);
    std::string& book = yellow();
    book.clear();
    for (std::size_t i = 0; i <= BookReport::kMostNames; ++i)
        book += one;
    reports.begin(ReportKind::Listing);
    (void)reports.print({ReportBooks::Both, ReportSize::Normal});
    EXPECT_THAT(ended, ElementsAre("Subscript out of range"));
    EXPECT_THAT(titles(), IsEmpty());
    EXPECT_EQ(desk.loop.waited.count(), 0);
}

}  // namespace
}  // namespace velmora
