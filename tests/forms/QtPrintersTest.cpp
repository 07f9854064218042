#include "platform/qt/QtPrinters.h"

#include <gmock/gmock.h>

#include <QApplication>
#include <QImage>
#include <QRectF>
#include <filesystem>

#include "platform/Failure.h"
#include "platform/PrintRecorder.h"
#include "platform/PrintWatch.h"
#include "platform/files/PosixFiles.h"
#include "platform/qt/PrintPages.h"
#include "platform/qt/QtPrintMetrics.h"
#include "support/FakeMessages.h"
#include "support/PdfFile.h"
#include "support/TemporaryFolder.h"

namespace velmora {
namespace {

using test::outputOf;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

constexpr double kMargin = 0.25;
constexpr double kExact = 0.002;  // inches; files tell places with six digits of points

// On a machine that has no print system, or none that answers.
class QtPrintersTest : public testing::Test {
  protected:
    void SetUp() override { qputenv("CUPS_SERVER", (folder_.path() + "/no-such-socket").c_str()); }
    void TearDown() override { qunsetenv("CUPS_SERVER"); }

    // Ends the job; the user names the file.
    void printTo(const std::string& name) {
        path_ = folder_.path() + "/" + name;
        messages_.willAnswer(path_);
        surface_.EndDoc();
    }

    [[nodiscard]] std::vector<test::PdfWord> words() const { return test::wordsOf(path_); }

    // Where there is ink on a page of the file, in inches.
    [[nodiscard]] QRectF inkOf(int page) const {
        const QString number = QString::number(page);
        const QString target = QString::fromStdString(folder_.path() + "/ink");
        outputOf("pdftoppm", {"-r", "144", "-png", "-singlefile", "-f", number, "-l", number,
                              QString::fromStdString(path_), target});
        const QImage image(target + QStringLiteral(".png"));
        QRect ink;
        for (int y = 0; y < image.height(); ++y)
            for (int x = 0; x < image.width(); ++x)
                if (qGray(image.pixel(x, y)) < 128)
                    ink |= QRect(x, y, 1, 1);
        return {ink.x() / 144.0, ink.y() / 144.0, ink.width() / 144.0, ink.height() / 144.0};
    }

