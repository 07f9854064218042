#include "reports/ReportPages.h"

#include <gmock/gmock.h>

#include "reports/ReportFixture.h"
#include "support/Golden.h"

namespace velmora {
namespace {

using test::bytesOf;
using test::companies;
using test::people;
using testing::ElementsAre;
using Texts = std::vector<std::string>;

PhonebookRecord fullRecord(bool isPerson) {
    PhonebookRecord record;
    for (std::size_t i = 0; i < kFieldCount; ++i)
        record.assign(static_cast<Field>(i), "field " + std::to_string(i + 1));
    record.assign(Field::Last, isPerson ? "M\xFCller" : "");
    record.assign(Field::First, isPerson ? "Jo" : "");
    record.assign(Field::Company, "Acme & Co");
    return record;
}

class ReportPagesTest : public testing::Test, protected test::ReportFixture {
  protected:
    void fillBook() {
        yellow() = bytesOf(fullRecord(true)) + test::tombstoneBytes() + bytesOf(fullRecord(false)) +
                   bytesOf(test::personRecord("Abel", "Al", "two\r\nlines")) +
                   std::string(kRecordSize, '\0') + bytesOf(test::companyRecord("3M"));
    }

    void expectGoldenOf(ReportKind kind, ReportSize size, const char* name) {
        fillBook();
        settings.Save("Custom1", " Account ");
        print(kind, size);
        test::expectGolden(desk.printer.takeDump(), name);
    }

    Texts headsOf(ReportKind kind, ReportSize size, const std::string& book) {
        yellow() = book;
        print(kind, size);
        return heads();
    }

