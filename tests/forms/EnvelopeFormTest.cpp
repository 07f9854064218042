#include <gmock/gmock.h>

#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QSignalSpy>
#include <QTest>
#include <QToolButton>

#include "forms/Widgets.h"
#include "platform/qt/QtText.h"
#include "platform/qt/Theme.h"
#include "reports/forms/Envelope.h"
#include "reports/forms/EnvelopeSheet.h"
#include "support/FakePhonebookPane.h"
#include "support/PhonebookFixture.h"
#include "support/PrintDesk.h"

namespace velmora {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;

struct FakeTargets final : PrintTargets {
    void ask(PageOrientation orientation,
             std::function<void(const std::optional<PrintTarget>&)> known) override {
        asked = orientation;
        answer = std::move(known);
    }
    void forget() override { answer = nullptr; }

    std::optional<PageOrientation> asked;
    std::function<void(const std::optional<PrintTarget>&)> answer;
};

struct FixedFont final : FontQuestion {
    std::optional<ControlFont> choose(const ControlFont&, double, double) override {
        return answer;
    }
    std::optional<ControlFont> answer;
};

PrintTarget letterTarget() {
    return {.printer = "Laser 2",
            .paper = "Letter",
            .width = 11,
            .height = 8.5,
            .left = 0.25,
            .top = 0.25,
            .printableWidth = 10.5,
            .printableHeight = 8};
}

class EnvelopeFormTest : public testing::Test, protected test::PhonebookFixture {
  protected:
    EnvelopeFormTest() {
        PhonebookRecord record = test::personRecord("Bellweather", "Adrian");
        record.assign(Field::Address1, "418 Kiln Street");
        yellow() = test::bytesOf(record);
        settings.Save("Return1", "H. Marlowe");
        editor.load();
        form = std::make_unique<Envelope>(
            Envelope::Parts{editor, settings, metrics, targets, desk.status, codePage});
    }

    void present(const std::string& line = "Bellweather, Adrian") {
        pane.selected = line;
        form->present();
        ASSERT_TRUE(QTest::qWaitForWindowExposed(form.get()));
    }
    QLineEdit& box(const char* name) { return test::named<QLineEdit>(*form, name); }
    void click(const char* name) {
        QTest::mouseClick(&test::named<QAbstractButton>(*form, name), Qt::LeftButton);
    }
    [[nodiscard]] std::string where() {
        return test::named<QLabel>(*form, "where").text().toStdString();
    }
    // Pixels of the picture in the colour of what runs over the edge.
    [[nodiscard]] int red() {
        const QImage picture = test::named<EnvelopeSheet>(*form, "sheet").grab().toImage();
        int count = 0;
        for (int y = 0; y < picture.height(); ++y)
            for (int x = 0; x < picture.width(); ++x) {
                const QColor colour = picture.pixelColor(x, y);
                count += colour.red() > colour.green() + 60 ? 1 : 0;
            }
        return count;
    }

