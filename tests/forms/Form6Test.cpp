#include "reports/forms/Form6.h"

#include <gmock/gmock.h>

#include <QLabel>
#include <QPushButton>
#include <QRadioButton>
#include <memory>

#include "forms/Widgets.h"
#include "platform/qt/Theme.h"
#include "reports/ReportFixture.h"
#include "reports/forms/ChoiceTile.h"

namespace velmora {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

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

class Form6Test : public testing::Test, protected test::ReportFixture {
  protected:
    Form6Test() {
        yellow() = test::people(1);
        white() = test::people(1);
    }

    void open(ReportKind kind = ReportKind::Complete) {
        reports.begin(kind);
        form.present();
        ASSERT_TRUE(QTest::qWaitForWindowActive(&form));
    }

    QRadioButton& option(const char* name) { return test::named<QRadioButton>(form, name); }
    QPushButton& button(const char* name) { return test::named<QPushButton>(form, name); }

    std::vector<std::string> titles() {
        std::vector<std::string> result;
        for (const PrintJob& job : desk.printer.takeJobs())
            result.push_back(job.title);
        return result;
    }

    Reports reports{parts,
                    desk.status,
                    {.mergePrint = [](ReportBooks) {}, .endProgram = [](const std::string&) {}}};
    FakeTargets targets;
    Form6 form{reports, targets, CodePage::western()};
};

TEST_F(Form6Test, ShowsItsChoicesWithNormalPagesAndNoBookChosen) {
    open();
    EXPECT_EQ(form.windowTitle(), "Print");
    struct Row {
        const char* name;
        const char* caption;
    };
    for (const Row& row :
         {Row{"Option1", "&Yellow Pages Only"}, Row{"Option2", "&White Pages Only"},
          Row{"Option3", "&Both"}, Row{"Option4", "Normal; 8.5\" X 11\""},
          Row{"Option5", "Pocket; 5.5\" X 8.0\""}, Row{"Option6", "Mini; 3.2\" X 5.0\""}}) {
        EXPECT_EQ(option(row.name).text().toStdString(), row.caption);
        EXPECT_EQ(option(row.name).isChecked(), std::string(row.name) == "Option4") << row.name;
        EXPECT_LE(option(row.name).sizeHint().width(), option(row.name).width()) << row.name;
    }
    EXPECT_EQ(button("Command1").text(), "&Print");
    EXPECT_EQ(button("Command2").text(), "&Cancel");
    EXPECT_TRUE(option("Option1").hasFocus());
    EXPECT_TRUE(form.isModal());
    EXPECT_THAT(test::named<QLabel>(form, "Label1").text().toStdString(),
                testing::StartsWith("The formats provided fit most planners"));
}

TEST_F(Form6Test, PrintsTheChoiceAndCloses) {
    open();
    QTest::mouseClick(&option("Option2"), Qt::LeftButton, {}, option("Option2").rect().center());
    QTest::mouseClick(&option("Option6"), Qt::LeftButton, {}, option("Option6").rect().topLeft());
    EXPECT_TRUE(option("Option2").isChecked());
    EXPECT_FALSE(option("Option4").isChecked());
    bool shownMeanwhile = true;
    desk.loop.onYield = [&] { shownMeanwhile = form.isVisible(); };
    QTest::mouseClick(&button("Command1"), Qt::LeftButton);
    EXPECT_THAT(titles(), ElementsAre("Velmora: Complete Report, White Pages"));
    EXPECT_FALSE(shownMeanwhile);
    EXPECT_FALSE(form.isVisible());
}

TEST_F(Form6Test, IsWorkedByKeysAlone) {
    open(ReportKind::Listing);
    QTest::keyClick(&form, Qt::Key_B, Qt::AltModifier);
    ASSERT_TRUE(QTest::qWaitFor([&] { return option("Option3").isChecked(); }));
    QTest::keyClick(&option("Option3"), Qt::Key_Return);
    EXPECT_THAT(titles(), ElementsAre("Velmora: Telecommunications Listing, Yellow Pages",
                                      "Velmora: Telecommunications Listing, White Pages"));
}

TEST_F(Form6Test, WithoutABookItStaysOpenAndPrintsNothingAnyMore) {
    open();
    QTest::mouseClick(&button("Command1"), Qt::LeftButton);
    EXPECT_TRUE(form.isVisible());
    QTest::mouseClick(&option("Option1"), Qt::LeftButton);
    QTest::mouseClick(&button("Command1"), Qt::LeftButton);
    EXPECT_TRUE(form.isVisible());
    EXPECT_THAT(titles(), IsEmpty());
    QTest::mouseClick(&button("Command2"), Qt::LeftButton);
    EXPECT_FALSE(form.isVisible());
}

TEST_F(Form6Test, CancelEscapeAndTheFrameForgetWhatItWasOpenedFor) {
    const std::function<void()> ways[] = {
        [&] { QTest::mouseClick(&button("Command2"), Qt::LeftButton); },
        [&] { QTest::keyClick(&option("Option1"), Qt::Key_Escape); },
        [&] { form.close(); },
    };
    for (const auto& way : ways) {
        open();
        way();
        EXPECT_FALSE(form.isVisible());
        EXPECT_FALSE(desk.printing.state().ReportPending);
    }
}

TEST_F(Form6Test, BeginsAnewEachTime) {
    open();
    option("Option1").setChecked(true);
    option("Option5").setChecked(true);
    form.reject();
    open();
    EXPECT_FALSE(option("Option1").isChecked());
    EXPECT_TRUE(option("Option4").isChecked());
}

TEST_F(Form6Test, TellsWhereThePagesWillGo) {
    open();
    const QLabel& where = test::named<QLabel>(form, "where");
    EXPECT_EQ(targets.asked, PageOrientation::Portrait);
    PrintTarget target;
    target.printer = "Laser 2";
    target.paper = "A4";
    targets.answer(target);
    EXPECT_EQ(where.text(), "To: Laser 2, A4");
    targets.answer(std::nullopt);
    EXPECT_EQ(where.text(), "The print system does not answer.");
    form.reject();
    EXPECT_FALSE(targets.answer);
}

TEST(ChoiceTileTest, WhatIsNotChosenIsNoDarkDiscOnATileThatIsLightInTheDark) {
    for (const ChoiceTile::Look look :
         {ChoiceTile::Look::YellowPages, ChoiceTile::Look::WhitePages}) {
        ChoiceTile tile("Option", QStringLiteral("Pages"), look, nullptr);
        tile.setPalette(Theme::dark().toPalette());
        tile.resize(200, 40);
        const QColor middle = tile.grab().toImage().pixelColor(20, 20);
        EXPECT_EQ(middle, Theme::light().surface);
    }
}

}  // namespace
}  // namespace velmora
