#include <gtest/gtest.h>

#include <QFile>
#include <QPageSize>
#include <map>
#include <utility>

#include "platform/PrintRecorder.h"
#include "platform/qt/PdfPages.h"
#include "platform/qt/QtPrintMetrics.h"
#include "reports/EnvelopePage.h"
#include "reports/RowPrinter.h"
#include "support/FakePrintSurface.h"
#include "support/PdfFile.h"
#include "support/TemporaryFolder.h"

namespace velmora {
namespace {

constexpr double kExact = 0.01;  // inches
constexpr double kMargin = 0.25;

// Real pages, read back: where texts stand on sheets of both sizes, upright and lying.
class PrintedPlaces : public testing::TestWithParam<std::tuple<const char*, PageOrientation>> {
  protected:
    // Real metrics, and a printer that keeps its jobs.
    struct Printer final : test::FakePrinters {};

    PrintedPlaces() { surface_.SetOrientation(std::get<1>(GetParam())); }

    std::vector<test::PdfWord> words() {
        surface_.EndDoc();
        PrintJob job = printer_.takeJobs().at(0);
        const bool a4 = std::string(std::get<0>(GetParam())) == "A4";
        const PrintService::Sheet sheet{
            QString(), QString(),
            QPageSize(a4 ? QPageSize::A4 : QPageSize::Letter).size(QPageSize::Point), QMarginsF()};
        PdfPages pages(job.title, CodePage::western());
        EXPECT_TRUE(pages.play(job, sheet.layout(job.orientation), nullptr));
        const std::string path = folder_.path() + "/sheet.pdf";
        QFile file(QString::fromStdString(path));
        EXPECT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(pages.finish());
        file.close();
        return test::wordsOf(path);
    }

    test::TemporaryFolder folder_;
    Printer printer_;
    PrintService service_{QStringLiteral("/no/such/program")};
    QtPrintMetrics metrics_{CodePage::western(), service_};
    PrintRecorder surface_{metrics_, printer_};
};

TEST_P(PrintedPlaces, CellsOfARowStandWhereTheyWerePut) {
    RowPrinter rows(surface_);
    surface_.SetCurrentY(1);
    rows.cell(0, "Zero");
    rows.cell(2.01F, "Two");
    rows.cell(4.01F, "Four");
    rows.lastCell(6.01F, "Six");
    rows.lastCell(0, "Below");
    const double height = static_cast<double>(surface_.TextHeight("x"));
    const auto found = words();
    ASSERT_EQ(found.size(), 5U);
    // They come back in an order of the reader's own.
    std::map<std::string, test::PdfWord> word;
    for (const test::PdfWord& each : found)
        word[each.text.toStdString()] = each;
    const double top = word["Zero"].top;
    EXPECT_NEAR(top, kMargin + 1, 0.03);  // the box of a word is not its line
    for (const auto& [text, left] : {std::pair("Zero", 0.0), std::pair("Two", 2.01),
                                     std::pair("Four", 4.01), std::pair("Six", 6.01)}) {
        EXPECT_NEAR(word[text].left, kMargin + left, kExact) << text;
        EXPECT_NEAR(word[text].top, top, kExact) << text;
    }
    EXPECT_NEAR(word["Below"].left, kMargin, kExact);
    EXPECT_NEAR(word["Below"].top - top, height, kExact);
}

TEST_P(PrintedPlaces, TheLinesOfAnEnvelopeStandWhereTheFeedPutsThem) {
    EnvelopeContent content;
    for (std::size_t i = 0; i < kEnvelopeLines; ++i)
        content.lines.at(i).text = "Line" + std::to_string(i + 1);
    content.EnvelopeBarcode = "s605559s";
    printEnvelopePage(surface_, content, {});
    const double height = metrics_.lineHeight({.name = "Arial", .size = 10});
    const double barcode = metrics_.lineHeight({.name = "Arial", .size = 16});
    const auto found = words();
    ASSERT_EQ(found.size(), kEnvelopeLines + 1);
    const double first = found[0].top;
    EXPECT_NEAR(first, kMargin + 2.1, 0.03);
    for (std::size_t i = 0; i < kReturnLines; ++i) {
        EXPECT_NEAR(found[i].left, kMargin, kExact);
        EXPECT_NEAR(found[i].top - first, static_cast<double>(i) * height, kExact);
    }
    for (std::size_t i = kReturnLines; i <= kEnvelopeLines; ++i)
        EXPECT_NEAR(found[i].left, kMargin + 5.0, kExact);
    for (std::size_t i = 0; i < kAddressLines; ++i)
        EXPECT_NEAR(found[kReturnLines + 1 + i].top - first,
                    2.0 + barcode + static_cast<double>(i) * height, kExact);
}

INSTANTIATE_TEST_SUITE_P(
    Sheets, PrintedPlaces,
    testing::Combine(testing::Values("Letter", "A4"),
                     testing::Values(PageOrientation::Portrait, PageOrientation::Landscape)),
    [](const auto& info) {
        return std::string(std::get<0>(info.param)) +
               (std::get<1>(info.param) == PageOrientation::Portrait ? "Upright" : "Lying");
    });

}  // namespace
}  // namespace velmora