    test::PrintDesk desk;
    test::FixedPrintMetrics metrics;
    test::FakePhonebookPane pane;
    SelectedEntry entry{state, store, pane};
    FixedFont fonts;
    FakeTargets targets;
    EnvelopeEditor editor{{desk.printing, settings, entry, fonts, desk.messages, codePage}};
    std::unique_ptr<Envelope> form;
};

TEST_F(EnvelopeFormTest, OpensWithBothAddressesAndTheFocusInTheAddress) {
    present();
    EXPECT_EQ(form->windowTitle(), QStringLiteral("Create Envelope"));
    EXPECT_EQ(box("Text1").text(), QStringLiteral("H. Marlowe"));
    EXPECT_EQ(box("Text2").text(), QStringLiteral("Adrian Bellweather"));
    EXPECT_EQ(box("Text3").text(), QStringLiteral("418 Kiln Street"));
    EXPECT_EQ(box("Text11").text(), QString());
    EXPECT_TRUE(box("Text2").hasFocus());
    std::vector<std::string> captions;
    for (const char* name : {"Command1", "Command2", "Command3", "Command4", "Command5"})
        captions.push_back(test::named<QPushButton>(*form, name).text().toStdString());
    EXPECT_THAT(captions, ElementsAre("&Barcode Zipcode", "&Cancel",
                                      "&Save Return Address as Default", "&Preferences", "Print"));
}

TEST_F(EnvelopeFormTest, TheTabKeyGoesThroughTheLinesInPrintOrderThenTheirFonts) {
    present();
    box("Text1").setFocus();
    for (const char* next : {"Text7", "Text8", "Text9", "Text2", "Text3", "Text4", "Text5", "Text6",
                             "Text10", "Text11", "Toolbar1", "Toolbar2"}) {
        QTest::keyClick(form->focusWidget(), Qt::Key_Tab);
        EXPECT_EQ(form->focusWidget()->objectName().toStdString(), next);
    }
}

TEST_F(EnvelopeFormTest, SaysWhereTheJobWillGo) {
    present();
    EXPECT_EQ(where(), "To: ...");
    EXPECT_EQ(targets.asked, PageOrientation::Landscape);
    targets.answer(letterTarget());
    EXPECT_EQ(where(), "To: Laser 2, Letter");
    targets.answer(std::nullopt);
    EXPECT_EQ(where(), "The print system does not answer.");
}

TEST_F(EnvelopeFormTest, ThePictureFollowsEachKeystroke) {
    present();
    targets.answer(letterTarget());
    const QImage before = test::named<EnvelopeSheet>(*form, "sheet").grab().toImage();
    QTest::keyClicks(&box("Text4"), QStringLiteral("W"));
    EXPECT_NE(test::named<EnvelopeSheet>(*form, "sheet").grab().toImage(), before);
    EXPECT_EQ(editor.content().lines[6].text, "W");
}

TEST_F(EnvelopeFormTest, WhatRunsOverTheEdgeIsRedAndPrintsAllTheSame) {
    present();
    targets.answer(letterTarget());
    EXPECT_EQ(red(), 0);
    box("Text2").setText(QString(90, u'M'));
    EXPECT_GT(red(), 0);
    EXPECT_EQ(where(), "To: Laser 2, Letter: red runs over the edge");
    click("Command5");
    EXPECT_EQ(desk.printer.takeJobs().size(), 1U);
}

TEST_F(EnvelopeFormTest, PaperThatIsTooSmallIsRed) {
    present();
    PrintTarget small = letterTarget();
    small.printableHeight = 4;
    targets.answer(small);
    EXPECT_GT(red(), 0);
    EXPECT_THAT(where(), HasSubstr("red"));
}

TEST_F(EnvelopeFormTest, PrintHidesTheFormAndKeepsWhatWasTyped) {
    present();
    QSignalSpy unloaded(form.get(), &Envelope::unloaded);
    box("Text9").setText(QStringLiteral("typed"));
    click("Command5");
    EXPECT_FALSE(form->isVisible());
    EXPECT_EQ(unloaded.count(), 0);
    EXPECT_EQ(desk.printer.takeJobs().at(0).orientation, PageOrientation::Landscape);
    EXPECT_EQ(desk.status.text, "Velmora");
    present("");
    EXPECT_EQ(box("Text9").text(), QStringLiteral("typed"));
    EXPECT_EQ(box("Text2").text(), QString());
}

TEST_F(EnvelopeFormTest, AFormWhoseJobFailedStays) {
    present();
    desk.printer.refusal = "The printer is on fire.";
    click("Command5");
    EXPECT_TRUE(form->isVisible());
    EXPECT_EQ(desk.status.text, "The printer is on fire.");
}

TEST_F(EnvelopeFormTest, CancelAndEscapeUnloadTheForm) {
    present();
    QSignalSpy unloaded(form.get(), &Envelope::unloaded);
    click("Command2");
    EXPECT_EQ(unloaded.count(), 1);
    present();
    QTest::keyClick(form.get(), Qt::Key_Escape);
    EXPECT_EQ(unloaded.count(), 2);
    EXPECT_FALSE(targets.answer) << "an answer would find no form";
}

TEST_F(EnvelopeFormTest, TheBarcodeShowsAboveTheAddress) {
    present();
    desk.messages.willAnswer(std::optional<std::string>("60555"));
    click("Command1");
    EXPECT_EQ(test::named<QLabel>(*form, "Label1").text(), QStringLiteral("s605559s"));
}

TEST_F(EnvelopeFormTest, AChosenFontShowsInItsBox) {
    present();
    fonts.answer = ControlFont{"Liberation Mono", 14, 0x0000FF};
    click("Toolbar5");
    EXPECT_EQ(box("Text2").font().family(), QStringLiteral("Liberation Mono"));
    EXPECT_EQ(box("Text2").font().pointSizeF(), 14);
    EXPECT_EQ(box("Text2").palette().color(QPalette::Text), QColor(255, 0, 0));
    EXPECT_EQ(settings.Read("AFont2"), "Liberation Mono");
}

TEST_F(EnvelopeFormTest, ACharacterThatCanNotBeStoredIsReplacedAtOnce) {
    present();
    box("Text5").setText(QStringLiteral("\u4E2D"));
    EXPECT_EQ(box("Text5").text(), QStringLiteral("?"));
    EXPECT_EQ(desk.status.text, kCharacterReplaced);
}

TEST_F(EnvelopeFormTest, ABookThatCanNotBeReadLeavesAnEmptyAddress) {
    present();
    files.unreachable = true;
    EXPECT_THROW(form->present(), Failure);
    EXPECT_EQ(box("Text2").text(), QString());
}

}  // namespace
}  // namespace velmora
