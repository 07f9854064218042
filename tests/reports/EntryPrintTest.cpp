#include "reports/EntryPrint.h"

#include <gmock/gmock.h>

#include "support/FakePhonebookPane.h"
#include "support/Golden.h"
#include "support/PhonebookFixture.h"
#include "support/PrintDesk.h"

namespace velmora {
namespace {

using testing::HasSubstr;
using testing::IsEmpty;
using testing::Not;

PhonebookRecord fullRecord(std::string_view last, std::string_view first) {
    PhonebookRecord record = test::formRecord(last, first, "Northgate Instruments");
    record.assign(Field::Title, "Mr.");
    record.assign(Field::Position, "Purchasing Manager");
    record.assign(Field::Address1, "418 Kiln Street");
    record.assign(Field::Address3, "Millbrook, IL");
    record.assign(Field::PostalCode, "60555");
    record.assign(Field::Country, "United States");
    record.assign(Field::Phone, "555-0101");
    record.assign(Field::WorkPhone, "555-0102");
    record.assign(Field::Fax, "555-0103");
    record.assign(Field::Pager, "555-0104");
    record.assign(Field::OtherPhone, "555-0105");
    record.assign(Field::EMail, "adrian@example.com");
    record.assign(Field::WebPage, "http://example.com");
    record.assign(Field::Class, "Customer");
    record.assign(Field::DateReference, "03/09/2001");
    record.assign(Field::Custom1, "first");
    record.assign(Field::Custom2, "second");
    record.assign(Field::Memo, "Calls on Mondays.\r\nLikes tea.");
    return record;
}

class EntryPrintTest : public testing::Test, protected test::PhonebookFixture {
  protected:
    test::PrintDesk desk;
    test::FakePhonebookPane pane;
    SelectedEntry entry{state, store, pane};
    EntryPrint printing{{desk.printing, entry, pane, settings, desk.status, codePage}};
};

TEST_F(EntryPrintTest, PrintsAPersonInTheRowsOfTheCompleteReport) {
    yellow() = test::bytesOf(fullRecord("Bellweather", "Adrian"));
    pane.selected = "Bellweather, Adrian";
    printing.PrintEntry();
    test::expectGolden(desk.printer.takeDump(), "entry-person.txt");
    EXPECT_EQ(desk.status.text, "Velmora");
}

TEST_F(EntryPrintTest, PrintsACompanyWithoutPositionAndCompanyLine) {
    yellow() = test::bytesOf(fullRecord("", ""));
    pane.selected = "Northgate Instruments";
    printing.PrintEntry();
    test::expectGolden(desk.printer.takeDump(), "entry-company.txt");
}

TEST_F(EntryPrintTest, AnEntryKeepsItsHeightWithoutAnythingInIt) {
    PhonebookRecord record;
    record.assign(Field::Company, "Acme");
    yellow() = test::bytesOf(record);
    pane.selected = "Acme";
    printing.PrintEntry();
    // The rule comes below twelve lines and two gaps.
    EXPECT_THAT(desk.printer.takeDump(), HasSubstr("line 0.000 2.120 to 7.900 2.120\n"));
}

TEST_F(EntryPrintTest, WithoutNumbersTheGapAboveThemStays) {
    settings.Save("LetterTel", "0");
    settings.Save("Custom1", " Birthday ");
    yellow() = test::bytesOf(fullRecord("Bellweather", "Adrian"));
    pane.selected = "Bellweather, Adrian";
    printing.PrintEntry();
    const std::string dump = desk.printer.takeDump();
    EXPECT_THAT(dump, Not(HasSubstr("Home: ")));
    EXPECT_THAT(dump, HasSubstr("0.000 1.270 Arial 10 |Web Page: "));
    EXPECT_THAT(dump, HasSubstr("|Birthday: first|"));
    EXPECT_THAT(dump, HasSubstr("|Custom2: second|"));
}

TEST_F(EntryPrintTest, NothingSelectedAndAnEntryThatIsGonePrintNothing) {
    yellow() = test::bytesOf(fullRecord("", "Adrian")) + test::tombstoneBytes();
    for (const char* line : {"", "  ", "Smith, Ann", "DELETED, "}) {
        pane.selected = line;
        printing.PrintEntry();
        EXPECT_EQ(desk.printer.takeDump(), "") << line;
        EXPECT_EQ(desk.status.text, "Velmora");
    }
}

TEST_F(EntryPrintTest, StandsUprightAndPutsTheChosenSheetsBack) {
    desk.printer.SetOrientation(PageOrientation::Landscape);
    desk.printer.SetFontName("Times");
    yellow() = test::bytesOf(fullRecord("Bellweather", "Adrian"));
    pane.selected = "Bellweather, Adrian";
    printing.PrintEntry();
    EXPECT_EQ(desk.printer.takeJobs().at(0).orientation, PageOrientation::Portrait);
    EXPECT_EQ(desk.printer.Orientation(), PageOrientation::Landscape);
    EXPECT_EQ(desk.printer.FontName(), "Times");
    EXPECT_EQ(desk.printer.FontSize(), 12);
}

TEST_F(EntryPrintTest, IsNamedAfterTheEntryInTheQueue) {
    yellow() = test::bytesOf(fullRecord("Bellweather", "Adrian"));
    pane.selected = "Bellweather, Adrian";
    printing.PrintEntry();
    EXPECT_EQ(desk.printer.takeJobs().at(0).title, "Velmora: Entry Bellweather, Adrian");
}

TEST_F(EntryPrintTest, APrinterThatFailsIsToldOnTheStatusLine) {
    yellow() = test::bytesOf(fullRecord("Bellweather", "Adrian"));
    pane.selected = "Bellweather, Adrian";
    desk.printer.refusal = "The printer is on fire.";
    printing.PrintEntry();
    EXPECT_EQ(desk.status.text, "The printer is on fire.");
    EXPECT_THAT(desk.messages.takeShown(), IsEmpty());
}

TEST_F(EntryPrintTest, IsRefusedWhileAJobRuns) {
    yellow() = test::bytesOf(fullRecord("Bellweather", "Adrian"));
    pane.selected = "Bellweather, Adrian";
    desk.jobs.run([this](LongJob&) { printing.PrintEntry(); });
    EXPECT_EQ(desk.printer.takeDump(), "");
    EXPECT_THAT(desk.status.text, HasSubstr("still busy"));
}

}  // namespace
}  // namespace velmora
