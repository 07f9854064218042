#include "platform/PrintRecorder.h"

#include <gmock/gmock.h>

#include "support/FakePrintSurface.h"

namespace velmora {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class PrintRecorderTest : public testing::Test {
  protected:
    // The job's dump without its first line.
    std::string marks() {
        std::string dump = printer_.takeDump();
        return dump.substr(dump.find('\n') + 1);
    }
    std::string printed() {
        printer_.EndDoc();
        return marks();
    }

    test::FakePrintSurface printer_;  // 10 points: a line is 0.16 high, a character 0.08 wide
};

TEST_F(PrintRecorderTest, PrintsLinesOneBelowTheOther) {
    printer_.Print("one");
    printer_.Print("two");
    EXPECT_EQ(printed(),
              "page 1\n"
              "0.000 0.000 Arial 10 |one|\n"
              "0.000 0.160 Arial 10 |two|\n");
}

TEST_F(PrintRecorderTest, APartLeavesThePositionBehindItsLastCharacter) {
    printer_.SetCurrentX(1);
    printer_.PrintPart("abc");
    EXPECT_FLOAT_EQ(printer_.CurrentX(), 1.24F);
    EXPECT_FLOAT_EQ(printer_.CurrentY(), 0);
    printer_.PrintPart("de");
    printer_.Print("");
    EXPECT_FLOAT_EQ(printer_.CurrentX(), 0);
    EXPECT_FLOAT_EQ(printer_.CurrentY(), 0.16F);
    EXPECT_EQ(printed(), "page 1\n1.000 0.000 Arial 10 |abc|\n1.240 0.000 Arial 10 |de|\n");
}

TEST_F(PrintRecorderTest, LineEndsOfAnyKindGoBackToTheLeftEdge) {
    printer_.SetCurrentX(2);
    printer_.Print("a\r\nb\rc\nd\r\n\r\ne");
    EXPECT_FLOAT_EQ(printer_.CurrentY(), 6 * 0.16F);
    EXPECT_EQ(printed(),
              "page 1\n"
              "2.000 0.000 Arial 10 |a|\n"
              "0.000 0.160 Arial 10 |b|\n"
              "0.000 0.320 Arial 10 |c|\n"
              "0.000 0.480 Arial 10 |d|\n"
              "0.000 0.800 Arial 10 |e|\n");
}

TEST_F(PrintRecorderTest, ATextThatEndsInALineEndTakesOneLineMore) {
    EXPECT_FLOAT_EQ(printer_.TextHeight("x\r\n"), 0.32F);
    printer_.Print("x\r\n");
    EXPECT_FLOAT_EQ(printer_.CurrentY(), 0.32F);
    printer_.KillDoc();
    printer_.PrintPart("x\r\n");
    EXPECT_FLOAT_EQ(printer_.CurrentX(), 0);
    EXPECT_FLOAT_EQ(printer_.CurrentY(), 0.16F);
}

TEST_F(PrintRecorderTest, TheEmptyTextIsOneLineHighAndNotWide) {
    EXPECT_FLOAT_EQ(printer_.TextHeight(""), 0.16F);
    EXPECT_FLOAT_EQ(printer_.TextWidth(""), 0);
}

TEST_F(PrintRecorderTest, TheWidestLineIsTheWidthOfAText) {
    EXPECT_FLOAT_EQ(printer_.TextWidth("abc\r\nabcdef\r\na"), 0.48F);
    printer_.SetFontBold(true);
    EXPECT_FLOAT_EQ(printer_.TextWidth("abcdef"), 0.54F);
}

TEST_F(PrintRecorderTest, MeasuringOpensNoJob) {
    EXPECT_FLOAT_EQ(printer_.TextHeight("a\r\nb"), 0.32F);
    EXPECT_FLOAT_EQ(printer_.TextWidth("ab"), 0.16F);
    printer_.EndDoc();
    EXPECT_THAT(printer_.takeJobs(), IsEmpty());
}

TEST_F(PrintRecorderTest, FractionsOfPointsCount) {
    printer_.SetFontSize(7.75F);
    EXPECT_FLOAT_EQ(printer_.FontSize(), 7.75F);
    EXPECT_FLOAT_EQ(printer_.TextHeight("x"), 0.124F);
    printer_.Print("x");
    EXPECT_EQ(printed(), "page 1\n0.000 0.000 Arial 7.75 |x|\n");
}

TEST_F(PrintRecorderTest, ThePositionIsTheSumThatACallerWouldMake) {
    printer_.SetFontSize(7.75F);
    printer_.SetCurrentY(0.3F);
    for (const char* text : {"a", "a\r\nb", "", "a\r\nb\r\nc\r\n", "z"}) {
        const auto sum = static_cast<float>(static_cast<double>(printer_.CurrentY()) +
                                            static_cast<double>(printer_.TextHeight(text)));
        printer_.Print(text);
        EXPECT_EQ(printer_.CurrentY(), sum) << text;
    }
}

TEST_F(PrintRecorderTest, ALineThatWouldPassTheBottomBeginsANewPage) {
    printer_.SetCurrentX(3);
    printer_.SetCurrentY(10.4F);
    EXPECT_EQ(printer_.Page(), 1);
    printer_.Print("over");
    EXPECT_EQ(printer_.Page(), 2);
    EXPECT_FLOAT_EQ(printer_.CurrentY(), 0.16F);
    EXPECT_EQ(printed(), "page 1\npage 2\n3.000 0.000 Arial 10 |over|\n");
}

TEST_F(PrintRecorderTest, ALineThatJustFitsStaysOnItsPage) {
    printer_.SetCurrentY(10.34F);
    printer_.Print("fits");
    EXPECT_EQ(printer_.Page(), 1);
    EXPECT_EQ(printed(), "page 1\n0.000 10.340 Arial 10 |fits|\n");
}

TEST_F(PrintRecorderTest, AFullPageHasAsManyLinesAsItIsHigh) {
    printer_.SetFontSize(13.125F);  // 0.21: 50 lines to a page
    for (int line = 1; line <= 101; ++line) {
        printer_.Print("line");
        EXPECT_EQ(printer_.Page(), (line - 1) / 50 + 1) << line;
    }
}

TEST_F(PrintRecorderTest, ALongTextGoesOnFromPageToPage) {
    std::string text = "0";
    for (int line = 1; line < 130; ++line)
        text += "\r\n" + std::to_string(line);
    printer_.SetFontSize(13.125F);
    printer_.Print(text);
    EXPECT_EQ(printer_.Page(), 3);
    EXPECT_FLOAT_EQ(printer_.CurrentY(), 30 * 0.21F);
    printer_.EndDoc();
    const auto jobs = printer_.takeJobs();
    ASSERT_EQ(jobs.size(), 1U);
    ASSERT_EQ(jobs[0].pages.size(), 3U);
    EXPECT_EQ(jobs[0].pages[0].size(), 50U);
    EXPECT_EQ(std::get<PrintedText>(jobs[0].pages[2].front()).text, "100");
    EXPECT_EQ(std::get<PrintedText>(jobs[0].pages[2].front()).y, 0);
}

TEST_F(PrintRecorderTest, ALineHigherThanAPageIsPrintedAtItsTop) {
    printer_.SetFontSize(1000);
    printer_.Print("A");
    printer_.Print("B");
    printer_.EndDoc();
    const auto jobs = printer_.takeJobs();
    ASSERT_EQ(jobs.size(), 1U);
    EXPECT_EQ(jobs[0].pages.size(), 2U);
}

TEST_F(PrintRecorderTest, LandscapePagesEndEarlier) {
    printer_.SetOrientation(PageOrientation::Landscape);
    printer_.SetCurrentY(7.9F);
    printer_.Print("over");
    EXPECT_EQ(printer_.Page(), 2);
    printer_.EndDoc();
    EXPECT_EQ(printer_.takeDump(),
              "printer Pocket, landscape\npage 1\npage 2\n0.000 0.000 Arial 10 |over|\n");
}

TEST_F(PrintRecorderTest, NothingIsWrappedAtTheRightEdge) {
    printer_.Print(std::string(300, 'x'));
    EXPECT_FLOAT_EQ(printer_.CurrentY(), 0.16F);
}

TEST_F(PrintRecorderTest, ANewPageBeginsAtItsTopLeft) {
    printer_.PrintPart("one");
    printer_.NewPage();
    EXPECT_EQ(printer_.CurrentX(), 0);
    EXPECT_EQ(printer_.CurrentY(), 0);
    EXPECT_EQ(printer_.Page(), 2);
    printer_.Print("two");
    EXPECT_EQ(printed(),
              "page 1\n0.000 0.000 Arial 10 |one|\npage 2\n0.000 0.000 Arial 10 |two|\n");
    EXPECT_EQ(printer_.Page(), 1);
}

TEST_F(PrintRecorderTest, EmptyPagesAtTheEndAreLeftOut) {
    printer_.Print("one");
    printer_.NewPage();
    printer_.NewPage();
    printer_.Print("");
    EXPECT_EQ(printed(), "page 1\n0.000 0.000 Arial 10 |one|\n");
}

TEST_F(PrintRecorderTest, AJobWithoutOutputPrintsNothing) {
    printer_.EndDoc();
    printer_.SetFontSize(12);
    printer_.SetCurrentY(1);
    printer_.EndDoc();
    printer_.NewPage();
    printer_.EndDoc();
    printer_.Print("");
    printer_.EndDoc();
    EXPECT_THAT(printer_.takeJobs(), IsEmpty());
}

TEST_F(PrintRecorderTest, AnAbandonedJobNeverReachesThePrinter) {
    printer_.Print("secret");
    printer_.NewPage();
    printer_.Print("more");
    printer_.KillDoc();
    EXPECT_EQ(printer_.Page(), 1);
    printer_.EndDoc();
    EXPECT_THAT(printer_.takeJobs(), IsEmpty());
    printer_.Print("next");
    EXPECT_EQ(printed(), "page 1\n0.000 0.000 Arial 10 |next|\n");
}

TEST_F(PrintRecorderTest, AJobStaysOpenUntilItIsEnded) {
    printer_.Print("of one command");
    printer_.Print("of the next");
    EXPECT_THAT(printer_.takeJobs(), IsEmpty());
    EXPECT_EQ(
        printed(),
        "page 1\n0.000 0.000 Arial 10 |of one command|\n0.000 0.160 Arial 10 |of the next|\n");
}

TEST_F(PrintRecorderTest, TheEndOfAJobResetsThePositionAndTheStyleOnly) {
    printer_.SetFontName("Courier New");
    printer_.SetFontSize(12);
    printer_.SetForeColor(0x0000FF);
    printer_.SetOrientation(PageOrientation::Landscape);
    for (const bool sent : {true, false}) {
        printer_.SetFontBold(true);
        printer_.SetFontItalic(true);
        printer_.SetCurrentX(1);
        printer_.PrintPart("x");
        if (sent)
            printer_.EndDoc();
        else
            printer_.KillDoc();
        EXPECT_EQ(printer_.CurrentX(), 0);
        EXPECT_EQ(printer_.CurrentY(), 0);
    }
    (void)printer_.takeJobs();
    printer_.Print("y");
    printer_.EndDoc();
    EXPECT_EQ(printer_.takeDump(),
              "printer Pocket, landscape\npage 1\n0.000 0.000 Courier New 12 #ff0000 |y|\n");
}

TEST_F(PrintRecorderTest, APositionSetBeforeTheFirstOutputHolds) {
    printer_.SetCurrentY(0.5F);
    printer_.Print("x");
    EXPECT_EQ(printed(), "page 1\n0.000 0.500 Arial 10 |x|\n");
}

TEST_F(PrintRecorderTest, FontAndColourAreThoseOfTheMoment) {
    printer_.SetForeColor(255 + 256 * 128 + 65536 * 1);
    printer_.PrintPart("a");
    printer_.SetForeColor(-1);
    printer_.SetFontBold(true);
    printer_.PrintPart("b");
    printer_.SetFontBold(false);
    printer_.SetFontItalic(true);
    printer_.Print("c");
    EXPECT_EQ(printed(),
              "page 1\n"
              "0.000 0.000 Arial 10 #ff8001 |a|\n"
              "0.080 0.000 Arial 10 bold |b|\n"
              "0.170 0.000 Arial 10 italic |c|\n");
}

TEST_F(PrintRecorderTest, ALineLeavesThePositionAtItsEnd) {
    printer_.Line(0, 0.5F, 7.9F, 0.5F, 255);
    EXPECT_FLOAT_EQ(printer_.CurrentX(), 7.9F);
    EXPECT_FLOAT_EQ(printer_.CurrentY(), 0.5F);
    printer_.Line(0, 1, 1, 2, -1);
    EXPECT_EQ(printed(),
              "page 1\nline 0.000 0.500 to 7.900 0.500 #ff0000\nline 0.000 1.000 to 1.000 2.000\n");
}

TEST_F(PrintRecorderTest, ATabGoesOnAtTheNextHalfInchOfTheLine) {
    printer_.SetCurrentX(0.25F);
    EXPECT_FLOAT_EQ(printer_.TextWidth("abc\td\t\te"), 1.58F);
    printer_.Print("abc\td\t\te");
    EXPECT_EQ(printed(),
              "page 1\n"
              "0.250 0.000 Arial 10 |abc|\n"
              "0.750 0.000 Arial 10 |d|\n"
              "1.750 0.000 Arial 10 |e|\n");
}

TEST_F(PrintRecorderTest, ControlCharactersAreBlanks) {
    printer_.Print(
        std::string("a\0b\x1B"
                    "c",
                    5));
    EXPECT_EQ(printed(), "page 1\n0.000 0.000 Arial 10 |a b c|\n");
}

TEST_F(PrintRecorderTest, TheSystemsDefaultIsCurrentUntilAnotherIsChosen) {
    EXPECT_EQ(printer_.CurrentPrinter(), "Pocket");
    EXPECT_TRUE(printer_.SetCurrentPrinter("Office"));
    EXPECT_EQ(printer_.CurrentPrinter(), "Office");
    printer_.defaultName = kPrintToPdf;
    EXPECT_EQ(printer_.CurrentPrinter(), "Office");
    printer_.Print("x");
    printer_.EndDoc();
    EXPECT_EQ(printer_.takeDump(), "printer Office, portrait\npage 1\n0.000 0.000 Arial 10 |x|\n");
}

TEST_F(PrintRecorderTest, APrinterThatIsNotThereIsRefused) {
    EXPECT_FALSE(printer_.SetCurrentPrinter("Attic"));
    EXPECT_FALSE(printer_.SetCurrentPrinter(""));
    EXPECT_EQ(printer_.CurrentPrinter(), "Pocket");
    EXPECT_THAT(printer_.PrinterNames(), ElementsAre("Pocket", "Office", "Print to PDF"));
}

TEST_F(PrintRecorderTest, AJobKeepsThePrinterAndTheOrientationThatItBeganWith) {
    printer_.Print("x");
    printer_.SetOrientation(PageOrientation::Landscape);
    EXPECT_TRUE(printer_.SetCurrentPrinter("Office"));
    printer_.EndDoc();
    EXPECT_EQ(printer_.takeDump(), "printer Pocket, portrait\npage 1\n0.000 0.000 Arial 10 |x|\n");
    printer_.Print("y");
    printer_.EndDoc();
    EXPECT_EQ(printer_.takeDump(), "printer Office, landscape\npage 1\n0.000 0.000 Arial 10 |y|\n");
}

TEST_F(PrintRecorderTest, AJobThatCanNotBePrintedIsGone) {
    printer_.refusal = "The printer is on fire.";
    printer_.SetFontBold(true);
    printer_.Print("x");
    EXPECT_THROW(printer_.EndDoc(), Failure);
    EXPECT_EQ(printer_.CurrentY(), 0);
    printer_.refusal.clear();
    printer_.EndDoc();
    EXPECT_THAT(printer_.takeJobs(), IsEmpty());
    printer_.Print("y");
    EXPECT_EQ(printed(), "page 1\n0.000 0.000 Arial 10 |y|\n");
}

TEST_F(PrintRecorderTest, NoPrinterIsAskedForBeforeAJobBegins) {
    class NoOutput final : public PrintOutput {
        [[nodiscard]] std::vector<std::string> printerNames() const override { return fail(); }
        [[nodiscard]] std::string defaultPrinter() const override { return fail()[0]; }
        bool ask(const std::string&, const GoOn&) override { return fail().empty(); }
        bool print(PrintJob, PrintWatch*) override { return fail().empty(); }
        void beginRun(const std::string&) override { fail(); }
        std::optional<std::string> endRun() override { return fail()[0]; }
        static std::vector<std::string> fail() {
            ADD_FAILURE() << "asked";
            return {""};
        }
    } output;
    const test::FixedPrintMetrics metrics;
    PrintRecorder recorder(metrics, output);
    recorder.SetScaleMode(kInches);
    recorder.SetFontSize(recorder.FontSize() + 4);
    recorder.SetOrientation(recorder.Orientation());
    EXPECT_GT(recorder.TextWidth("x"), 0);
    recorder.EndDoc();
    recorder.KillDoc();
}

}  // namespace
}  // namespace velmora
