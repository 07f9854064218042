#include "planner/DayPrint.h"

#include <gmock/gmock.h>

#include <algorithm>

#include "support/Golden.h"
#include "support/PrintDesk.h"

namespace velmora {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

class DayPrintTest : public testing::Test {
  protected:
    void print() {
        PrintEventsOfDay(desk_.printing,
                         {.tasks = tasks_,
                          .fontName = "Inter",
                          .fontSize = 9.5F,
                          .colour = 0x800000,
                          .longDate = "Friday, March 09, 2001"},
                         CodePage::western());
    }

    // The texts of the only job, one a line.
    std::string texts() {
        std::string all;
        for (const PrintJob& job : printer_.takeJobs())
            for (const PrintPage& page : job.pages)
                for (const auto& mark : page)
                    all += std::get<PrintedText>(mark).text + "\n";
        return all;
    }

    test::PrintDesk desk_;
    test::FakePrintSurface& printer_ = desk_.printer;
    test::FakeMessages& messages_ = desk_.messages;
    DayTasks tasks_;
};

TEST_F(DayPrintTest, PrintsTheDayInTheFontOfTheDayView) {
    tasks_.Add("02:30 PM", "03:00 PM", "Dentist");
    tasks_.Add("09:00 AM", "10:00 AM", "Lunch with Fran\xE7oise\r\nbring the papers");
    tasks_.Add("09:00 AM", "09:30 AM", "  two blanks around  ");
    tasks_.Add("11:00 AM", "11:30 AM", "");
    print();
    test::expectGolden(printer_.takeDump(), "events-of-the-day.txt");
    EXPECT_THAT(messages_.takeShown(), IsEmpty());
}

TEST_F(DayPrintTest, ADayWithoutAppointmentsHasItsHead) {
    print();
    EXPECT_EQ(printer_.takeDump(),
              "printer Pocket, portrait\n"
              "page 1\n"
              "0.000 0.000 Inter 9.5 bold #000080 |Velmora: Events of the Day|\n"
              "0.000 0.304 Inter 14.5 bold #000080 |Friday, March 09, 2001|\n");
}

TEST_F(DayPrintTest, TimesAreSortedAsTextsWhateverTheHalfOfTheDay) {
    tasks_.Add("09:00 AM", "10:00 AM", "morning");
    tasks_.Add("01:00 PM", "02:00 PM", "afternoon");
    tasks_.Add("09:00 AM", "09:30 AM", "shorter");
    print();
    EXPECT_THAT(texts(), HasSubstr("01:00 PM - 02:00 PM\nafternoon\n"
                                   "09:00 AM - 09:30 AM\nshorter\n"
                                   "09:00 AM - 10:00 AM\nmorning\n"));
}

TEST_F(DayPrintTest, EqualTimesAreSortedByTheirTextIgnoringCase) {
    for (const char* text : {"beta", "Alpha", "GAMMA", "alpha 2"})
        tasks_.Add("09:00 AM", "10:00 AM", text);
    print();
    const std::string times = "09:00 AM - 10:00 AM\n";
    EXPECT_THAT(texts(), HasSubstr(times + "Alpha\n" + times + "alpha 2\n" + times + "beta\n" +
                                   times + "GAMMA\n"));
}

TEST_F(DayPrintTest, AFullDayGoesOnOnTheNextPage) {
    for (int i = 0; i < 40; ++i)
        tasks_.Add("09:00 AM", "10:00 AM", "appointment");
    print();
    const auto jobs = printer_.takeJobs();
    ASSERT_EQ(jobs.size(), 1U);
    EXPECT_EQ(jobs[0].pages.size(), 2U);
}

TEST_F(DayPrintTest, TakesAsManyAppointmentsAsItsTableHas) {
    for (int i = 0; i < 32010; ++i)
        tasks_.Add("09:00 AM", "10:00 AM", "x");
    print();
    const std::string all = texts();
    EXPECT_EQ(std::count(all.begin(), all.end(), 'x'), 32001);
}

TEST_F(DayPrintTest, TheNextJobIsNotBold) {
    print();
    (void)printer_.takeJobs();
    printer_.Print("next");
    printer_.EndDoc();
    EXPECT_THAT(printer_.takeDump(), HasSubstr("Inter 9.5 #000080 |next|"));
}

TEST_F(DayPrintTest, AnAppointmentThatGoesMeanwhileIsStillPrinted) {
    tasks_.Add("09:00 AM", "10:00 AM", "first");
    tasks_.Add("11:00 AM", "12:00 PM", "second");
    desk_.loop.onYield = [this] { tasks_.RemoveAll(); };
    print();
    EXPECT_THAT(texts(), HasSubstr("second"));
}

TEST_F(DayPrintTest, AClickOnTheCancelIconSendsNothing) {
    tasks_.Add("09:00 AM", "10:00 AM", "first");
    desk_.cancelInYield(1);
    print();
    EXPECT_EQ(printer_.takeDump(), "");
}

TEST_F(DayPrintTest, APrinterThatFailsIsToldAndNothingIsThrown) {
    printer_.refusal = "The printer is on fire.";
    EXPECT_NO_THROW(print());
    EXPECT_THAT(messages_.takeShown(), ElementsAre("error|Velmora|The printer is on fire."));
}

}  // namespace
}  // namespace velmora
