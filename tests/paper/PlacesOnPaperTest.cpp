#include <gmock/gmock.h>

#include <algorithm>
#include <string>
#include <utility>
#include <vector>

#include "docpad/LetterFakes.h"
#include "docpad/MergePrint.h"
#include "docpad/PadFakes.h"
#include "paper/PrintShop.h"
#include "platform/files/PosixFiles.h"
#include "platform/qt/PrintPages.h"
#include "platform/qt/QtPrinters.h"
#include "reports/EntryPrint.h"
#include "reports/EnvelopePage.h"
#include "reports/ReportFixture.h"
#include "support/FakeMessages.h"
#include "support/FakePhonebookPane.h"
#include "support/PdfFile.h"

namespace velmora {
namespace {

constexpr double kExact = 0.005;  // inches

PhonebookRecord fullRecord(bool isPerson) {
    PhonebookRecord record;
    for (std::size_t i = 0; i < kFieldCount; ++i)
        record.assign(static_cast<Field>(i), "f" + std::to_string(i + 1));
    record.assign(Field::Last, isPerson ? "Bellweather" : "");
    record.assign(Field::First, isPerson ? "Adrian" : "");
    record.assign(Field::Company, "Northgate");
    return record;
}

// What a real queue received of jobs, read back: each text stands where the job has it.
class PlacesOnPaper : public testing::TestWithParam<const char*>, protected test::ReportFixture {
  protected:
    PlacesOnPaper() {
        shop_.administer(std::string("lpadmin -p Pocket -o PageSize=") + GetParam());
        printers_.ask("", [] { return true; });
        yellow() =
            test::bytesOf(fullRecord(true)) + test::bytesOf(fullRecord(false)) + test::people(45);
    }
    ~PlacesOnPaper() override { shop_.administer("lpadmin -p Pocket -o PageSize=Letter"); }

    // Sends the jobs of the desk and looks at what came of them.
    void expectPlaces() {
        const std::vector<PrintJob> jobs = desk.printer.takeJobs();
        ASSERT_FALSE(jobs.empty());
        for (const PrintJob& job : jobs) {
            const QPageLayout layout = layoutOf("Pocket", job.orientation, service_, codePage);
            ASSERT_TRUE(printers_.print(job, nullptr));
            auto words = test::wordsOf(shop_.nextSheet());
            if (job.orientation == PageOrientation::Landscape)
                turn(words, layout.fullRect(QPageLayout::Point).height() / 72);
            expectTexts(job, words, printableRect(layout).topLeft());
        }
    }

  private:
    // A sheet that lies comes upright, its left edge above. The places as they are when it is held
    // as it is read.
    static void turn(std::vector<test::PdfWord>& words, double height) {
        for (test::PdfWord& word : words)
            word = {.page = word.page,
                    .left = word.top,
                    .top = height - word.right,
                    .right = word.bottom,
                    .bottom = height - word.left,
                    .text = word.text};
    }

    static void expectTexts(const PrintJob& job, const std::vector<test::PdfWord>& words,
                            const QPointF& corner) {
        std::size_t seen = 0;
        for (std::size_t i = 0; i < job.pages.size(); ++i)
            for (const auto& mark : job.pages[i]) {
                const auto* text = std::get_if<PrintedText>(&mark);
                if (!text || text->text.find_first_not_of(' ') == std::string::npos)
                    continue;
                const double left = corner.x() + static_cast<double>(text->x);
                const double top = corner.y() + static_cast<double>(text->y);
                const std::string first = text->text.substr(0, text->text.find(' '));
                const auto word = std::ranges::find_if(words, [&](const test::PdfWord& each) {
                    return each.page == static_cast<int>(i) + 1 &&
                           each.text.toStdString() == first &&
                           std::abs(each.left - left) < kExact && std::abs(each.top - top) < kExact;
                });
                ASSERT_NE(word, words.end())
                    << text->text << " at " << text->x << ", " << text->y << " on page " << i + 1
                    << ", while the first word is at " << words.at(0).left << ", "
                    << words.at(0).top << " and the corner at " << corner.x() << ", " << corner.y();
                ++seen;
            }
        EXPECT_GT(seen, 10U);
    }

    test::PrintShop& shop_ = test::printShop();
    test::FakeMessages messages_;
    PosixFiles realFiles_{NativePaths(codePage)};
    PrintService service_{QStringLiteral("/proc/self/exe"), std::chrono::minutes(1)};
    QtPrinters printers_{messages_, realFiles_, codePage, service_};
};

TEST_P(PlacesOnPaper, OfTheTextsOfAListing) {
    for (const ReportSize size : {ReportSize::Normal, ReportSize::Pocket, ReportSize::Mini}) {
        (void)print(ReportKind::Listing, size);
        expectPlaces();
    }
}

TEST_P(PlacesOnPaper, OfTheTextsOfAReport) {
    for (const ReportSize size : {ReportSize::Normal, ReportSize::Pocket, ReportSize::Mini}) {
        (void)print(ReportKind::Complete, size);
        expectPlaces();
    }
}

TEST_P(PlacesOnPaper, OfTheTextsOfAnEntrysSheet) {
    test::FakePhonebookPane pane;
    pane.selected = "Bellweather, Adrian";
    const SelectedEntry entry(state, store, pane);
    EntryPrint({desk.printing, entry, pane, settings, desk.status, codePage}).PrintEntry();
    expectPlaces();
}

TEST_P(PlacesOnPaper, OfTheLinesOfAnEnvelopeThatLies) {
    EnvelopeContent content;
    for (std::size_t i = 0; i < kEnvelopeLines; ++i)
        content.lines.at(i) = {.text = "Line" + std::to_string(i + 1),
                               .fontSize = 8 + static_cast<double>(i % 3)};
    content.EnvelopeBarcode = "s605559s";
    for (const EnvelopeFeed& feed :
         {EnvelopeFeed{EnvelopePosition::Left, true}, EnvelopeFeed{EnvelopePosition::Center, false},
          EnvelopeFeed{EnvelopePosition::Right, false}, EnvelopeFeed{std::nullopt, true}}) {
        desk.printing.run({.title = "Envelope", .orientation = PageOrientation::Landscape},
                          [&](PrintRun& run) { printEnvelopePage(run.printer, content, feed); });
        expectPlaces();
    }
}

TEST_P(PlacesOnPaper, OfTheTextsOfLetters) {
    test::FakePadText pad;
    for (int i = 1; i <= 60; ++i)
        pad.text += "line" + std::to_string(i) + " of the letter\r\n";
    test::FixedFont font;
    font.now = {"Arial", 11.5, 0};
    test::FakeSignatureQuestion question;
    question.answers = {"Sincerely,\r\n\r\nHelen"};
    Signature signature("/velmora", files, desk.messages);
    yellow().resize(3 * kRecordSize);
    settings.Save("LetterTab", "1");
    MergePrint({desk.printing, store, settings, pad, font, signature, question, clock, locale,
                [](const std::string& text) { FAIL() << text; }})
        .run(MergePrint::WhichBooks::Yellow);
    expectPlaces();
}

INSTANTIATE_TEST_SUITE_P(Sheets, PlacesOnPaper, testing::Values("Letter", "A4"),
                         [](const auto& info) { return std::string(info.param); });

}  // namespace
}  // namespace velmora