    test::TemporaryFolder folder_;
    const CodePage& codePage_ = CodePage::western();
    test::FakeMessages messages_;
    PosixFiles files_{NativePaths(codePage_, folder_.path(), NativePath(folder_.path()))};
    PrintService service_{QStringLiteral("/proc/self/exe"), std::chrono::minutes(1)};
    QtPrintMetrics metrics_{codePage_, service_};
    QtPrinters printers_{messages_, files_, codePage_, service_};
    PrintRecorder surface_{metrics_, printers_};
    std::string path_;
};

TEST_F(QtPrintersTest, WithoutAPrintSystemThereIsAFileToPrintTo) {
    EXPECT_THAT(surface_.PrinterNames(), ElementsAre("Print to PDF"));
    EXPECT_EQ(surface_.CurrentPrinter(), "Print to PDF");
    EXPECT_FALSE(surface_.SetCurrentPrinter("Pocket"));
    EXPECT_TRUE(surface_.SetCurrentPrinter("Print to PDF"));
}

TEST_F(QtPrintersTest, TextStandsWhereItWasPut) {
    surface_.SetCurrentX(1);
    surface_.SetCurrentY(2);
    surface_.Print("One");
    surface_.Print("Two");
    const float height = surface_.TextHeight("x");
    printTo("places.pdf");
    const auto found = words();
    ASSERT_EQ(found.size(), 2U);
    EXPECT_NEAR(found[0].left, kMargin + 1, kExact);
    EXPECT_NEAR(found[0].top, kMargin + 2, 0.02);  // the box of a word is not its line
    EXPECT_NEAR(found[1].left, kMargin, kExact);
    EXPECT_NEAR(found[1].top - found[0].top, height, kExact);
}

TEST_F(QtPrintersTest, TextIsAsWideAsItWasMeasured) {
    surface_.SetFontName("Liberation Sans");
    for (const float size : {7.75F, 10.0F, 23.5F}) {
        surface_.SetFontSize(size);
        surface_.Print("TheWidthOfThisLine");
    }
    printTo("widths.pdf");
    const auto found = words();
    ASSERT_EQ(found.size(), 3U);
    std::size_t line = 0;
    for (const float size : {7.75F, 10.0F, 23.5F}) {
        surface_.SetFontSize(size);
        const double width = surface_.TextWidth("TheWidthOfThisLine");
        EXPECT_NEAR(found[line].right - found[line].left, width, 0.005) << size;
        ++line;
    }
    EXPECT_NEAR((found[2].right - found[2].left) / (found[0].right - found[0].left), 23.5 / 7.75,
                0.01);
}

TEST_F(QtPrintersTest, PartsOfALineFollowEachOther) {
    surface_.PrintPart("Half ");
    const float behind = surface_.CurrentX();
    surface_.SetFontBold(true);
    surface_.Print("Bold");
    printTo("parts.pdf");
    const auto found = words();
    ASSERT_EQ(found.size(), 2U);
    EXPECT_NEAR(found[1].left, kMargin + behind, kExact);
    EXPECT_THAT(outputOf("pdffonts", {QString::fromStdString(path_)}).toStdString(),
                HasSubstr("Bold"));
}

TEST_F(QtPrintersTest, LettersOfTheCodePageComeOut) {
    surface_.Print("M\xFCller \x80 \x9C");
    printTo("letters.pdf");
    const auto found = words();
    ASSERT_EQ(found.size(), 3U);
    EXPECT_EQ(found[0].text, QStringLiteral("M\u00FCller"));
    EXPECT_EQ(found[1].text, QStringLiteral("\u20AC"));
    EXPECT_EQ(found[2].text, QStringLiteral("\u0153"));
}

TEST_F(QtPrintersTest, TextCanBeCopiedAsItWasPrintedInTheFontOfTheWindow) {
    surface_.SetFontName(QApplication::font().family().toStdString());
    surface_.SetFontBold(true);
    surface_.Print("02:30-03:00(1)->x");
    printTo("copied.pdf");
    const auto found = words();
    ASSERT_EQ(found.size(), 1U);
    EXPECT_EQ(found[0].text, QStringLiteral("02:30-03:00(1)-&gt;x"));
}

TEST_F(QtPrintersTest, EachPageBeginsAtItsTopLeft) {
    for (int line = 0; line < 200; ++line)
        surface_.Print("L" + std::to_string(line));
    const int pages = surface_.Page();
    printTo("pages.pdf");
    const auto found = words();
    ASSERT_EQ(found.size(), 200U);
    EXPECT_EQ(found.back().page, pages);
    EXPECT_GT(pages, 1);
    const double first = found.front().top;
    for (std::size_t i = 1; i < found.size(); ++i) {
        EXPECT_NEAR(found[i].left, kMargin, kExact);
        if (found[i].page != found[i - 1].page) {
            EXPECT_NEAR(found[i].top, first, kExact);
        }
        EXPECT_LE(found[i].bottom, 11 - kMargin + 0.02);
    }
}

TEST_F(QtPrintersTest, NothingIsPrintedInTheMargins) {
    const std::string wide(400, 'M');
    surface_.Print(wide);
    surface_.Line(0, 5, 20, 5, -1);
    surface_.Line(4, 0, 4, 20, -1);
    surface_.NewPage();
    surface_.Print(wide);
    printTo("margins.pdf");
    for (const int page : {1, 2}) {
        const QRectF ink = inkOf(page);
        EXPECT_NEAR(ink.left(), kMargin, 0.03) << page;
        EXPECT_NEAR(ink.right(), 8.5 - kMargin, 0.02) << page;
    }
    EXPECT_NEAR(inkOf(1).bottom(), 11 - kMargin, 0.02);
}

TEST_F(QtPrintersTest, ALineGoesFromPointToPoint) {
    surface_.Line(1, 2, 6, 2, -1);
    printTo("line.pdf");
    const QRectF ink = inkOf(1);
    EXPECT_NEAR(ink.left(), kMargin + 1, 0.02);
    EXPECT_NEAR(ink.right(), kMargin + 6, 0.02);
    EXPECT_NEAR(ink.center().y(), kMargin + 2, 0.02);
    EXPECT_LT(ink.height(), 0.03);
}

TEST_F(QtPrintersTest, LandscapeSheetsLieOnTheirSide) {
    surface_.SetOrientation(PageOrientation::Landscape);
    surface_.SetCurrentX(10);
    surface_.Print("Right");
    printTo("landscape.pdf");
    EXPECT_THAT(outputOf("pdfinfo", {QString::fromStdString(path_)}).toStdString(),
                HasSubstr("792 x 612"));
    const auto found = words();
    ASSERT_EQ(found.size(), 1U);
    EXPECT_NEAR(found[0].left, kMargin + 10, kExact);
    surface_.SetOrientation(PageOrientation::Portrait);
    surface_.Print("Upright");
    printTo("portrait.pdf");
    EXPECT_THAT(outputOf("pdfinfo", {QString::fromStdString(path_)}).toStdString(),
                HasSubstr("612 x 792"));
}

TEST_F(QtPrintersTest, TextHasItsColour) {
    surface_.SetFontSize(200);
    surface_.SetForeColor(255);
    surface_.Print("M");
    printTo("red.pdf");
    const QString target = QString::fromStdString(folder_.path() + "/red");
    outputOf("pdftoppm",
             {"-r", "36", "-png", "-singlefile", QString::fromStdString(path_), target});
    const QImage image(target + QStringLiteral(".png"));
    int red = 0;
    for (int y = 0; y < image.height(); ++y)
        for (int x = 0; x < image.width(); ++x)
            red += image.pixelColor(x, y) == QColor(255, 0, 0) ? 1 : 0;
    EXPECT_GT(red, 100);
}

TEST_F(QtPrintersTest, AsksForTheFileOnlyAtTheEndOfTheJob) {
    surface_.Print("x");
    EXPECT_THAT(messages_.takeShown(), IsEmpty());
    printTo("asked.pdf");
    EXPECT_THAT(messages_.takeShown(),
                ElementsAre("save|Print to PDF|.pdf|PDF (*.pdf)|*.pdf|All Files (*.*)|*.*"));
    surface_.Print("y");
    surface_.KillDoc();
    surface_.EndDoc();
    EXPECT_THAT(messages_.takeShown(), IsEmpty());
}

TEST_F(QtPrintersTest, AFileThatIsNotNamedIsNotWritten) {
    surface_.Print("x");
    messages_.willAnswer(std::optional<std::string>());
    surface_.EndDoc();
    EXPECT_TRUE(std::filesystem::is_empty(folder_.path()));
}

TEST_F(QtPrintersTest, AFileThatCanNotBeWrittenIsAFailureThatNamesIt) {
    surface_.Print("x");
    try {
        printTo("no-such-folder/x.pdf");
        ADD_FAILURE() << "was written";
    } catch (const Failure& failure) {
        EXPECT_THAT(failure.what(), HasSubstr("no-such-folder/x.pdf can not be written"));
    }
    EXPECT_TRUE(std::filesystem::is_empty(folder_.path()));
    surface_.Print("The next job.");
    printTo("x.pdf");
    EXPECT_EQ(words().size(), 3U);
}

TEST_F(QtPrintersTest, AFileThatCanNotBeReplacedStaysAsItIs) {
    std::filesystem::create_directory(folder_.path() + "/taken.pdf");
    surface_.Print("x");
    EXPECT_THROW(printTo("taken.pdf"), Failure);
    EXPECT_TRUE(std::filesystem::is_empty(folder_.path() + "/taken.pdf"));
}

TEST_F(QtPrintersTest, APrinterThatIsNotThereIsAFailureAndNothingIsPrintedElsewhere) {
    const PrintJob job{
        .printer = "Attic",
        .pages = {{PrintedText{.text = "x", .font = {.name = "Arial", .size = 10}}}}};
    try {
        printers_.print(job, nullptr);
        ADD_FAILURE() << "was printed";
    } catch (const Failure& failure) {
        EXPECT_STREQ(failure.what(),
                     "Nothing was printed: the printer \"Attic\" is not there any more. Printer "
                     "Setup in the File menu chooses another one.");
    }
    EXPECT_THAT(messages_.takeShown(), IsEmpty());
}

TEST_F(QtPrintersTest, WhatCanNotBeAskedHasALetterSheet) {
    for (const char* name : {"Attic", kPrintToPdf}) {
        const PrintableArea upright = metrics_.printableArea(name, PageOrientation::Portrait);
        EXPECT_DOUBLE_EQ(upright.width, 8);
        EXPECT_DOUBLE_EQ(upright.height, 10.5);
        const PrintableArea lying = metrics_.printableArea(name, PageOrientation::Landscape);
        EXPECT_DOUBLE_EQ(lying.width, 10.5);
        EXPECT_DOUBLE_EQ(lying.height, 8);
    }
}

TEST_F(QtPrintersTest, APrinterThatNeedsNoMarginsGetsSome) {
    PrintService::Sheet sheet{QStringLiteral("A4"), QStringLiteral("A4"), {595, 842}, {}};
    const auto margins = [&] {
        return sheet.layout(PageOrientation::Portrait).margins(QPageLayout::Point);
    };
    EXPECT_EQ(margins(), QMarginsF(18, 18, 18, 18));
    sheet.needed = QMarginsF(9, 10, 11, 12);
    EXPECT_EQ(margins(), sheet.needed);
}

TEST_F(QtPrintersTest, ASheetThatLiesHasRoomAtTheEndsWhateverSideItIsTurnedTo) {
    const PrintService::Sheet sheet{
        QStringLiteral("A4"), QStringLiteral("A4"), {595, 842}, {9, 10, 11, 12}};
    EXPECT_EQ(sheet.layout(PageOrientation::Landscape).margins(QPageLayout::Point),
              QMarginsF(12, 11, 12, 11));
}

TEST_F(QtPrintersTest, AFontWithoutASizeStillHasLines) {
    surface_.SetFontSize(0);
    EXPECT_GT(surface_.TextHeight("x"), 0);
    surface_.SetFontName("no such font");
    surface_.SetFontSize(10);
    EXPECT_GT(surface_.TextWidth("x"), 0);
}

TEST_F(QtPrintersTest, TheJobsOfARunAreOneFileWithOneQuestion) {
    surface_.BeginRun("Velmora: Letters, Yellow Pages");
    path_ = folder_.path() + "/run.pdf";
    messages_.willAnswer(path_);
    for (const char* word : {"First", "Second"}) {
        surface_.SetTitle(std::string("Velmora: ") + word);
        surface_.Print(word);
        EXPECT_TRUE(surface_.EndDoc());
    }
    EXPECT_FALSE(std::filesystem::exists(path_));
    EXPECT_EQ(surface_.EndRun(), path_);
    const auto found = words();
    ASSERT_EQ(found.size(), 2U);
    EXPECT_EQ(found[1].page, 2);
    EXPECT_NEAR(found[0].top, found[1].top, kExact);
    EXPECT_EQ(messages_.takeShown().size(), 1U);
    EXPECT_THAT(outputOf("pdfinfo", {QString::fromStdString(path_)}).toStdString(),
                HasSubstr("Velmora: Letters, Yellow Pages\n"));
}

TEST_F(QtPrintersTest, TheSheetsOfARunLieAsEachJobAsks) {
    surface_.BeginRun("Velmora");
    path_ = folder_.path() + "/turned.pdf";
    messages_.willAnswer(path_);
    surface_.Print("Upright");
    surface_.EndDoc();
    surface_.SetOrientation(PageOrientation::Landscape);
    surface_.SetCurrentX(10);
    surface_.Print("Lying");
    surface_.EndDoc();
    surface_.EndRun();
    const auto found = words();
    ASSERT_EQ(found.size(), 2U);
    EXPECT_NEAR(found[1].left, kMargin + 10, kExact);
    EXPECT_THAT(outputOf("pdfinfo", {"-l", "2", QString::fromStdString(path_)}).toStdString(),
                HasSubstr("Page    2 size:  792 x 612"));
}

struct CountingWatch final : PrintWatch {
    bool playing(int page, int) override { return (last = page) < stopAt; }
    bool sending() override { return true; }
    bool waitingForTheQueue() override { return true; }
    int last = 0;
    int stopAt = 1000;
};

TEST_F(QtPrintersTest, APrintToAFileThatIsCalledOffOnItsLastPageWritesNothing) {
    CountingWatch watch;
    watch.stopAt = 3;
    surface_.BeginRun("Velmora");
    for (int page = 0; page < 3; ++page) {
        surface_.Print("x");
        surface_.NewPage();
    }
    messages_.willAnswer(folder_.path() + "/never.pdf");
    EXPECT_FALSE(surface_.EndDoc(&watch));
    EXPECT_EQ(watch.last, 3);
    EXPECT_EQ(surface_.EndRun(), std::nullopt);
    EXPECT_TRUE(std::filesystem::is_empty(folder_.path()));
}

}  // namespace
}  // namespace velmora
