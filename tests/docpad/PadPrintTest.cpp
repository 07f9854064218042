#include "docpad/PadPrint.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "docpad/PadFakes.h"
#include "support/FakeClock.h"
#include "support/MemorySettings.h"
#include "support/PrintDesk.h"

namespace velmora {
namespace {

using namespace std::chrono_literals;

// In this size a line is exactly a quarter of an inch high.
constexpr double kQuarterInch = 15.625;

struct FakeFont final : FontHolder {
    [[nodiscard]] ControlFont font() const override { return now; }
    void setFont(const ControlFont& font) override { now = font; }
    ControlFont now{"Courier New", kQuarterInch, 0x0000FF};
};

class PadPrintTest : public testing::Test {
  protected:
    PadPrintTest() {
        clock.set(std::chrono::year(2001) / 3 / 9, 14h);
        settings.Save("Header", "0");
    }

    // Prints a text, which succeeds; gives the texts of each page as they were printed, with the
    // head's if there is one.
    std::vector<std::string> pagesOf(const std::string& bytes) {
        text.text = bytes;
        EXPECT_TRUE(printing.PrintDocPad());
        std::vector<std::string> pages;
        for (const PrintJob& job : printer.takeJobs())
            for (const PrintPage& page : job.pages) {
                std::string all;
                for (const auto& mark : page)
                    all += (all.empty() ? "" : "|") + std::get<PrintedText>(mark).text;
                pages.push_back(all);
            }
        return pages;
    }

    // How many bytes of the text each page has. Each line of it tells its own number.
    static std::string lines(int count, int width) {
        std::string result;
        for (int i = 0; i < count; ++i) {
            std::string line =
                std::to_string(i) + std::string(static_cast<std::size_t>(width), '.');
            result += line.substr(0, static_cast<std::size_t>(width)) + "\r\n";
        }
        return result;
    }

