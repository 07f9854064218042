#include "core/PrinterSetup.h"

#include <gmock/gmock.h>

#include <functional>

#include "support/PrintDesk.h"

namespace velmora {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class FakeQuestion final : public PrinterQuestion {
  public:
    std::optional<PrinterChoice> choose(const std::vector<std::string>& printers,
                                        const PrinterChoice& now) override {
        shown = printers;
        before = now;
        whileOpen();
        return answer;
    }

    std::optional<PrinterChoice> answer;
    std::function<void()> whileOpen = [] {};
    std::vector<std::string> shown;
    PrinterChoice before;
};

class PrinterSetupTest : public testing::Test {
  protected:
    test::PrintDesk desk_;
    test::FakePrintSurface& printer_ = desk_.printer;
    test::FakeMessages& messages_ = desk_.messages;
    FakeQuestion question_;
    PrinterSetup setup_{desk_.printing, question_, messages_};
};

TEST_F(PrinterSetupTest, ShowsThePrintersAndWhatIsChosenNow) {
    printer_.SetOrientation(PageOrientation::Landscape);
    setup_.change();
    EXPECT_THAT(question_.shown, ElementsAre("Pocket", "Office", "Print to PDF"));
    EXPECT_EQ(question_.before, (PrinterChoice{"Pocket", PageOrientation::Landscape}));
}

TEST_F(PrinterSetupTest, WhatIsChosenHoldsForTheNextJobs) {
    question_.answer = PrinterChoice{"Office", PageOrientation::Landscape};
    setup_.change();
    for (int job = 0; job < 2; ++job) {
        printer_.Print("x");
        printer_.EndDoc();
        EXPECT_EQ(printer_.takeDump(),
                  "printer Office, landscape\npage 1\n0.000 0.000 Arial 10 |x|\n");
    }
}

TEST_F(PrinterSetupTest, ACancelChangesNothing) {
    printer_.SetCurrentPrinter("Office");
    setup_.change();
    EXPECT_EQ(printer_.CurrentPrinter(), "Office");
    EXPECT_EQ(printer_.Orientation(), PageOrientation::Portrait);
}

TEST_F(PrinterSetupTest, APrinterThatWentWhileTheDialogWasOpenIsTold) {
    question_.answer = PrinterChoice{"Office", PageOrientation::Landscape};
    question_.whileOpen = [this] { printer_.names = {"Pocket", kPrintToPdf}; };
    setup_.change();
    EXPECT_THAT(messages_.takeShown(),
                ElementsAre("warn|Velmora|The printer \"Office\" is not there any more. Please "
                            "choose another one."));
    EXPECT_EQ(printer_.CurrentPrinter(), "Pocket");
    EXPECT_EQ(printer_.Orientation(), PageOrientation::Portrait);
}

TEST_F(PrinterSetupTest, WhenThePrintSystemDoesNotAnswerTheStatusLineSaysSo) {
    printer_.silent = true;
    setup_.change();
    EXPECT_THAT(question_.shown, testing::Contains(kPrintToPdf));
    EXPECT_EQ(desk_.status.text, "The print system does not answer.");
}

TEST_F(PrinterSetupTest, TheQuestionCanBeCalledOffWhileThePrintSystemIsAsked) {
    desk_.cancelInYield(1);
    setup_.change();
    EXPECT_THAT(question_.shown, IsEmpty());
}

TEST_F(PrinterSetupTest, IsRefusedWhileAJobRuns) {
    desk_.jobs.run([this](LongJob&) { setup_.change(); });
    EXPECT_THAT(question_.shown, IsEmpty());
}

TEST_F(PrinterSetupTest, AnotherOneCanBeChosenOnceTheCurrentOneIsGone) {
    printer_.SetCurrentPrinter("Office");
    printer_.names = {"Pocket", kPrintToPdf};
    question_.answer = PrinterChoice{kPrintToPdf, PageOrientation::Portrait};
    setup_.change();
    EXPECT_EQ(question_.before.printer, "Office");
    EXPECT_EQ(printer_.CurrentPrinter(), kPrintToPdf);
    EXPECT_THAT(messages_.takeShown(), IsEmpty());
}

}  // namespace
}  // namespace velmora
