#include <gmock/gmock.h>

#include <utility>

#include "paper/PrintShop.h"
#include "platform/Failure.h"
#include "platform/PrintRecorder.h"
#include "platform/PrintWatch.h"
#include "platform/files/PosixFiles.h"
#include "platform/qt/QtPrintMetrics.h"
#include "platform/qt/QtPrinters.h"
#include "support/FakeMessages.h"
#include "support/PdfFile.h"

namespace velmora {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;

constexpr double kMargin = 0.25;  // of the printer's paper, inches
constexpr double kExact = 0.002;

class PrintOnPaper : public testing::Test {
  protected:
    void TearDown() override { EXPECT_TRUE(shop_.hasNothingMore()); }

    [[nodiscard]] std::vector<test::PdfWord> nextWords() {
        return test::wordsOf(shop_.nextSheet());
    }

    test::PrintShop& shop_ = test::printShop();
    const CodePage& codePage_ = CodePage::western();
    test::FakeMessages messages_;
    PosixFiles files_{NativePaths(codePage_)};
    PrintService service_{QStringLiteral("/proc/self/exe"), std::chrono::minutes(1)};
    QtPrintMetrics metrics_{codePage_, service_};
    QtPrinters printers_{messages_, files_, codePage_, service_};
    PrintRecorder surface_{metrics_, printers_};
};

TEST_F(PrintOnPaper, TheDefaultPrinterOfTheSystemIsCurrent) {
    EXPECT_THAT(surface_.PrinterNames(), ElementsAre("Pocket", "Print to PDF"));
    EXPECT_EQ(surface_.CurrentPrinter(), "Pocket");
}

TEST_F(PrintOnPaper, TextStandsWhereItWasPutAndIsAsWideAsItWasMeasured) {
    surface_.SetFontSize(7.75F);
    surface_.SetCurrentX(1);
    surface_.SetCurrentY(1);
    surface_.Print("OneInch");
    surface_.Print("Below");
    const double width = surface_.TextWidth("OneInch");
    const double height = surface_.TextHeight("OneInch");
    surface_.EndDoc();
    const auto words = nextWords();
    ASSERT_EQ(words.size(), 2U);
    EXPECT_NEAR(words[0].left, kMargin + 1, kExact);
    EXPECT_NEAR(words[0].right - words[0].left, width, kExact);
    EXPECT_NEAR(words[1].left, kMargin, kExact);
    EXPECT_NEAR(words[1].top - words[0].top, height, kExact);
}

TEST_F(PrintOnPaper, TheQueueShowsTheTitleOfTheJob) {
    surface_.SetTitle("Velmora: Letter to M\xFCller, Jo (2 of 3)");
    surface_.Print("x");
    surface_.EndDoc();
    const std::string sheet = shop_.nextSheet();
    EXPECT_THAT(test::outputOf("pdfinfo", {QString::fromStdString(sheet)}).toStdString(),
                HasSubstr("Title:           Velmora: Letter to M\xC3\xBCller, Jo (2 of 3)\n"));
    // The printer calls its file after the job.
    EXPECT_THAT(sheet, testing::ContainsRegex("[Ll]etter.?to.?[Mm]"));
}

TEST_F(PrintOnPaper, AJobThatIsCalledOffWhileItIsHandedOverNeverArrives) {
    struct NoSending final : PrintWatch {
        bool playing(int, int) override { return true; }
        bool sending() override { return false; }
        bool waitingForTheQueue() override { return false; }
    } watch;
    for (int line = 0; line < 2000; ++line)
        surface_.Print("a line that takes some time to send");
    EXPECT_FALSE(surface_.EndDoc(&watch));
    EXPECT_TRUE(shop_.hasNothingMore());
}

TEST_F(PrintOnPaper, AQueueThatIsFullIsTriedAgainUntilItTakesTheJob) {
    struct Opening final : PrintWatch {
        explicit Opening(test::PrintShop& opened) : shop(opened) {}
        bool playing(int, int) override { return true; }
        bool sending() override { return true; }
        bool waitingForTheQueue() override {
            if (std::exchange(closed, false))
                shop.administer("lpadmin -p Tight -o job-k-limit=0");
            return true;
        }
        test::PrintShop& shop;
        bool closed = true;
    } watch{shop_};
    shop_.administer(
        "lpadmin -p Tight -v file:///dev/null -E -o job-quota-period=86400 "
        "-o job-k-limit=1");
    surface_.AskPrintSystem({});
    ASSERT_TRUE(surface_.SetCurrentPrinter("Tight"));
    surface_.Print("fills the quota");
    EXPECT_TRUE(surface_.EndDoc(&watch));
    surface_.Print("waits");
    EXPECT_TRUE(surface_.EndDoc(&watch));
    EXPECT_FALSE(watch.closed) << "the second job did not wait";
    shop_.administer("lpadmin -x Tight");
}

TEST_F(PrintOnPaper, NothingArrivesBeforeTheEndOfTheJob) {
    surface_.Print("first");
    surface_.NewPage();
    surface_.Print("second");
    EXPECT_TRUE(shop_.hasNothingMore());
    surface_.EndDoc();
    const auto words = nextWords();
    ASSERT_EQ(words.size(), 2U);
    EXPECT_EQ(words[0].page, 1);
    EXPECT_EQ(words[1].page, 2);
}

TEST_F(PrintOnPaper, AnAbandonedJobNeverArrives) {
    surface_.Print("abandoned");
    surface_.NewPage();
    surface_.Print("abandoned");
    surface_.KillDoc();
    surface_.EndDoc();
    EXPECT_TRUE(shop_.hasNothingMore());
    surface_.Print("kept");
    surface_.EndDoc();
    const auto words = nextWords();
    ASSERT_EQ(words.size(), 1U);
    EXPECT_EQ(words[0].text, "kept");
}

TEST_F(PrintOnPaper, SheetsHaveTheSizeThatThePrinterHasByDefault) {
    const PrintableArea letter = metrics_.printableArea("Pocket", PageOrientation::Portrait);
    EXPECT_NEAR(letter.width, 8, kExact);
    EXPECT_NEAR(letter.height, 10.5, kExact);
    shop_.administer("lpadmin -p Pocket -o PageSize=A4");
    surface_.AskPrintSystem({});
    const PrintableArea lying = metrics_.printableArea("Pocket", PageOrientation::Landscape);
    EXPECT_GT(lying.width, 10.6);  // more than a Letter sheet has
    EXPECT_LT(lying.width, 297 / 25.4);
    EXPECT_LT(lying.height, 210 / 25.4);
    surface_.Print("x");
    surface_.EndDoc();
    const std::string sheet = shop_.nextSheet();
    shop_.administer("lpadmin -p Pocket -o PageSize=Letter");
    EXPECT_THAT(test::outputOf("pdfinfo", {QString::fromStdString(sheet)}).toStdString(),
                HasSubstr("(A4)"));
}

TEST_F(PrintOnPaper, APrinterThatWentIsAFailureAndNoOtherPrints) {
    shop_.administer("lpadmin -p Attic -v file:///dev/null -E");
    surface_.AskPrintSystem({});
    EXPECT_TRUE(surface_.SetCurrentPrinter("Attic"));
    surface_.Print("x");
    shop_.administer("lpadmin -x Attic");
    EXPECT_THROW(surface_.EndDoc(), Failure);
    surface_.AskPrintSystem({});
    EXPECT_FALSE(surface_.SetCurrentPrinter("Attic"));
    EXPECT_EQ(surface_.CurrentPrinter(), "Attic");
}

TEST_F(PrintOnPaper, APrinterThatVanishesWhileItsPagesAreMadeIsAFailureAndNothingIsPrinted) {
    struct Vanishing final : PrintWatch {
        explicit Vanishing(test::PrintShop& whole) : shop(whole) {}
        bool playing(int page, int) override {
            if (page == 2)
                shop.administer("lpadmin -x Cellar");
            return true;
        }
        bool sending() override { return true; }
        bool waitingForTheQueue() override { return true; }
        test::PrintShop& shop;
    } watch{shop_};
    shop_.administer("lpadmin -p Cellar -v file:///dev/null -E");
    surface_.AskPrintSystem({});
    ASSERT_TRUE(surface_.SetCurrentPrinter("Cellar"));
    for (int page = 1; page <= 3; ++page) {
        surface_.Print("x");
        surface_.NewPage();
    }
    try {
        surface_.EndDoc(&watch);
        ADD_FAILURE() << "was printed";
    } catch (const Failure& failure) {
        EXPECT_THAT(failure.what(), HasSubstr("the printer \"Cellar\" is not there any more"));
    }
}

TEST_F(PrintOnPaper, APrinterThatTakesNoJobsIsAFailureThatSaysSo) {
    shop_.administer("cupsreject Pocket");
    surface_.Print("x");
    try {
        surface_.EndDoc();
        ADD_FAILURE() << "was taken";
    } catch (const Failure& failure) {
        EXPECT_THAT(failure.what(), HasSubstr("\"Pocket\" did not take it ("));
    }
    shop_.administer("cupsaccept Pocket");
    surface_.Print("y");
    EXPECT_NO_THROW(surface_.EndDoc());
    EXPECT_EQ(nextWords().size(), 1U);
}

}  // namespace
}  // namespace velmora
