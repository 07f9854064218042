#include "core/PrintJobs.h"

#include <gmock/gmock.h>

#include "platform/Failure.h"
#include "support/PrintDesk.h"

namespace velmora {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

void printALine(PrintRun& run) {
    run.printer.Print("a line");
}

class PrintJobsTest : public testing::Test {
  protected:
    [[nodiscard]] std::vector<std::string> titles() {
        std::vector<std::string> all;
        for (const PrintJob& job : desk.printer.takeJobs())
            all.push_back(job.title);
        return all;
    }

    test::PrintDesk desk;
    PrintSurface& printer = desk.printer;
    PrintJobs& printing = desk.printing;
};

TEST_F(PrintJobsTest, AJobIsSentWhenItsFunctionReturns) {
    EXPECT_EQ(printing.run({.title = "To-Do List"}, printALine), PrintEnd::Printed);
    const auto jobs = desk.printer.takeJobs();
    ASSERT_EQ(jobs.size(), 1U);
    EXPECT_EQ(jobs[0].title, "Velmora: To-Do List");
    EXPECT_EQ(test::dumped(jobs[0]),
              "printer Pocket, portrait\npage 1\n0.000 0.000 Arial 10 |a line|\n");
}

TEST_F(PrintJobsTest, EachJobStartsInAKnownStateWhateverTheLastOneLeft) {
    printing.run({.fontName = "Times", .fontSize = 13}, [](PrintRun& run) {
        run.printer.SetForeColor(0x0000FF);
        run.printer.SetFontBold(true);
        run.printer.SetFontItalic(true);
        run.printer.SetCurrentX(3);
        run.printer.SetCurrentY(3);
    });
    (void)desk.printer.takeJobs();
    printing.run({}, printALine);
    EXPECT_EQ(desk.printer.takeDump(),
              "printer Pocket, portrait\npage 1\n0.000 0.000 Arial 10 |a line|\n");
}

TEST_F(PrintJobsTest, OrientationAndPrinterStayWhatTheUserChose) {
    printer.SetOrientation(PageOrientation::Landscape);
    printer.SetCurrentPrinter("Office");
    printing.run({}, printALine);
    EXPECT_EQ(desk.printer.takeDump().substr(0, 26), "printer Office, landscape\n");
    EXPECT_EQ(printer.Orientation(), PageOrientation::Landscape);
}

TEST_F(PrintJobsTest, AJobWithSheetsOfItsOwnPutsTheChosenOnesBack) {
    printer.SetOrientation(PageOrientation::Landscape);
    printing.run({.orientation = PageOrientation::Portrait}, printALine);
    EXPECT_EQ(desk.printer.takeJobs().at(0).orientation, PageOrientation::Portrait);
    EXPECT_EQ(printer.Orientation(), PageOrientation::Landscape);
    desk.printer.refusal = "on fire";
    printing.run({.orientation = PageOrientation::Portrait}, printALine);
    EXPECT_EQ(printer.Orientation(), PageOrientation::Landscape);
}

TEST_F(PrintJobsTest, ACancelledJobPutsTheSheetsBackUnlessItLeavesThem) {
    printer.SetOrientation(PageOrientation::Landscape);
    const PrintWork cancelled = [this](PrintRun& run) {
        desk.jobs.cancel();
        EXPECT_FALSE(run.goOn());
    };
    EXPECT_EQ(printing.run({.orientation = PageOrientation::Portrait}, cancelled),
              PrintEnd::Cancelled);
    EXPECT_EQ(printer.Orientation(), PageOrientation::Landscape);
    printing.run({.orientation = PageOrientation::Portrait, .cancelLeavesOrientation = true},
                 cancelled);
    EXPECT_EQ(printer.Orientation(), PageOrientation::Portrait);
}

TEST_F(PrintJobsTest, ACancelledJobSendsNothingEvenIfItPrintsOn) {
    EXPECT_EQ(printing.run({.lastText = "Velmora"},
                           [this](PrintRun& run) {
                               run.printer.Print("before");
                               desk.jobs.cancel();
                               EXPECT_TRUE(run.state.ReportCancel);
                               run.printer.Print("after");
                           }),
              PrintEnd::Cancelled);
    EXPECT_EQ(desk.printer.takeDump(), "");
    EXPECT_EQ(desk.status.text, "Velmora");
    EXPECT_FALSE(printing.state().ReportCancel);
    EXPECT_FALSE(desk.icon.shown);
    printing.run({}, printALine);
    EXPECT_EQ(desk.printer.takeJobs().size(), 1U);
}

TEST_F(PrintJobsTest, ASecondJobIsRefused) {
    PrintEnd second = PrintEnd::Printed;
    printing.run({}, [&](PrintRun& run) {
        run.printer.Print("first");
        second = printing.run({}, printALine);
    });
    EXPECT_EQ(second, PrintEnd::Refused);
    EXPECT_EQ(desk.printer.takeJobs().size(), 1U);
    EXPECT_EQ(desk.status.text, "Velmora is still busy with a job. Try again when it is done.");
}

TEST_F(PrintJobsTest, AFailureIsToldInABoxOrOnTheStatusLine) {
    desk.printer.refusal = "The printer is on fire. \xC3\xA4";
    EXPECT_EQ(printing.run({.lastText = "Velmora"}, printALine), PrintEnd::Failed);
    EXPECT_THAT(desk.messages.takeShown(),
                ElementsAre("error|Velmora|The printer is on fire. \xC3\xA4"));
    EXPECT_EQ(desk.status.text, "Velmora");
    EXPECT_EQ(printing.run({.lastText = "Velmora", .failureIsTold = FailureIsTold::OnTheStatusLine},
                           printALine),
              PrintEnd::Failed);
    EXPECT_THAT(desk.messages.takeShown(), IsEmpty());
    EXPECT_EQ(desk.status.text, "The printer is on fire. \xE4");
}

TEST_F(PrintJobsTest, WithoutAnAnswerOfThePrintSystemNoJobBegins) {
    desk.printer.silent = true;
    bool called = false;
    EXPECT_EQ(printing.run({}, [&](PrintRun&) { called = true; }), PrintEnd::Failed);
    EXPECT_FALSE(called);
    EXPECT_THAT(desk.messages.takeShown(),
                ElementsAre("error|Velmora|The print system does not answer."));
    EXPECT_FALSE(desk.icon.shown);
}

TEST_F(PrintJobsTest, WhoeverHasChosenAFileNeedsNoPrintSystem) {
    printer.SetCurrentPrinter(kPrintToPdf);
    desk.printer.silent = true;
    EXPECT_EQ(printing.run({}, printALine), PrintEnd::Printed);
}

TEST_F(PrintJobsTest, AJobCanBeCalledOffWhileThePrintSystemIsAsked) {
    desk.cancelInYield(1);
    bool called = false;
    EXPECT_EQ(printing.run({}, [&](PrintRun&) { called = true; }), PrintEnd::Cancelled);
    EXPECT_FALSE(called);
}

TEST_F(PrintJobsTest, ThePagesArePlayedWithEventsAndTheStatusLineSaysWhich) {
    std::vector<std::string> told;
    printing.run({}, [&](PrintRun& run) {
        for (int page = 0; page < 3; ++page) {
            run.printer.Print("x");
            run.printer.NewPage();
        }
        desk.loop.onYield = [&] { told.push_back(desk.status.text); };
    });
    EXPECT_THAT(told, testing::IsSupersetOf(
                          {"Sending Page 1 of 3", "Sending Page 2 of 3", "Sending Page 3 of 3"}));
    EXPECT_EQ(desk.status.text, "Velmora");
}

TEST_F(PrintJobsTest, AJobThatIsCalledOffOnItsLastPageSendsNothing) {
    printing.run({}, [&](PrintRun& run) {
        run.printer.Print("x");
        run.printer.NewPage();
        run.printer.Print("y");
        desk.loop.onYield = [&] {
            if (desk.status.text == "Sending Page 2 of 2")
                desk.jobs.cancel();
        };
    });
    EXPECT_EQ(desk.printer.takeDump(), "");
}

TEST_F(PrintJobsTest, AQueueThatIsFullIsTriedAgainUntilItTakesTheJob) {
    desk.printer.tries = 3;
    std::string told;
    desk.loop.onYield = [&] {
        if (desk.printer.tries > 0 && told.empty())
            told = desk.status.text;
    };
    EXPECT_EQ(printing.run({}, printALine), PrintEnd::Printed);
    EXPECT_EQ(desk.printer.takeJobs().size(), 1U);
    desk.printer.tries = 1000000;
    desk.loop.onYield = [&] {
        if (desk.printer.tries < 999990)
            desk.jobs.cancel();
    };
    EXPECT_EQ(printing.run({}, printALine), PrintEnd::Cancelled);
    EXPECT_EQ(desk.printer.takeDump(), "");
}

TEST_F(PrintJobsTest, TheFileStandsOnTheStatusLineBehindTheLastText) {
    desk.printer.file = "/home/jo/out.pdf";
    printer.SetCurrentPrinter(kPrintToPdf);
    EXPECT_EQ(printing.run({.title = "Letters", .lastText = "Velmora"},
                           [](PrintRun& run) {
                               run.printer.Print("one");
                               EXPECT_TRUE(run.endJob("1"));
                               run.printer.Print("two");
                           }),
              PrintEnd::Printed);
    EXPECT_EQ(desk.status.text, "Velmora[/home/jo/out.pdf]");
    EXPECT_EQ(desk.printer.runTitle, "Velmora: Letters");
}

TEST_F(PrintJobsTest, AFileThatCanNotBeWrittenIsAFailedJob) {
    desk.printer.noFile = true;
    printer.SetCurrentPrinter(kPrintToPdf);
    EXPECT_EQ(printing.run({}, printALine), PrintEnd::Failed);
    EXPECT_THAT(desk.messages.takeShown(), ElementsAre("error|Velmora|The disk is full."));
}

TEST_F(PrintJobsTest, AFailureOfTheJobItselfSendsNothing) {
    EXPECT_EQ(printing.run({},
                           [](PrintRun& run) {
                               run.printer.Print("half");
                               throw Failure("The book can not be read.");
                           }),
              PrintEnd::Failed);
    EXPECT_EQ(desk.printer.takeDump(), "");
    EXPECT_THAT(desk.messages.takeShown(), ElementsAre("error|Velmora|The book can not be read."));
}

TEST_F(PrintJobsTest, AFileThatIsNotNamedIsACancelledJobAndNobodyIsTold) {
    desk.printer.calledOff = true;
    EXPECT_EQ(printing.run({.lastText = "Velmora"}, printALine), PrintEnd::Cancelled);
    EXPECT_THAT(desk.messages.takeShown(), IsEmpty());
    EXPECT_EQ(desk.status.text, "Velmora");
}

TEST_F(PrintJobsTest, ARunOfManyJobsSendsEachUnderItsTitle) {
    printing.run({}, [](PrintRun& run) {
        for (const char* name : {"Letter to Smith, John (1 of 2)", "Letter to X\r\nY (2 of 2)"}) {
            run.printer.Print(name);
            EXPECT_TRUE(run.endJob(name));
        }
    });
    EXPECT_THAT(titles(), ElementsAre("Velmora: Letter to Smith, John (1 of 2)",
                                      "Velmora: Letter to X  Y (2 of 2)"));
}

TEST_F(PrintJobsTest, ATitleHasAtMostAHundredCharacters) {
    printing.run({.title = std::string(200, 'x')}, printALine);
    printing.run({}, printALine);
    EXPECT_THAT(titles(), ElementsAre("Velmora: " + std::string(91, 'x'), "Velmora"));
}

TEST_F(PrintJobsTest, ARunThatIsCalledOffBetweenTwoJobsSendsNoMore) {
    printing.run({}, [this](PrintRun& run) {
        run.printer.Print("one");
        EXPECT_TRUE(run.endJob("1"));
        run.printer.Print("two");
        desk.jobs.cancel();
        EXPECT_FALSE(run.endJob("2"));
    });
    EXPECT_THAT(titles(), ElementsAre("Velmora: 1"));
}

TEST_F(PrintJobsTest, TheSecondOfTwoJobsOfASeriesFollowsOneThatIsCalledOff) {
    std::vector<PrintEnd> ends;
    EXPECT_TRUE(printing.runSeries([&](PrintSeries& series) {
        ends.push_back(series.run({.title = "1"}, [this](PrintRun&) { desk.jobs.cancel(); }));
        series.waitFor(std::chrono::seconds(10));
        EXPECT_TRUE(printing.refuses());
        ends.push_back(series.run({.title = "2"}, [this](PrintRun& run) {
            EXPECT_TRUE(desk.icon.shown);
            EXPECT_TRUE(run.goOn());
            run.printer.Print("x");
        }));
    }));
    EXPECT_THAT(ends, ElementsAre(PrintEnd::Cancelled, PrintEnd::Printed));
    EXPECT_THAT(titles(), ElementsAre("Velmora: 2"));
    EXPECT_EQ(desk.loop.waited, std::chrono::seconds(10));
}

TEST_F(PrintJobsTest, AFileThatIsNotNamedEndsTheWholeSeries) {
    desk.printer.calledOff = true;
    int second = 0;
    printing.runSeries([&](PrintSeries& series) {
        (void)series.run({}, printALine);
        EXPECT_EQ(series.run({}, [&](PrintRun&) { ++second; }), PrintEnd::Cancelled);
    });
    EXPECT_EQ(second, 0);
}

TEST_F(PrintJobsTest, NothingIsPrintedOnceTheProgramIsClosing) {
    printing.runSeries([&](PrintSeries& series) {
        desk.loop.isClosing = true;
        EXPECT_EQ(series.run({}, printALine), PrintEnd::Cancelled);
    });
    EXPECT_EQ(desk.printer.takeDump(), "");
}

TEST_F(PrintJobsTest, WhatBelongsToOneJobBeginsAnewAndTheBookStays) {
    printing.state().ReportBook = 2;
    printing.run({}, [](PrintRun& run) {
        run.state.ReportNames = {"Smith, John"};
        run.state.ReportPage = 7;
    });
    EXPECT_EQ(printing.state().ReportBook, 2);
    EXPECT_EQ(printing.state().ReportPage, 1);
    EXPECT_THAT(printing.state().ReportNames, IsEmpty());
}

}  // namespace
}  // namespace velmora