    test::PrintDesk desk;
    test::FakePrintSurface& printer = desk.printer;
    test::FakeEventLoop& loop = desk.loop;
    test::FakeStatusLine& status = desk.status;
    test::FakeMessages& messages = desk.messages;
    test::FakePadText text;
    FakeFont font;
    DialogState dialog{messages};
    test::MemorySettings medium;
    SettingsStore settings{medium};
    test::FakeClock clock;
    LocaleFormats locale;
    PadPrint printing{
        {desk.printing, text, font, dialog, settings, clock, locale, CodePage::western()}};
};

TEST_F(PadPrintTest, PrintsTheTextInItsFontInBlackFromHalfAnInchOn) {
    text.text = "Dear Clara,\r\nthank you.";
    EXPECT_TRUE(printing.PrintDocPad());
    EXPECT_EQ(printer.takeDump(),
              "printer Pocket, portrait\n"
              "page 1\n"
              "0.000 0.500 Courier New 15.625 |Dear Clara,|\n"
              "0.000 0.750 Courier New 15.625 |thank you.|\n");
    EXPECT_EQ(status.text, "Velmora");
}

TEST_F(PadPrintTest, WithAHeadTheTextBeginsAtOneInch) {
    settings.Save("Header", " 1 ");
    messages.willAnswer(std::optional<std::string>("/home/jo/lett\xE9r.txt"));
    dialog.showOpen();
    text.text = "Dear Clara,";
    EXPECT_TRUE(printing.PrintDocPad());
    EXPECT_EQ(printer.takeDump(),
              "printer Pocket, portrait\n"
              "page 1\n"
              "0.000 0.500 Courier New 15.625 |LETTÉR.TXT     03-09-2001     Page # 1 of 1|\n"
              "0.000 1.000 Courier New 15.625 |Dear Clara,|\n");
}

TEST_F(PadPrintTest, WithoutASettingThereIsAHeadAndWithoutANameItSaysUntitled) {
    settings.Delete("Header");
    EXPECT_EQ(pagesOf("a"),
              std::vector<std::string>{"UNTITLED     03-09-2001     Page # 1 of 1|a"});
}

TEST_F(PadPrintTest, TheHeadIsOnOnlyWhenTheSettingSaysOne) {
    for (const char* value : {"0", "YES", "-1", "10"}) {
        settings.Save("Header", value);
        EXPECT_EQ(pagesOf("a"), std::vector<std::string>{"a"}) << value;
    }
}

TEST_F(PadPrintTest, AnEmptyTextIsAPageWithItsHeadOnlyOrNothing) {
    settings.Save("Header", "1");
    EXPECT_EQ(pagesOf(""), std::vector<std::string>{"UNTITLED     03-09-2001     Page # 1 of 1"});
    settings.Save("Header", "0");
    EXPECT_EQ(pagesOf(""), std::vector<std::string>{});
    EXPECT_EQ(status.text, "Velmora");
}

struct Paged {
    std::string text;
    std::vector<std::size_t> bytes;  // on each page
};

TEST_F(PadPrintTest, PagesEndWhereTheirHeightIsReached) {
    const auto repeated = [](const std::string& piece, int count) {
        std::string result;
        for (int i = 0; i < count; ++i)
            result += piece;
        return result;
    };
    const std::vector<Paged> all{
        {lines(60, 18), {700, 500}},
        {lines(60, 15), {600, 420}},
        {repeated("a\r\n", 60), {110, 70}},
        {lines(34, 18), {670, 10}},
        {lines(33, 18), {660}},
        {lines(100, 28), {1050, 1050, 900}},
        {repeated("\r\n", 72) + std::string(288, 'x'), {144, 284, 4}},
        {std::string(596, 'x') + repeated("\r\n", 80), {672, 84, 0}},
        {repeated("\r\n", 40) + std::string(81, 'x'), {80, 80}},
    };
    for (const Paged& each : all) {
        // What is printed next comes on a page of its own, or below what is there.
        std::vector<std::string> expected;
        std::size_t at = 0;
        for (const std::size_t count : each.bytes) {
            expected.push_back(each.text.substr(std::min(at, each.text.size()), count));
            at += count;
        }
        struct Recorder final : test::FixedPrintMetrics, test::FakePrinters, PrintRecorder {
            Recorder() : PrintRecorder(static_cast<PrintMetrics&>(*this), *this) {}
            void Print(const std::string& printed) override {
                texts.push_back(printed);
                PrintRecorder::Print(printed);
            }
            std::vector<std::string> texts;
        } recorder;
        text.text = each.text;
        PrintJobs ownPrinting{{recorder, desk.jobs, messages, CodePage::western()}};
        PadPrint recording{
            {ownPrinting, text, font, dialog, settings, clock, locale, CodePage::western()}};
        EXPECT_TRUE(recording.PrintDocPad());
        EXPECT_EQ(recorder.texts, expected) << each.text.size() << " bytes";
    }
}

TEST_F(PadPrintTest, EachPageHasItsHeadAndItsNumber) {
    settings.Save("Header", "1");
    const std::vector<std::string> pages = pagesOf(lines(60, 18));
    ASSERT_EQ(pages.size(), 2U);
    EXPECT_TRUE(pages[0].starts_with("UNTITLED     03-09-2001     Page # 1 of 2|0..."));
    EXPECT_TRUE(pages[1].starts_with("UNTITLED     03-09-2001     Page # 2 of 2|35..."));
}

TEST_F(PadPrintTest, WithoutWordWrapALongLineIsLeftToThePrinter) {
    EXPECT_EQ(pagesOf(std::string(300, 'x')), std::vector<std::string>{std::string(300, 'x')});
}

TEST_F(PadPrintTest, WordWrapCutsLinesAtTheCapacityMeasuredInTenPoints) {
    settings.Save("Wordwrap", "1");
    // 102 letters of 0.08 inches are the first that are 8.1 inches wide.
    EXPECT_EQ(pagesOf(std::string(250, 'x')),
              std::vector<std::string>{std::string(102, 'x') + "|" + std::string(102, 'x') + "|" +
                                       std::string(46, 'x')});
    EXPECT_EQ(pagesOf(std::string(102, 'x')), std::vector<std::string>{std::string(102, 'x')});
    // A line end stays where it is, and counts as two of the characters.
    EXPECT_EQ(pagesOf("ab\r\n" + std::string(100, 'x')),
              std::vector<std::string>{"ab|" + std::string(98, 'x') + "|xx"});
}

TEST_F(PadPrintTest, WordWrapLeavesAnEmptyTextEmpty) {
    settings.Save("Wordwrap", "1");
    EXPECT_EQ(pagesOf(""), std::vector<std::string>{});
}

TEST_F(PadPrintTest, PrintsOnPortraitAndPutsTheOrientationBack) {
    printer.SetOrientation(PageOrientation::Landscape);
    text.text = "a";
    EXPECT_TRUE(printing.PrintDocPad());
    EXPECT_EQ(printer.takeJobs().at(0).orientation, PageOrientation::Portrait);
    EXPECT_EQ(printer.Orientation(), PageOrientation::Landscape);
}

TEST_F(PadPrintTest, ACancelledJobSendsNothingAndSaysThatTheTextWasNotPrinted) {
    text.text = lines(200, 18);
    loop.onYield = [this] {
        EXPECT_TRUE(desk.icon.shown);
        loop.onYield = nullptr;
        desk.jobs.cancel();
    };
    EXPECT_FALSE(printing.PrintDocPad());
    EXPECT_EQ(printer.takeDump(), "");
    EXPECT_FALSE(desk.icon.shown);
    EXPECT_EQ(status.text, "Velmora");
    EXPECT_EQ(pagesOf("next").size(), 1U);
}

TEST_F(PadPrintTest, TheEndOfTheProgramCancelsTheJob) {
    text.text = lines(200, 18);
    loop.onYield = [this] { loop.isClosing = true; };
    EXPECT_FALSE(printing.PrintDocPad());
    EXPECT_EQ(printer.takeDump(), "");
}

TEST_F(PadPrintTest, EventsRunAtEachPageWhateverItsFirstTryGives) {
    // Two pages of which each is too high at once.
    text.text = std::string();
    for (int i = 0; i < 72; ++i)
        text.text += "\r\n";
    text.text += std::string(288, 'x');
    desk.cancelInYield(1);
    EXPECT_FALSE(printing.PrintDocPad());
    EXPECT_EQ(printer.takeDump(), "");
}

TEST_F(PadPrintTest, SetsScaleFontAndPlaceAnewOnEachPage) {
    struct Recorder final : test::FixedPrintMetrics, test::FakePrinters, PrintRecorder {
        Recorder() : PrintRecorder(static_cast<PrintMetrics&>(*this), *this) {}
        void SetScaleMode(int mode) override { log += "scale " + std::to_string(mode) + ","; }
        void SetFontName(const std::string& name) override {
            log += name + ",";
            PrintRecorder::SetFontName(name);
        }
        void NewPage() override {
            log += "page,";
            PrintRecorder::NewPage();
        }
        std::string log;
    } recorder;
    PrintJobs ownPrinting{{recorder, desk.jobs, messages, CodePage::western()}};
    PadPrint recording{
        {ownPrinting, text, font, dialog, settings, clock, locale, CodePage::western()}};
    text.text = lines(60, 18);
    EXPECT_TRUE(recording.PrintDocPad());
    EXPECT_EQ(recorder.log, "scale 5,Courier New,page,scale 5,Courier New,");
}

TEST_F(PadPrintTest, TheJobIsNamedAfterTheDocument) {
    text.text = "a";
    EXPECT_TRUE(printing.PrintDocPad());
    EXPECT_EQ(printer.takeJobs().at(0).title, "Velmora: Untitled");
}

TEST_F(PadPrintTest, WhatIsTypedMeanwhileIsNotForThisJob) {
    text.text = "before";
    loop.onYield = [this] { text.text = "after"; };
    EXPECT_TRUE(printing.PrintDocPad());
    EXPECT_EQ(std::get<PrintedText>(printer.takeJobs().at(0).pages.at(0).at(0)).text, "before");
}

TEST_F(PadPrintTest, AnotherJobIsRefusedWhileOneRuns) {
    text.text = "a";
    bool second = true;
    loop.onYield = [&] {
        loop.onYield = nullptr;
        second = printing.PrintDocPad();
        EXPECT_EQ(status.text, "Velmora is still busy with a job. Try again when it is done.");
    };
    EXPECT_TRUE(printing.PrintDocPad());
    EXPECT_FALSE(second);
    EXPECT_EQ(printer.takeJobs().size(), 1U);
}

TEST_F(PadPrintTest, APrinterThatFailsIsToldAndAFileThatIsNotNamedIsNot) {
    text.text = "a";
    printer.refusal = "The printer is on fire.";
    EXPECT_FALSE(printing.PrintDocPad());
    EXPECT_EQ(messages.takeShown(),
              std::vector<std::string>{"error|Velmora|The printer is on fire."});
    printer.refusal.clear();
    printer.calledOff = true;
    EXPECT_FALSE(printing.PrintDocPad());
    EXPECT_TRUE(messages.takeShown().empty());
}

}  // namespace
}  // namespace velmora
