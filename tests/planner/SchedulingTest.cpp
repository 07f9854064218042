#include "planner/Scheduling.h"

#include <gmock/gmock.h>

#include <memory>

#include "platform/Failure.h"
#include "support/FakeEventLoop.h"
#include "support/FakeMessages.h"
#include "support/PhonebookFixture.h"
#include "support/PlannerFixture.h"

namespace velmora {
namespace {

using test::bytesOf;
using test::companyRecord;
using test::personRecord;
using test::rowOn;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

class FakeScheduleDesk final : public ScheduleDesk {
  public:
    void ShowPlannerPane() override { log.emplace_back("pane"); }
    void OpenSchedule() override { log.emplace_back("schedule"); }
    [[nodiscard]] std::string SelectedLine() const override { return line; }
    void SetCurrentEntry(const PhonebookRecord& record) override { current = record; }
    void EndProgram(const std::string& text) override { ended.push_back(text); }

    std::string line;
    std::vector<std::string> log;
    std::vector<std::string> ended;
    PhonebookRecord current;
};

// The planner and the books have settings of their own here; nothing in these tests needs them to
// be the same.
class SchedulingTest : public testing::Test, protected test::PlannerFixture {
  protected:
    SchedulingTest() {
        add(rowOn("2020-01-01", 1, "the first row"));
        SSMonth1.SetDate("03/09/2026");
        book() = bytesOf(tombstone()) +
                 bytesOf(withPhone(personRecord("Doe", "JANE"), "555-1234")) +
                 bytesOf(withPhone(companyRecord("Smith & Sons & Co"), "555-9")) +
                 bytesOf(companyRecord("Acme"));
        scheduling = std::make_unique<Scheduling>(
            SchedulingParts{books.state, entries, store, planner, SSDay1, SSMonth1, scheduleDesk,
                            texts, messages, loop, clock, formats, status});
    }

    static PhonebookRecord tombstone() {
        PhonebookRecord record;
        record.assign(Field::Last, "DELETED");
        return record;
    }

    static PhonebookRecord withPhone(PhonebookRecord record, const std::string& phone) {
        record.assign(Field::Phone, phone);
        return record;
    }

    std::string& book() { return books.yellow(); }

    void apply(const std::string& begin = "14:05", const std::string& end = "15:05") {
        texts = {begin, end};
        scheduling->OnApplied();
        loop.runPosted();
    }

    void run(ScheduleCommand command, const std::string& line) {
        scheduleDesk.line = line;
        scheduling->Start(command);
        apply();
    }

    std::string lastText() const { return rows().back()[4]; }

