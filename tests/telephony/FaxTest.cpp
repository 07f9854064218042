#include "telephony/Fax.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "docpad/PadFakes.h"
#include "support/Golden.h"
#include "support/PrintDesk.h"

namespace velmora {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;
using ::testing::SizeIs;

class FaxTest : public ::testing::Test {
  protected:
    test::PrintDesk desk;
    test::FakePadText text;
    Fax fax{{desk.printing, text, desk.status, desk.messages}};
};

TEST_F(FaxTest, ListsTheQueuesAsTheSystemDoesAndNotTheFile) {
    desk.printer.names = {"Zebra", "Fax-Line", "Office", kPrintToPdf};
    EXPECT_TRUE(fax.begin());
    EXPECT_EQ(desk.status.text, "Please Wait.");
    EXPECT_THAT(fax.queues(), ElementsAre("Zebra", "Fax-Line", "Office"));
    desk.printer.names = {kPrintToPdf};
    EXPECT_THAT(fax.queues(), IsEmpty());
}

TEST_F(FaxTest, TheWholeTextIsOneBlockOnTheChosenQueueWhichStaysThePrinter) {
    text.setBytes("Dear Sir\r\n\r\nYours");
    fax.send(" Office ");
    const auto jobs = desk.printer.takeJobs();
    ASSERT_THAT(jobs, SizeIs(1));
    EXPECT_EQ(jobs[0].printer, "Office");
    ASSERT_THAT(jobs[0].pages, SizeIs(1));
    EXPECT_EQ(fax.currentQueue(), "Office");
    EXPECT_EQ(desk.status.text, "Please Wait.");
    test::expectGolden(test::dumped(jobs[0]), "fax.txt");
    fax.send("");
    EXPECT_EQ(desk.printer.takeJobs()[0].printer, "Office");
}

TEST_F(FaxTest, AnEmptyDocPadSendsAPageThatSaysSo) {
    fax.send("Pocket");
    const std::string dump = desk.printer.takeDump();
    EXPECT_NE(dump.find("Velmora: Fax"), std::string::npos) << dump;
}

TEST_F(FaxTest, WithoutASelectionTheTextGoesToTheCurrentPrinter) {
    desk.printer.SetCurrentPrinter("Office");
    fax.send("  ");
    EXPECT_EQ(desk.printer.takeJobs()[0].printer, "Office");
}

TEST_F(FaxTest, OfTwoQueuesOfOneNameTheLastIsTaken) {
    desk.printer.names = {"Office", "Office ", kPrintToPdf};
    fax.send("Office");
    EXPECT_EQ(fax.currentQueue(), "Office ");
}

TEST_F(FaxTest, AQueueThatIsGoneIsToldAndNothingIsSentElsewhere) {
    fax.send("Fax-Line");
    EXPECT_THAT(desk.messages.takeShown(),
                ElementsAre("warn|Velmora|The printer \"Fax-Line\" is not there any more. Please "
                            "choose another one."));
    EXPECT_EQ(desk.printer.jobsSent(), 0U);
    EXPECT_EQ(fax.currentQueue(), "Pocket");
}

TEST_F(FaxTest, ATextOfManyPagesIsSentWhole) {
    std::string pages;
    for (int i = 0; i < 200; ++i)
        pages += "line " + std::to_string(i) + "\r\n";
    text.setBytes(pages);
    fax.send("Office");
    const std::string dump = desk.printer.takeDump();
    for (int i = 0; i < 200; ++i)
        EXPECT_NE(dump.find("line " + std::to_string(i)), std::string::npos) << i;
}

TEST_F(FaxTest, ARefusalOfThePrinterIsTold) {
    desk.printer.refusal = "The queue is closed.";
    fax.send("Office");
    EXPECT_THAT(desk.messages.takeShown(), SizeIs(1));
    EXPECT_EQ(desk.printer.jobsSent(), 0U);
}

TEST_F(FaxTest, WhileAJobRunsNothingIsShownOrSent) {
    desk.jobs.run([&](LongJob&) {
        EXPECT_FALSE(fax.begin());
        EXPECT_NE(desk.status.text, "Please Wait.");
        fax.send("Office");
    });
    EXPECT_EQ(desk.printer.jobsSent(), 0U);
}

}  // namespace
}  // namespace velmora
