#include "reports/BookReport.h"

#include <gmock/gmock.h>

#include <map>

#include "reports/ReportFixture.h"

namespace velmora {
namespace {

using test::bytesOf;
using test::companyRecord;
using test::formRecord;
using test::people;
using test::personRecord;
using testing::ElementsAre;
using testing::IsEmpty;
using Texts = std::vector<std::string>;

class BookReportTest : public testing::Test, protected test::ReportFixture {
  protected:
    void print() { (void)ReportFixture::print(ReportKind::Complete, ReportSize::Normal); }
    void list() { (void)ReportFixture::print(ReportKind::Listing, ReportSize::Normal); }

    // The names of the entries with their memos, as printed.
    Texts printed() {
        Texts result;
        for (const auto& page : pages())
            for (std::size_t i = 0; i + 1 < page.size(); ++i) {
                if (page[i + 1].starts_with("Class: "))
                    result.push_back(page[i]);
                if (page[i].starts_with("Memo: ") && page[i] != "Memo: " && !result.empty())
                    result.back() += "|" + page[i].substr(6);
            }
        return result;
    }

    std::string firstHead() {
        const auto sheets = pages();
        return sheets.empty() ? "nothing" : sheets.front().front();
    }
};

PhonebookRecord withClass(PhonebookRecord record, const char* name) {
    record.assign(Field::Class, name);
    return record;
}

TEST_F(BookReportTest, ListsPeopleAndCompaniesInTheOrderOfTheirCapitals) {
    yellow() = bytesOf(companyRecord("acme")) + bytesOf(personRecord("Zorn", "Al")) +
               bytesOf(personRecord("Abel", "Bo")) + bytesOf(formRecord("O'Neil", "Cy", "Acme"));
    list();
    EXPECT_THAT(pages().at(0),
                testing::AllOf(testing::Contains("Abel, Bo"), testing::Contains("acme")));
    print();
    const auto sheet = pages().at(0);
    Texts names;
    for (const std::string& text : sheet)
        if (text == "acme" || text.ends_with(", Al") || text.ends_with(", Bo") ||
            text.ends_with(", Cy"))
            names.push_back(text);
    EXPECT_THAT(names, ElementsAre("Abel, Bo", "acme", "O'Neil, Cy", "Zorn, Al"));
}

TEST_F(BookReportTest, DeletedEntriesAreNeitherCountedNorPrinted) {
    PhonebookRecord lower;
    lower.assign(Field::Last, "deleted");
    yellow() = test::tombstoneBytes() + bytesOf(lower) + bytesOf(personRecord("Abel", "Al")) +
               bytesOf(companyRecord("DELETED"));
    list();
    const auto sheet = pages().at(0);
    EXPECT_THAT(sheet.front(), testing::StartsWith("Telecommunications Listing: 2 Total Entries"));
    EXPECT_THAT(sheet, testing::Contains("DELETED"));
}

TEST_F(BookReportTest, ANameWithACommaIsCountedAndNotPrinted) {
    yellow() = bytesOf(personRecord("Smith, Jr", "Bob")) + bytesOf(companyRecord("Acme, Inc")) +
               bytesOf(companyRecord(", X")) + bytesOf(personRecord("Ray", "Bob, Jr"));
    print();
    const auto sheet = pages().at(0);
    EXPECT_THAT(sheet.front(), testing::StartsWith("Complete Report: 4 Total Entries"));
    EXPECT_THAT(sheet, testing::Contains("Ray, Bob, Jr"));
    for (const char* name : {"Smith, Jr, Bob", "Acme, Inc", ", X"})
        EXPECT_THAT(sheet, testing::Not(testing::Contains(name)));
}

TEST_F(BookReportTest, ANameWithACommaPrintsWhomItSplitsInto) {
    yellow() = bytesOf(companyRecord("Acme, Inc")) +
               bytesOf(withClass(personRecord("Acme", "Inc"), "Friend"));
    print();
    const auto sheet = pages().at(0);
    EXPECT_EQ(std::ranges::count(sheet, "Acme, Inc"), 2);
    EXPECT_EQ(std::ranges::count(sheet, "Class: Friend"), 2);
}

TEST_F(BookReportTest, TwoEntriesOfOneNameArePrintedTwiceEach) {
    yellow() = bytesOf(withClass(personRecord("Smith", "Bob"), "a")) +
               bytesOf(withClass(personRecord("SMITH", "BOB"), "b")) +
               bytesOf(withClass(personRecord("Adams", "Al"), "c"));
    print();
    Texts order;
    for (const auto& sheet : pages())
        for (const std::string& text : sheet)
            if (text == "Smith, Bob" || text == "SMITH, BOB" || text.starts_with("Class: "))
                order.push_back(text);
    EXPECT_THAT(order, ElementsAre("Class: c", "SMITH, BOB", "Class: a", "SMITH, BOB", "Class: b",
                                   "Smith, Bob", "Class: a", "Smith, Bob", "Class: b"));
}

TEST_F(BookReportTest, AMissingBookIsMadeByAllButTheNormalListing) {
    list();
    EXPECT_FALSE(files.has("/velmora\\DATAY.QEL"));
    EXPECT_THAT(pages(), IsEmpty());
    EXPECT_EQ(desk.status.text, "Velmora");
    EXPECT_FALSE(desk.icon.shown);
    print();
    EXPECT_TRUE(files.has("/velmora\\DATAY.QEL"));
    EXPECT_EQ(pages().size(), 1U);
}

TEST_F(BookReportTest, FieldsOfNulsAndAShortTailPrintAsEmpty) {
    PhonebookRecord bare;
    bare.assign(Field::Last, "Abel");
    yellow() = bytesOf(bare) + bytesOf(personRecord("Baker", "Bob", "cut")).substr(0, 40);
    print();
    const auto sheet = pages().at(0);
    EXPECT_THAT(sheet.front(), testing::StartsWith("Complete Report: 2 Total Entries"));
    EXPECT_THAT(sheet, testing::Contains("Abel, "));
    EXPECT_THAT(sheet, testing::Contains("Baker, Bob"));
    EXPECT_EQ(std::ranges::count(sheet, "Memo: "), 2);
}

TEST_F(BookReportTest, TellsHowItGoesAndEndsWithTheProgramsName) {
    yellow() = people(5);
    Texts told;
    desk.loop.onYield = [&] {
        if (told.empty() || told.back() != desk.status.text)
            told.push_back(desk.status.text);
    };
    print();
    EXPECT_THAT(told, ElementsAre("", "Please Wait While Printing...", "Sending Page 1 of 2",
                                  "Sending Page 2 of 2"));
    EXPECT_EQ(desk.status.text, "Velmora");
    EXPECT_EQ(desk.icon.log, (std::vector<bool>{true, false}));
}

TEST_F(BookReportTest, TheSheetsStandAndLieAsBeforeAfterwards) {
    yellow() = people(1);
    desk.printer.SetOrientation(PageOrientation::Landscape);
    print();
    EXPECT_EQ(desk.printer.takeJobs().at(0).orientation, PageOrientation::Portrait);
    EXPECT_EQ(desk.printer.Orientation(), PageOrientation::Landscape);
}

TEST_F(BookReportTest, ACancelledReportSendsNothingAndLeavesTheSheetsStanding) {
    yellow() = people(40);
    for (const int yield : {1, 5, 6, 8}) {
        desk.printer.SetOrientation(PageOrientation::Landscape);
        desk.cancelInYield(yield);
        print();
        EXPECT_THAT(desk.printer.takeJobs(), IsEmpty()) << yield;
        EXPECT_EQ(desk.printer.Orientation(), PageOrientation::Portrait);
        EXPECT_EQ(desk.status.text, "Velmora");
        EXPECT_FALSE(desk.icon.shown);
    }
}

TEST_F(BookReportTest, ClosingTheWindowEndsTheReportAndSendsNothing) {
    yellow() = people(40);
    desk.loop.onYield = [&] { desk.loop.isClosing = true; };
    print();
    EXPECT_THAT(desk.printer.takeJobs(), IsEmpty());
    EXPECT_EQ(files.openFiles(), 0);
}

// The scan is over when the count is known; the first entry is printed then.
TEST_F(BookReportTest, AnEntryThatChangesMeanwhilePrintsWhatItIsThen) {
    yellow() = people(9);
    desk.loop.onYield = [&, changed = false]() mutable {
        if (changed || desk.printing.state().ReportCount == 0)
            return;
        changed = true;
        yellow().replace(8 * kRecordSize, kRecordSize,
                         bytesOf(withClass(personRecord("last008", "first"), "changed")));
        yellow().replace(7 * kRecordSize, kRecordSize, test::tombstoneBytes());
        yellow().replace(6 * kRecordSize, kRecordSize, bytesOf(personRecord("Renamed", "First")));
        yellow() += bytesOf(withClass(personRecord("Last005", "First"), "added"));
    };
    print();
    Texts names;
    Texts classes;
    for (const auto& sheet : pages())
        for (const std::string& text : sheet) {
            if (text.starts_with("Last0"))
                names.push_back(text);
            if (text.starts_with("Class: ") && text.size() > 7)
                classes.push_back(text);
        }
    EXPECT_THAT(
        names, ElementsAre("Last000, First", "Last001, First", "Last002, First", "Last003, First",
                           "Last004, First", "Last005, First", "Last005, First", "Last008, First"));
    EXPECT_THAT(classes, ElementsAre("Class: added", "Class: changed"));
}

TEST_F(BookReportTest, TakesAsManyNamesAsItsListHoldsAndNotOneMore) {
    const std::string one = bytesOf(personRecord("Abel", "Al"));
    std::string& book = yellow();
    book.reserve((BookReport::kMostNames + 1) * kRecordSize);
    for (std::size_t i = 0; i < BookReport::kMostNames; ++i)
        book += one;
    int count = 0;
    desk.loop.onYield = [&] {
        count = desk.printing.state().ReportCount;
        if (count > 0)
            desk.jobs.cancel();
    };
    EXPECT_EQ(ReportFixture::print(ReportKind::Complete, ReportSize::Normal),
              BookReport::End::Done);
    EXPECT_EQ(count, 30001);
    book += one;
    EXPECT_EQ(ReportFixture::print(ReportKind::Complete, ReportSize::Normal),
              BookReport::End::TooManyNames);
    EXPECT_THAT(desk.printer.takeJobs(), IsEmpty());
    EXPECT_EQ(desk.status.text, "Velmora");
    EXPECT_FALSE(desk.icon.shown);
}

TEST_F(BookReportTest, APrinterThatRefusesIsToldOnTheStatusLine) {
    yellow() = people(1);
    desk.printer.refusal = "The printer is gone.";
    print();
    EXPECT_EQ(desk.status.text, "The printer is gone.");
    EXPECT_THAT(desk.messages.takeShown(), IsEmpty());
}

TEST_F(BookReportTest, APrinterThatVanishesWhileThePagesAreSentIsToldOnTheStatusLine) {
    yellow() = people(9);
    desk.printer.refusal = "The printer is gone.";
    desk.printer.vanishesBeforePage = 2;
    print();
    EXPECT_EQ(desk.status.text, "The printer is gone.");
    EXPECT_THAT(desk.printer.takeJobs(), IsEmpty());
    EXPECT_FALSE(desk.icon.shown);
    EXPECT_FALSE(desk.jobs.running());
}

TEST_F(BookReportTest, AMemoOfManyLinesMakesItsEntryHigherAndTurnsThePageEarlier) {
    yellow() = people(4);
    PhonebookRecord second = personRecord("Last001", "First");
    second.assign(Field::Memo, "one\r\ntwo\nthree\r\n" + std::string(20, '\n') + "last");
    yellow().replace(kRecordSize, kRecordSize, bytesOf(second));
    print();
    const PrintJob job = desk.printer.takeJobs().at(0);
    std::vector<std::string> page1;
    float memo = 0;
    float last = 0;
    for (const auto& mark : job.pages.at(0))
        if (const auto* text = std::get_if<PrintedText>(&mark)) {
            page1.push_back(text->text);
            if (text->text == "Memo: one")
                memo = text->y;
            if (text->text == "last")
                last = text->y;
        }
    EXPECT_THAT(page1, testing::IsSupersetOf({"Memo: one", "two", "three", "last"}));
    EXPECT_FLOAT_EQ(last - memo, 23 * 0.16F);
    // Without its lines four entries have room.
    EXPECT_THAT(page1, testing::Not(testing::Contains("Last002, First")));
    EXPECT_THAT(std::get<PrintedText>(job.pages.at(1).at(1)).text, "Last002, First");
}

TEST_F(BookReportTest, LineEndsInTheNumbersOfAListingKeepItsCellsApart) {
    PhonebookRecord record = personRecord("Abel", "Al");
    record.assign(Field::Phone, "555-0100\r\n555-0101");
    record.assign(Field::EMail, "a@example.com\nb@example.com");
    yellow() = bytesOf(record) + bytesOf(personRecord("Baker", "Bob"));
    list();
    const PrintJob job = desk.printer.takeJobs().at(0);
    std::map<std::string, float> tops;
    for (const auto& mark : job.pages.at(0))
        if (const auto* text = std::get_if<PrintedText>(&mark))
            tops.emplace(text->text, text->y);
    const float line = 9.75F * 0.016F;
    EXPECT_FLOAT_EQ(tops["555-0101"], 1 + line);
    EXPECT_FLOAT_EQ(tops["Pager: "], 1 + line);
    EXPECT_FLOAT_EQ(tops["b@example.com"], 1 + 2 * line);
    EXPECT_FLOAT_EQ(tops["Baker, Bob"], 1 + 3 * line + 0.15F);
}

TEST_F(BookReportTest, ABookThatCanNotBeReadIsToldOnTheStatusLine) {
    files.unreachable = true;
    print();
    EXPECT_THAT(desk.status.text, testing::HasSubstr("can not be opened"));
    EXPECT_THAT(desk.printer.takeJobs(), IsEmpty());
}

TEST_F(BookReportTest, TheJobIsNamedAfterReportAndBook) {
    white() = people(1);
    (void)ReportFixture::print(ReportKind::Complete, ReportSize::Mini, kWhitePages);
    const auto jobs = desk.printer.takeJobs();
    ASSERT_EQ(jobs.size(), 1U);
    EXPECT_EQ(jobs[0].title, "Velmora: Complete Report, White Pages");
    EXPECT_THAT(std::get<PrintedText>(jobs[0].pages[0][0]).text,
                testing::StartsWith("1 Total Entries    White Pages    03-12-2026     Page # 1"));
}

}  // namespace
}  // namespace velmora
