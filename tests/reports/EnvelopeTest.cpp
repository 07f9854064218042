#include <gmock/gmock.h>

#include "reports/EnvelopeEditor.h"
#include "reports/EnvelopePage.h"
#include "reports/EnvelopeSketch.h"
#include "support/FakePhonebookPane.h"
#include "support/Golden.h"
#include "support/PhonebookFixture.h"
#include "support/PrintDesk.h"

namespace velmora {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

struct FakeFonts final : FontQuestion {
    std::optional<ControlFont> choose(const ControlFont& now, double smallest,
                                      double largest) override {
        asked.push_back(now);
        limits = {smallest, largest};
        return answer;
    }
    std::optional<ControlFont> answer;
    std::vector<ControlFont> asked;
    std::pair<double, double> limits;
};

class EnvelopeTest : public testing::Test, protected test::PhonebookFixture {
  protected:
    EnvelopeTest() {
        PhonebookRecord record = test::formRecord("Bellweather", "Adrian", "Northgate Instruments");
        record.assign(Field::Title, "Mr.");
        record.assign(Field::Position, "Purchasing Manager");
        record.assign(Field::Address1, "418 Kiln Street");
        record.assign(Field::Address2, "Suite 12");
        record.assign(Field::Address3, "Millbrook, IL");
        record.assign(Field::PostalCode, "60555");
        record.assign(Field::Country, "United States");
        yellow() = test::bytesOf(record) + test::bytesOf(test::companyRecord("Acme, Inc")) +
                   test::bytesOf(test::companyRecord("Acme"));
        const char* lines[] = {"H. Marlowe", "Marlowe Bindery", "6 Weaver Row",
                               "Pinecroft, IL 60430"};
        for (std::size_t i = 0; i < kReturnLines; ++i)
            settings.Save("Return" + std::to_string(i + 1), lines[i]);
    }

    void fill(const std::string& line) {
        pane.selected = line;
        editor.FillEnvelopeFromEntry();
    }

    [[nodiscard]] std::vector<std::string> address() const {
        std::vector<std::string> texts;
        for (std::size_t i = kReturnLines; i < kEnvelopeLines; ++i)
            texts.push_back(editor.content().lines.at(i).text);
        return texts;
    }

    std::string printed() {
        EXPECT_EQ(editor.print(), PrintEnd::Printed);
        EXPECT_THAT(desk.messages.takeShown(),
                    ElementsAre("tell|Envelope|Please insert an envelope in your manual feed "
                                "tray, or select your envelope feeder."));
        return desk.printer.takeDump();
    }

    [[nodiscard]] EnvelopeSketch sketch(const EnvelopeSheetSize& sheet = {}) const {
        return sketchEnvelope(editor.content(), readEnvelopeFeed(settings), metrics, sheet);
    }