    test::PhonebookFixture books;
    FakeScheduleDesk scheduleDesk;
    ScheduleTexts texts;
    test::FakeMessages messages;
    EntryWriter entries{books.store, messages};
    test::FakeEventLoop loop;
    std::unique_ptr<Scheduling> scheduling;
};

TEST(ScheduleCommands, AreNineWithTheirCaptionsAndWords) {
    std::vector<std::string> table;
    for (const auto& info : kScheduleCommands) {
        EXPECT_EQ(&infoOf(info.command), &info);
        table.push_back(std::string(info.menu) + "|" + info.caption + "|" +
                        (info.beginning ? info.beginning : "?"));
    }
    EXPECT_THAT(
        table,
        ElementsAre("schedmnu|&Schedule Meeting|Schedule meeting with ",
                    "meetmnu|&Meeting|Meeting with ", "Callmnu|&Call|Call ",
                    "lunchmnu|&Lunch With|Lunch with ", "dinmnu|&Dinner With|Dinner with ",
                    "aptmnu|&Appointment With|Appointment with ", "vismnu|&Visit|Visit with ",
                    "gomnu|&Go With|Go with ", "othmnu|&Other (you specify)|?"));
}

TEST_F(SchedulingTest, ShowsThePlannerAndOpensTheFormAndWaits) {
    scheduling->Start(ScheduleCommand::Meeting);
    EXPECT_THAT(scheduleDesk.log, ElementsAre("pane", "schedule"));
    EXPECT_EQ(scheduling->waiting(), 1U);
    EXPECT_EQ(loop.yields, 0);
    EXPECT_EQ(rows().size(), 1U);
}

TEST_F(SchedulingTest, AddsTheAppointmentAndShowsIt) {
    run(ScheduleCommand::Meeting, "Doe, Jane");
    ASSERT_EQ(rows().size(), 2U);
    EXPECT_THAT(rows()[1], ElementsAre("2026-03-12 10:42:00", "2026-03-09", "02:05 PM", "03:05 PM",
                                       "Meeting with JANE Doe 555-1234", "Event"));
    EXPECT_THAT(SSDay1.texts(), ElementsAre("Meeting with JANE Doe 555-1234"));
    EXPECT_EQ(SSMonth1.styleOf("03/09/2026"), "Event");
    EXPECT_EQ(SSDay1.refreshes, 1);
    EXPECT_EQ(scheduling->waiting(), 0U);
    EXPECT_EQ(scheduleDesk.current.text(Field::Phone), "555-1234");
    EXPECT_THAT(scheduleDesk.ended, IsEmpty());
}

TEST_F(SchedulingTest, WritesTheDateReferenceAndNoOtherByte) {
    const std::string before = book();
    run(ScheduleCommand::Call, "Doe, Jane");
    std::string expected = before;
    expected.replace(1595 + 1245, 20, "03/09/26, 02:05 PM  ");
    EXPECT_EQ(book(), expected);
    EXPECT_EQ(lastText(), "Call JANE Doe 555-1234");
    EXPECT_THAT(books.files.takeLog(), ElementsAre("lock", "write 1595", "unlock"));
    EXPECT_EQ(books.files.openFiles(), 0);
}

TEST_F(SchedulingTest, LeavesFieldsOfNulsAlone) {
    PhonebookRecord record;
    record.assign(Field::Last, "Sparse");
    book() = bytesOf(record);
    run(ScheduleCommand::Call, "Sparse, ");
    EXPECT_EQ(book().substr(1265, 330), std::string(330, '\0'));
    EXPECT_EQ(book().substr(0, 15), std::string(15, '\0'));
    EXPECT_EQ(lastText(), "Call  Sparse ");
}

TEST_F(SchedulingTest, CutsADateReferenceThatIsTooLong) {
    SSYear1.SetDate("12/24/2031");  // the selected date is then in its long form
    run(ScheduleCommand::Call, "Doe, Jane");
    EXPECT_EQ(book().substr(1595 + 1245, 20), "12/24/2031, 02:05 PM");
    EXPECT_EQ(rows().back()[1], "2026-03-09");  // the row goes to the month's date
}

TEST_F(SchedulingTest, NamesACompanyWithItsFirstAmpersandAsAPlus) {
    run(ScheduleCommand::Lunch, "Smith & Sons & Co");
    EXPECT_EQ(lastText(), "Lunch with Smith + Sons & Co 555-9");
}

TEST_F(SchedulingTest, EndsWithABlankWhereThereIsNoPhone) {
    run(ScheduleCommand::Visit, "Acme");
    EXPECT_EQ(lastText(), "Visit with Acme ");
}

TEST_F(SchedulingTest, TakesAPersonOfTheCompanyForNoCompany) {
    auto person = personRecord("Doe", "John");
    person.assign(Field::Company, "Acme");
    book() = bytesOf(person) + bytesOf(companyRecord("ACME"));
    run(ScheduleCommand::Go, "Acme");
    EXPECT_EQ(lastText(), "Go with ACME ");
    EXPECT_EQ(book().substr(1245, 20), std::string(20, ' '));
}

TEST_F(SchedulingTest, TakesTheFirstNameFromTheSecondCharacterBehindTheComma) {
    book() = bytesOf(personRecord("Smith", "ohn"));
    run(ScheduleCommand::Call, "Smith,John");
    EXPECT_EQ(lastText(), "Call ohn Smith ");
}

TEST_F(SchedulingTest, TakesTheFirstThatFits) {
    book() = bytesOf(withPhone(personRecord("Doe", "Jane"), "1")) +
             bytesOf(withPhone(personRecord("DOE", "JANE"), "2"));
    run(ScheduleCommand::Call, "doe, jane");
    EXPECT_EQ(lastText(), "Call Jane Doe 1");
}

TEST_F(SchedulingTest, WritesBehindTheLastRecordWhenNoneFits) {
    for (const char* line : {"", "Nobody", "Nobody, At all", ", Jane"}) {
        const std::string before = book();
        run(ScheduleCommand::Appointment, line);
        ASSERT_EQ(book().size(), before.size() + 1595) << line;
        EXPECT_EQ(book().substr(0, before.size()), before);
        EXPECT_EQ(book().substr(before.size()),
                  std::string(1245, '\0') + "03/09/26, 02:05 PM  " + std::string(330, '\0'));
        EXPECT_EQ(lastText(), "Appointment with  ");
    }
}

TEST_F(SchedulingTest, FitsNoBlankRecordToNothingSelected) {
    book() = std::string(1595, '\0') + std::string(1595, ' ');
    run(ScheduleCommand::Appointment, "");
    EXPECT_EQ(book().size(), 3U * 1595);
}

TEST_F(SchedulingTest, MakesTheBookThatIsMissing) {
    book().clear();
    run(ScheduleCommand::Call, "Doe, Jane");
    EXPECT_EQ(book().size(), 1595U);
    EXPECT_EQ(lastText(), "Call  ");
}

TEST_F(SchedulingTest, ReadsTheBookOfTheSettingsAtTheMomentOfWaking) {
    books.settings.Save("White", "/shared");
    books.files["/shared\\DATAW.QEL"] = bytesOf(withPhone(personRecord("Doe", "Jane"), "77"));
    scheduleDesk.line = "Acme";
    scheduling->Start(ScheduleCommand::Call);
    books.state.BookFile = kWhitePagesFile;
    scheduleDesk.line = "Doe, Jane";
    SSMonth1.SetDate("03/10/2026");
    apply();
    EXPECT_EQ(lastText(), "Call Jane Doe 77");
    EXPECT_EQ(rows().back()[1], "2026-03-10");
}

TEST_F(SchedulingTest, AsksWhatElseToSchedule) {
    messages.willAnswer(std::optional<std::string>("  Golf "));
    run(ScheduleCommand::Other, "Doe, Jane");
    EXPECT_THAT(
        messages.takeShown(),
        ElementsAre("input|Schedule Other...|What would you like to schedule?|Other Event"));
    EXPECT_EQ(lastText(), "Golf with JANE Doe 555-1234");
    EXPECT_THAT(scheduleDesk.log, ElementsAre("pane", "schedule"));
}

TEST_F(SchedulingTest, GoesOnWithoutAnAnswer) {
    messages.willAnswer(std::optional<std::string>());
    run(ScheduleCommand::Other, "Doe, Jane");
    EXPECT_EQ(lastText(), " with JANE Doe 555-1234");
    messages.willAnswer(std::optional<std::string>(""));
    run(ScheduleCommand::Other, "Doe, Jane");
    EXPECT_EQ(lastText(), " with JANE Doe 555-1234");
}

TEST_F(SchedulingTest, CreatesNothingForACancelledForm) {
    scheduling->Start(ScheduleCommand::Meeting);
    loop.runPosted();
    EXPECT_EQ(rows().size(), 1U);
    EXPECT_EQ(scheduling->waiting(), 1U);
}

TEST_F(SchedulingTest, GivesTheTimesToTheLatestCommandThatWaits) {
    scheduling->Start(ScheduleCommand::Meeting);  // its form is cancelled
    run(ScheduleCommand::Lunch, "Doe, Jane");
    EXPECT_EQ(rows().size(), 2U);
    EXPECT_EQ(lastText(), "Lunch with JANE Doe 555-1234");
    EXPECT_EQ(scheduling->waiting(), 1U);
    EXPECT_EQ(texts.ScheduleBegin, "");
    apply("16:00", "17:00");
    EXPECT_EQ(lastText(), "Meeting with JANE Doe 555-1234");
    EXPECT_EQ(rows().back()[2], "04:00 PM");
    EXPECT_EQ(scheduling->waiting(), 0U);
}

TEST_F(SchedulingTest, WakesTheNextWaitingCommandAfterADinner) {
    scheduling->Start(ScheduleCommand::Call);     // cancelled
    scheduling->Start(ScheduleCommand::Meeting);  // cancelled
    run(ScheduleCommand::Dinner, "Doe, Jane");
    ASSERT_EQ(rows().size(), 3U);
    EXPECT_EQ(rows()[1][4], "Dinner with JANE Doe 555-1234");
    EXPECT_EQ(rows()[2][4], "Meeting with JANE Doe 555-1234");
    EXPECT_EQ(rows()[2][2], "02:05 PM");
    EXPECT_EQ(rows()[2][3], "03:05 PM");
    EXPECT_EQ(scheduling->waiting(), 1U);
    EXPECT_EQ(texts.ScheduleBegin, "");
    EXPECT_EQ(texts.ScheduleEnd, "");
}

TEST_F(SchedulingTest, LeavesTheTextsAfterADinnerAlone) {
    run(ScheduleCommand::Dinner, "Doe, Jane");
    EXPECT_EQ(texts.ScheduleBegin, "02:05 PM");
    EXPECT_EQ(texts.ScheduleEnd, "03:05 PM");
    EXPECT_EQ(rows().size(), 2U);
}

TEST_F(SchedulingTest, WakesForOneTextAndNotForBlanks) {
    scheduling->Start(ScheduleCommand::Call);
    apply("  ", "");
    EXPECT_EQ(rows().size(), 1U);
    apply("", "09:00");
    EXPECT_EQ(rows().size(), 2U);
    EXPECT_EQ(rows()[1][2], "");
    EXPECT_EQ(rows()[1][3], "09:00 AM");
}

TEST_F(SchedulingTest, CreatesNothingOnceTheProgramIsClosing) {
    scheduling->Start(ScheduleCommand::Call);
    texts = {"09:00", "10:00"};
    scheduling->OnApplied();
    loop.isClosing = true;
    loop.runPosted();
    EXPECT_EQ(rows().size(), 1U);
    EXPECT_EQ(scheduling->waiting(), 0U);
}

TEST_F(SchedulingTest, CreatesNothingOnceItIsGone) {
    scheduling->Start(ScheduleCommand::Call);
    texts = {"09:00", "10:00"};
    scheduling->OnApplied();
    scheduling.reset();
    loop.runPosted();
    EXPECT_EQ(rows().size(), 1U);
}

TEST_F(SchedulingTest, FailsOnAnEmptyTableWithTheDateReferenceWritten) {
    sqlite::Database(NativePath(path), sqlite::Access::ReadWrite).execute("DELETE FROM appoint");
    scheduling->Start(ScheduleCommand::Meeting);
    run(ScheduleCommand::Call, "Doe, Jane");
    EXPECT_THAT(rows(), IsEmpty());
    EXPECT_EQ(book().substr(1595 + 1245, 20), "03/09/26, 02:05 PM  ");
    EXPECT_THAT(scheduleDesk.ended,
                ElementsAre("There is no current appointment. Type the first appointment of a new "
                            "planner into the day view."));
    EXPECT_EQ(scheduling->waiting(), 0U);
    EXPECT_EQ(store.recordSource(), "Appoint");
    EXPECT_TRUE(store.Eof());
}

TEST_F(SchedulingTest, TakesATableWithADatelessRowForNotEmpty) {
    sqlite::Database(NativePath(path), sqlite::Access::ReadWrite)
        .execute("UPDATE appoint SET \"Date\" = NULL");
    run(ScheduleCommand::Call, "Doe, Jane");
    EXPECT_EQ(rows().size(), 2U);
    EXPECT_THAT(scheduleDesk.ended, IsEmpty());
}

TEST_F(SchedulingTest, EndsTheProgramWhenTheBookCanNotBeReached) {
    books.files.unreachable = true;
    run(ScheduleCommand::Call, "Doe, Jane");
    ASSERT_EQ(scheduleDesk.ended.size(), 1U);
    EXPECT_EQ(rows().size(), 1U);
}

TEST_F(SchedulingTest, EndsTheProgramWhenTheDiskIsFull) {
    const std::string before = book();
    books.files.writesUntilFailure = 0;
    run(ScheduleCommand::Call, "Doe, Jane");
    ASSERT_EQ(scheduleDesk.ended.size(), 1U);
    EXPECT_EQ(book(), before);
    EXPECT_EQ(rows().size(), 1U);
}

TEST_F(SchedulingTest, WaitsForAPlannerThatAnotherProgramLocksAndBooksOnce) {
    {
        sqlite::Database other(NativePath(path), sqlite::Access::ReadWrite);
        other.execute("BEGIN EXCLUSIVE");
        run(ScheduleCommand::Call, "nobody of that name");
        scheduling->TryAgain();
        EXPECT_THAT(scheduleDesk.ended, IsEmpty());
        EXPECT_EQ(scheduling->waiting(), 1U);
        EXPECT_THAT(status.text, HasSubstr("another program"));
        EXPECT_EQ(book().size(), 4U * 1595);  // nothing is written before the planner can be
    }
    scheduling->TryAgain();
    EXPECT_EQ(lastText(), "Call  ");
    EXPECT_EQ(rows().size(), 2U);
    EXPECT_EQ(book().size(), 5U * 1595);
    EXPECT_EQ(scheduling->waiting(), 0U);
    scheduling->TryAgain();
    EXPECT_EQ(rows().size(), 2U);
}

TEST_F(SchedulingTest, BooksTheEntryOnceWhenOnlyWritingIsLocked) {
    {
        sqlite::Database other(NativePath(path), sqlite::Access::ReadWrite);
        other.execute("BEGIN IMMEDIATE");
        run(ScheduleCommand::Call, "nobody of that name");
        scheduling->TryAgain();
        EXPECT_EQ(book().size(), 5U * 1595);
    }
    scheduling->TryAgain();
    EXPECT_EQ(rows().size(), 2U);
    EXPECT_EQ(book().size(), 5U * 1595);
}

TEST_F(SchedulingTest, EndsTheProgramWhenThePlannerStaysLocked) {
    sqlite::Database other(NativePath(path), sqlite::Access::ReadWrite);
    other.execute("BEGIN EXCLUSIVE");
    run(ScheduleCommand::Call, "Doe, Jane");
    for (int i = 0; i < 9; ++i)
        scheduling->TryAgain();
    EXPECT_THAT(scheduleDesk.ended, IsEmpty());
    scheduling->TryAgain();
    EXPECT_EQ(scheduleDesk.ended.size(), 1U);
    EXPECT_EQ(scheduling->waiting(), 0U);
}

TEST_F(SchedulingTest, EndsTheProgramWhenThePlannerIsMissing) {
    store.OpenDatabase(folder.file("none.mdb"));
    run(ScheduleCommand::Call, "Doe, Jane");
    EXPECT_THAT(scheduleDesk.ended, ElementsAre(HasSubstr("none.mdb")));
}

}  // namespace
}  // namespace velmora