    // "1 of N" to "LAST of N".
    static Texts headsTo(int last, int total) {
        Texts texts;
        for (int page = 1; page <= last; ++page)
            texts.push_back(std::to_string(page) + " of " + std::to_string(total));
        return texts;
    }
};

TEST_F(ReportPagesTest, AListingOnNormalPages) {
    expectGoldenOf(ReportKind::Listing, ReportSize::Normal, "listing-normal.txt");
}

TEST_F(ReportPagesTest, AListingOnPocketPages) {
    expectGoldenOf(ReportKind::Listing, ReportSize::Pocket, "listing-pocket.txt");
}

TEST_F(ReportPagesTest, AListingOnMiniPages) {
    expectGoldenOf(ReportKind::Listing, ReportSize::Mini, "listing-mini.txt");
}

TEST_F(ReportPagesTest, ACompleteReportOnNormalPages) {
    expectGoldenOf(ReportKind::Complete, ReportSize::Normal, "report-normal.txt");
}

TEST_F(ReportPagesTest, ACompleteReportOnPocketPages) {
    expectGoldenOf(ReportKind::Complete, ReportSize::Pocket, "report-pocket.txt");
}

TEST_F(ReportPagesTest, ACompleteReportOnMiniPages) {
    expectGoldenOf(ReportKind::Complete, ReportSize::Mini, "report-mini.txt");
}

TEST_F(ReportPagesTest, AnEmptyBookHasOneHeadAndACountOfNought) {
    for (const ReportKind kind : {ReportKind::Listing, ReportKind::Complete})
        for (const ReportSize size : {ReportSize::Normal, ReportSize::Pocket, ReportSize::Mini}) {
            yellow().clear();
            print(kind, size);
            const bool byCount = kind == ReportKind::Complete && size == ReportSize::Normal;
            const auto sheets = pages();
            ASSERT_EQ(sheets.size(), 1U);
            ASSERT_EQ(sheets[0].size(), 1U);
            EXPECT_THAT(sheets[0][0], testing::HasSubstr("0 Total Entries    Yellow Pages    "));
            EXPECT_THAT(sheets[0][0],
                        testing::EndsWith(byCount ? "Page # 1 of 0" : "Page # 1 of 1"));
        }
}

TEST_F(ReportPagesTest, AListingOnNormalPagesIsEstimatedTooLong) {
    EXPECT_EQ(headsOf(ReportKind::Listing, ReportSize::Normal, people(19)), headsTo(1, 1));
    EXPECT_EQ(headsOf(ReportKind::Listing, ReportSize::Normal, people(20)), headsTo(2, 2));
    EXPECT_EQ(headsOf(ReportKind::Listing, ReportSize::Normal, people(38)), headsTo(2, 2));
}

TEST_F(ReportPagesTest, APocketListingBeginsAPageBehindASheetThatIsJustFull) {
    EXPECT_EQ(headsOf(ReportKind::Listing, ReportSize::Pocket, people(15)), headsTo(1, 1));
    EXPECT_EQ(headsOf(ReportKind::Listing, ReportSize::Pocket, people(16)), headsTo(2, 1));
    EXPECT_EQ(headsOf(ReportKind::Listing, ReportSize::Pocket, people(17)), headsTo(2, 2));
}

TEST_F(ReportPagesTest, AMiniListingPassesItsEstimateByOnePage) {
    EXPECT_EQ(headsOf(ReportKind::Listing, ReportSize::Mini, people(15)), headsTo(3, 3));
    EXPECT_EQ(headsOf(ReportKind::Listing, ReportSize::Mini, people(16)), headsTo(4, 3));
}

TEST_F(ReportPagesTest, BehindThatPageTheEntriesRunOn) {
    yellow() = people(100);
    print(ReportKind::Listing, ReportSize::Mini);
    const auto sheets = pages();
    ASSERT_EQ(sheets.size(), 19U);
    EXPECT_THAT(sheets.back().front(), testing::EndsWith("Page # 19 of 18"));
    // Its own five and the last five.
    EXPECT_EQ(sheets.back().size(), 1U + 10 * 7);
}

TEST_F(ReportPagesTest, AReportOnNormalPagesHasFourEntriesToAPage) {
    EXPECT_EQ(headsOf(ReportKind::Complete, ReportSize::Normal, people(3)), headsTo(1, 1));
    EXPECT_EQ(headsOf(ReportKind::Complete, ReportSize::Normal, people(4)), headsTo(2, 1));
    EXPECT_EQ(headsOf(ReportKind::Complete, ReportSize::Normal, people(5)), headsTo(2, 2));
    EXPECT_EQ(headsOf(ReportKind::Complete, ReportSize::Normal, people(8)), headsTo(3, 2));
    EXPECT_EQ(headsOf(ReportKind::Complete, ReportSize::Normal, companies(4)), headsTo(2, 1));
}

TEST_F(ReportPagesTest, APocketReportHasFourEntriesToAPage) {
    EXPECT_EQ(headsOf(ReportKind::Complete, ReportSize::Pocket, people(3)), headsTo(1, 1));
    EXPECT_EQ(headsOf(ReportKind::Complete, ReportSize::Pocket, people(4)), headsTo(2, 1));
    EXPECT_EQ(headsOf(ReportKind::Complete, ReportSize::Pocket, companies(4)), headsTo(2, 1));
    EXPECT_EQ(headsOf(ReportKind::Complete, ReportSize::Pocket, people(100)), headsTo(24, 23));
}

TEST_F(ReportPagesTest, AMiniReportHasTwoEntriesToAPage) {
    EXPECT_EQ(headsOf(ReportKind::Complete, ReportSize::Mini, people(1)), headsTo(1, 1));
    EXPECT_EQ(headsOf(ReportKind::Complete, ReportSize::Mini, people(2)), headsTo(2, 1));
    EXPECT_EQ(headsOf(ReportKind::Complete, ReportSize::Mini, companies(2)), headsTo(2, 1));
    EXPECT_EQ(headsOf(ReportKind::Complete, ReportSize::Mini, people(100)), headsTo(46, 45));
}

TEST_F(ReportPagesTest, TheHeadOfAPocketReportIsLargerOnLaterPages) {
    yellow() = people(5);
    print(ReportKind::Complete, ReportSize::Pocket);
    const auto jobs = desk.printer.takeJobs();
    ASSERT_EQ(jobs.size(), 1U);
    const auto headSize = [&](std::size_t page) {
        return std::get<PrintedText>(jobs[0].pages.at(page).front()).font.size;
    };
    EXPECT_EQ(headSize(0), 7.75F);
    EXPECT_EQ(headSize(1), 8.5F);
}

TEST_F(ReportPagesTest, AListingOnNormalPagesHasTheEditorsSizeBelowEleven) {
    const auto sizeAt = [&](float editorSize) {
        editor.size = editorSize;
        yellow() = people(1);
        print(ReportKind::Listing, ReportSize::Normal);
        return std::get<PrintedText>(desk.printer.takeJobs().at(0).pages.at(0).at(1)).font.size;
    };
    EXPECT_EQ(sizeAt(8), 8.0F);
    EXPECT_EQ(sizeAt(10.5F), 10.5F);
    EXPECT_EQ(sizeAt(11), 10.0F);
    EXPECT_EQ(sizeAt(24), 10.0F);
}

TEST_F(ReportPagesTest, ACompanyOnAMiniListingShrinksALargeFontOfTheEditor) {
    editor.size = 13;
    yellow() = people(1);
    print(ReportKind::Listing, ReportSize::Mini);
    EXPECT_EQ(editor.size, 13.0F);
    yellow() = companies(1);
    print(ReportKind::Listing, ReportSize::Pocket);
    EXPECT_EQ(editor.size, 13.0F);
    print(ReportKind::Listing, ReportSize::Mini);
    EXPECT_EQ(editor.size, 7.0F);
    editor.size = 12;
    print(ReportKind::Listing, ReportSize::Mini);
    EXPECT_EQ(editor.size, 12.0F);
}

TEST_F(ReportPagesTest, TheFacesAndTheColourAreTheChosenOnes) {
    settings.Save("DocFont", "Courier");
    settings.Save("ListFont", "Times");
    settings.Save("ListFontC", "255");
    yellow() = people(1);
    for (const auto& [kind, face] :
         {std::pair{ReportKind::Listing, "Courier"}, std::pair{ReportKind::Complete, "Times"}}) {
        print(kind, ReportSize::Normal);
        const auto text = std::get<PrintedText>(desk.printer.takeJobs().at(0).pages.at(0).front());
        EXPECT_EQ(text.font.name, face);
        EXPECT_EQ(text.colour, 255);
    }
}

// A large font makes an entry higher than the sheet: the printer turns the page within it, and its
// cells stay together.
TEST_F(ReportPagesTest, CellsOfARowStayTogetherWhereThePrinterTurnsThePage) {
    PhonebookRecord record = test::personRecord("Last", "First");
    std::string memo = "a";
    for (int i = 0; i < 61; ++i)
        memo += "\r\n";
    record.assign(Field::Memo, memo);
    yellow() = bytesOf(record) + bytesOf(test::personRecord("Next", "One"));
    print(ReportKind::Complete, ReportSize::Normal);
    const auto sheets = pages();
    std::size_t withClass = 0;
    for (const auto& sheet : sheets)
        for (const std::string& text : sheet)
            withClass += text == "Class: " ? 1U : 0U;
    EXPECT_EQ(withClass, 2U);
    EXPECT_GE(sheets.size(), 2U);
}

}  // namespace
}  // namespace velmora