    test::PrintDesk desk;
    test::FixedPrintMetrics metrics;
    test::FakePhonebookPane pane;
    SelectedEntry entry{state, store, pane};
    FakeFonts fonts;
    EnvelopeEditor editor{{desk.printing, settings, entry, fonts, desk.messages, codePage}};
};

TEST_F(EnvelopeTest, PrintsReturnAddressBarcodeAndAddressInTheMiddleOfTheFeed) {
    editor.load();
    fill("Bellweather, Adrian");
    desk.messages.willAnswer(std::optional<std::string>("60555"));
    editor.formatBarcode();
    (void)desk.messages.takeShown();
    test::expectGolden(printed(), "envelope-center.txt");
    EXPECT_EQ(desk.status.text, "Velmora");
    EXPECT_EQ(desk.printer.Orientation(), PageOrientation::Portrait);
}

TEST_F(EnvelopeTest, PrintsAtTheOtherEdgesAndWithTheTopFeed) {
    editor.load();
    fill("Bellweather, Adrian");
    std::string all;
    for (const char* position : {" left ", "RIGHT", "", "Middle"}) {
        settings.Save("EnvelopePrinting", position);
        settings.Save("EnvTop", *position == 'R' ? "ON" : "OFF");
        all += std::string("\"") + position + "\"\n" + printed();
    }
    test::expectGolden(all, "envelope-positions.txt");
}

TEST_F(EnvelopeTest, LoadsTheFontsAndTheFourthReturnLineHasThoseOfTheThird) {
    settings.Save("RFont3", "Courier New");
    settings.Save("RFontS3", "8.5");
    settings.Save("RFontC3", "255");
    settings.Save("RFont4", "Times");
    settings.Save("AFontS10", "14");
    editor.load();
    const auto& lines = editor.content().lines;
    EXPECT_EQ(lines[2], (EnvelopeLine{"6 Weaver Row", "Courier New", 8.5, 255}));
    EXPECT_EQ(lines[3], (EnvelopeLine{"Pinecroft, IL 60430", "Courier New", 8.5, 255}));
    EXPECT_EQ(lines[1].fontName, "Arial");
    EXPECT_EQ(lines[9].fontSize, 14);
    EXPECT_EQ(lines[9].fontName, "Arial");
}

TEST_F(EnvelopeTest, OddSettingsOfFontsDoNoHarm) {
    settings.Save("RFontS1", "-5");
    settings.Save("RFontC1", "-2147483640");
    settings.Save("RFontC2", "99999999");
    editor.load();
    EXPECT_EQ(editor.content().lines[0].fontSize, 10);
    EXPECT_EQ(editor.content().lines[0].colour, 0);
    EXPECT_EQ(editor.content().lines[1].colour, 0);
}

TEST_F(EnvelopeTest, TheAddressClosesUp) {
    editor.load();
    fill("Bellweather, Adrian");
    EXPECT_THAT(
        address(),
        ElementsAre("Mr. Adrian Bellweather", "Purchasing Manager    Northgate Instruments",
                    "418 Kiln Street", "Suite 12", "Millbrook, IL", "60555", "United States"));
    fill("Acme");
    EXPECT_THAT(address(), ElementsAre("Acme", "", "", "", "", "", ""));
}

TEST_F(EnvelopeTest, WithoutASelectionTheAddressIsEmpty) {
    editor.load();
    fill("Bellweather, Adrian");
    fill("");
    EXPECT_THAT(address(), ElementsAre("", "", "", "", "", "", ""));
    EXPECT_EQ(editor.content().lines[0].text, "H. Marlowe");
}

TEST_F(EnvelopeTest, TheReturnAddressIsKeptWithItsFontsOnlyWhenAsked) {
    editor.load();
    fonts.answer = ControlFont{"Courier New", 7.75, 0x0000FF};
    EXPECT_TRUE(editor.chooseFont(3));
    editor.setText(3, "Elsewhere");
    EXPECT_EQ(settings.Read("RFont4"), "");
    editor.saveReturnAddress();
    EXPECT_EQ(settings.Read("RFont4"), "Courier New");
    EXPECT_EQ(settings.Read("RFontS4"), "7.75");
    EXPECT_EQ(settings.Read("RFontC4"), "255");
    EXPECT_EQ(settings.Read("Return4"), "Elsewhere");
    EXPECT_EQ(settings.Read("RFont1"), "Arial");
    EXPECT_EQ(settings.Read("RFontS1"), "10");
    EXPECT_EQ(settings.Read("RFontC1"), "0");
    // What is kept for the fourth line is never read.
    editor.load();
    EXPECT_EQ(editor.content().lines[3].fontName, "Arial");
    EXPECT_EQ(editor.content().lines[3].text, "Elsewhere");
}

TEST_F(EnvelopeTest, TheFontOfAnAddressLineIsKeptAtOnce) {
    editor.load();
    const char* numbers[] = {"2", "3", "4", "5", "6", "10", "11"};
    for (std::size_t i = 0; i < kAddressLines; ++i) {
        fonts.answer = ControlFont{"Courier New", 4 + static_cast<double>(i), 128};
        EXPECT_TRUE(editor.chooseFont(kReturnLines + i));
        EXPECT_EQ(settings.Read(std::string("AFont") + numbers[i]), "Courier New");
        EXPECT_EQ(settings.Read(std::string("AFontS") + numbers[i]), std::to_string(4 + i));
        EXPECT_EQ(settings.Read(std::string("AFontC") + numbers[i]), "128");
    }
    EXPECT_EQ(fonts.limits, std::pair(4.0, 14.0));
    for (const ControlFont& asked : fonts.asked)
        EXPECT_EQ(asked.name, "Arial") << "the box's own font is not passed in";
}

TEST_F(EnvelopeTest, ACancelledFontDialogChangesNothing) {
    editor.load();
    const EnvelopeContent before = editor.content();
    EXPECT_FALSE(editor.chooseFont(kReturnLines));
    EXPECT_EQ(editor.content(), before);
    EXPECT_EQ(settings.Read("AFont2"), "");
}

TEST_F(EnvelopeTest, AColourThatIsTheControlsOwnIsBlack) {
    editor.load();
    fonts.answer = ControlFont{"Arial", 10, -1};
    EXPECT_TRUE(editor.chooseFont(kReturnLines));
    EXPECT_EQ(settings.Read("AFontC2"), "0");
}

TEST_F(EnvelopeTest, GivingUpTheBarcodeKeepsTheOneThatIsThere) {
    editor.load();
    desk.messages.willAnswer(std::optional<std::string>("12345"));
    editor.formatBarcode();
    desk.messages.willAnswer(std::optional<std::string>(""));
    editor.formatBarcode();
    EXPECT_EQ(editor.content().EnvelopeBarcode, "s123455s");
    editor.load();
    EXPECT_EQ(editor.content().EnvelopeBarcode, "");
}

TEST_F(EnvelopeTest, APrinterThatFailsIsToldOnTheStatusLineAndTheSheetsAreAsBefore) {
    editor.load();
    desk.printer.refusal = "The printer is on fire.";
    EXPECT_EQ(editor.print(), PrintEnd::Failed);
    EXPECT_EQ(desk.status.text, "The printer is on fire.");
    EXPECT_EQ(desk.printer.Orientation(), PageOrientation::Portrait);
}

TEST_F(EnvelopeTest, AClickOnTheCancelIconSendsNothing) {
    editor.load();
    desk.messages.whileOpen([this] { desk.jobs.cancel(); });
    EXPECT_EQ(editor.print(), PrintEnd::Cancelled);
    EXPECT_EQ(desk.printer.takeDump(), "");
}

TEST_F(EnvelopeTest, ThePictureShowsWhatIsPrintedWhere) {
    editor.load();
    fill("Bellweather, Adrian");
    const EnvelopeSketch picture = sketch();
    EXPECT_EQ(editor.print(), PrintEnd::Printed);
    const auto jobs = desk.printer.takeJobs();
    ASSERT_EQ(jobs.at(0).pages.size(), 1U);
    const PrintPage& page = jobs[0].pages[0];
    ASSERT_EQ(picture.texts.size(), page.size());
    for (std::size_t i = 0; i < page.size(); ++i) {
        const auto& text = std::get<PrintedText>(page[i]);
        EXPECT_EQ(picture.texts[i].text.text, text.text);
        EXPECT_EQ(picture.texts[i].text.x, text.x);
        EXPECT_EQ(picture.texts[i].text.y, text.y);
        EXPECT_EQ(picture.texts[i].text.font, text.font);
    }
    EXPECT_TRUE(picture.fits);
}

TEST_F(EnvelopeTest, ThePictureTellsWhatRunsOverTheEdge) {
    editor.load();
    fill("Bellweather, Adrian");
    editor.setText(4, std::string(60, 'M'));  // 12 points, 5.76 inches from 5.0 on
    const EnvelopeSketch wide = sketch();
    EXPECT_FALSE(wide.fits);
    int outside = 0;
    for (const SketchedText& text : wide.texts)
        outside += text.outside ? 1 : 0;
    EXPECT_EQ(outside, 1);
    fill("Bellweather, Adrian");
    settings.Save("EnvelopePrinting", "Right");
    EXPECT_TRUE(sketch().fits);
    EXPECT_FALSE(sketch({.printableHeight = 6}).fits);
}

}  // namespace
}  // namespace velmora
