#include "exchange/forms/DataImport.h"

#include <gmock/gmock.h>

#include <QLabel>
#include <QPushButton>
#include <QRadioButton>
#include <string>

#include "core/DataLocations.h"
#include "exchange/TextBytes.h"
#include "forms/Widgets.h"
#include "platform/controls/DialogFooter.h"
#include "platform/controls/EntryList.h"
#include "platform/controls/ProgressLine.h"
#include "support/FakeAccessReader.h"
#include "support/PhonebookFixture.h"
#include "support/PrintDesk.h"

namespace velmora {
namespace {

struct NoCopies final : CopiesBeforeImport {
    std::string copyBook(const std::string&, const std::function<bool()>&) override {
        return "/velmora/copy";
    }
};

struct PlainPaths final : SystemPaths {
    [[nodiscard]] NativePath nativePath(const std::string& path) const override {
        return NativePath(path);
    }
};

class DataImportTest : public testing::Test, protected test::PhonebookFixture {
  protected:
    void begin(const std::string& text, bool yellow = true) {
        bytes.files["/list.csv"] = text;
        desk.messages.willAnswer(std::optional<std::string>("/list.csv"));
        desk.messages.willAnswer(false);
        ASSERT_TRUE(wizard.begin());
        form.presentFor(yellow);
        ASSERT_TRUE(QTest::qWaitForWindowActive(&form));
    }

    void answer() {
        QTest::keyClick(&list, Qt::Key_Return);
        QCoreApplication::processEvents();
    }

    void answerAll(int questions = 25) {
        desk.messages.willAnswer(true);
        for (int question = 0; question < questions; ++question)
            answer();
    }

    std::string text(const char* name) {
        return test::named<QLabel>(form, name).text().toStdString();
    }
    QPushButton& button(const char* name) { return test::named<QPushButton>(form, name); }

    test::PrintDesk desk;
    test::TextBytes bytes;
    NoCopies copies;
    PlainPaths paths;
    test::FakeAccessReader access;
    std::function<void()> whileImporting;
    ImportWizard wizard{
        {desk.jobs, desk.messages, store, settings, copies, paths, bytes.opener(),
         [](std::function<void()>) { return std::make_unique<test::FakeAccessReader>(); }, [] {}}};
    DataImport form{
        wizard,
        [this](const std::string& book, const std::function<void(const ImportRun::State&)>& tell) {
            return wizard.import(book, [&](const ImportRun::State& state) {
                tell(state);
                if (whileImporting)
                    whileImporting();
            });
        },
        CodePage::western()};
    EntryList& list = test::named<EntryList>(form, "List1");
};

TEST_F(DataImportTest, AsksTheFirstQuestionWithTheLikelyLineSelected) {
    begin("Title,Vorname\nMr.,Al\nMrs.,Bo\n", false);
    EXPECT_EQ(form.windowTitle(), "Import Wizard");
    EXPECT_EQ(text("Label1"),
              "Which field from the list below represents the title field, for example, Mr.?");
    EXPECT_EQ(text("Label3"), "Double-Click Your Selection:");
    EXPECT_EQ(list.selectedLine(), "Title");
    EXPECT_TRUE(list.hasFocus());
    EXPECT_EQ(text("Sample"), "Mr.  |  Mrs.");
    EXPECT_EQ(test::named<ProgressLine>(form, "Steps").permille(), 40);
    EXPECT_TRUE(test::named<QRadioButton>(form, "Option2").isChecked());
    EXPECT_EQ(test::named<QRadioButton>(form, "Option1").text(), "Import to Yellow Pages");
    EXPECT_EQ(test::named<QRadioButton>(form, "Option2").text(), "Import to White Pages");
    EXPECT_FALSE(button("Command2").isVisible());
    EXPECT_FALSE(button("Command3").isVisible());
    EXPECT_EQ(button("Command1").text(), "&Cancel");
    EXPECT_FALSE(test::named<QLabel>(form, "Remark").isVisible());
    EXPECT_EQ(form.size(), QSize(500, 522));
}

TEST_F(DataImportTest, EnterAndADoubleClickAnswer) {
    begin("Title,Vorname\nMr.,Al\n");
    answer();
    EXPECT_EQ(wizard.step(), 2);
    EXPECT_EQ(list.selectedLine(), "Vorname");
    const QPoint place = list.visualRect(list.model()->index(0, 0)).center();
    QTest::mouseClick(list.viewport(), Qt::LeftButton, {}, place);
    EXPECT_EQ(wizard.step(), 2) << "a click selects only";
    QTest::mouseDClick(list.viewport(), Qt::LeftButton, {}, place);
    QTest::mouseRelease(list.viewport(), Qt::LeftButton, {}, place);
    QCoreApplication::processEvents();
    EXPECT_EQ(wizard.step(), 3);
    EXPECT_EQ(list.selectedLine(), "None");
}

TEST_F(DataImportTest, OneOfTwoColumnsOfTheSameNameIsTakenByItsPlace) {
    begin("Title,Vorname,Title\nMr.,Al,CEO\n");
    list.setCurrentIndex(list.model()->index(2, 0));
    EXPECT_EQ(text("Sample"), "CEO");
    answer();
    answerAll(24);
    button("Command3").click();
    EXPECT_EQ(PhonebookRecord(yellow()).text(Field::Title), "CEO");
}

TEST_F(DataImportTest, SaysThatQuotesAreNotInterpreted) {
    begin("A,B\n\"x\",y\n");
    EXPECT_TRUE(test::named<QLabel>(form, "Remark").isVisible());
    EXPECT_NE(text("Remark").find("tab-delimited"), std::string::npos);
}

TEST_F(DataImportTest, BehindTheLastQuestionTheImportButtonShows) {
    begin("First,Last\nAnn,Smith\n");
    answerAll();
    EXPECT_EQ(desk.messages.takeShown().back(),
              "tell|Velmora|Press the Import Button to begin importing.");
    EXPECT_TRUE(button("Command3").isVisible());
    EXPECT_FALSE(button("Command2").isVisible());
    EXPECT_EQ(button("Command3").text(), "&Import!");
    EXPECT_TRUE(button("Command3").isDefault());
}

TEST_F(DataImportTest, TheKeyThatAnswersTheLastQuestionDoesNotImport) {
    begin("First,Last\nAnn,Smith\n");
    answerAll();
    EXPECT_EQ(wizard.stage(), ImportWizard::Stage::Ready);
    EXPECT_EQ(yellow(), "");
    list.setFocus();
    list.setCurrentIndex(list.model()->index(0, 0));
    desk.messages.takeShown();
    answer();
    EXPECT_EQ(desk.messages.takeShown().size(), 15U) << "the answers";
    EXPECT_EQ(yellow(), "");
}

TEST_F(DataImportTest, ImportsAndSaysWhatItDid) {
    begin("First,Last\nAnn,Smith\nBob,Jones\n", false);
    answerAll();
    whileImporting = [this] {
        EXPECT_FALSE(list.isVisible());
        EXPECT_FALSE(button("Command1").isVisible());
        EXPECT_TRUE(text("Label2").starts_with("IMPORTING DATA... Please Wait Until Completed."));
    };
    QTest::mouseClick(&button("Command3"), Qt::LeftButton);
    EXPECT_EQ(white().size(), 2 * kRecordSize);
    EXPECT_EQ(yellow(), "");
    EXPECT_EQ(text("Label2"), " F I N I S H E D !");
    EXPECT_EQ(text("Note"),
              "2 entries added, 0 replaced. The phonebook as it was before: /velmora/copy");
    EXPECT_EQ(test::named<ProgressLine>(form, "Progress").permille(), 1000);
    EXPECT_EQ(button("Command1").text(), "Close");
    EXPECT_TRUE(button("Command1").isVisible());
    EXPECT_LT(form.height(), 260);
    QTest::keyClick(&button("Command1"), Qt::Key_Return);
    EXPECT_FALSE(form.isVisible());
}

TEST_F(DataImportTest, TheRecordAndTheBytesShowOnTheWay) {
    std::string rows = "First,Last\n";
    for (int i = 0; i < 2000; ++i)
        rows += "Ann," + std::to_string(i) + "\n";
    begin(rows);
    answerAll();
    bool told = false;
    int height = 0;
    whileImporting = [&] {
        told = told || text("Label2").starts_with(
                           "IMPORTING DATA... Please Wait Until Completed.  Record #");
        QCoreApplication::processEvents();
        height = form.height();
    };
    button("Command3").click();
    EXPECT_TRUE(told);
    EXPECT_EQ(height, 134);
}

TEST_F(DataImportTest, ClosingItEndsTheImportBehindTheRowInHandAndClosesThen) {
    std::string rows = "First,Last\n";
    for (int i = 0; i < 5000; ++i)
        rows += "Ann," + std::to_string(i) + "\n";
    begin(rows);
    answerAll();
    whileImporting = [this] {
        EXPECT_FALSE(form.close());
        EXPECT_TRUE(form.isVisible());
    };
    button("Command3").click();
    EXPECT_FALSE(form.isVisible());
    EXPECT_GT(yellow().size(), 0U);
    EXPECT_LT(yellow().size(), 5000 * kRecordSize);
    EXPECT_EQ(yellow().size() % kRecordSize, 0U);
}

TEST_F(DataImportTest, AnImportThatFailsSaysSoAndWhy) {
    begin("First,Last\nAnn,Smith\n");
    answerAll();
    files.writesUntilFailure = 0;
    button("Command3").click();
    EXPECT_EQ(text("Label2"), "The import did not come to its end.");
    EXPECT_NE(text("Note").find("No space left on device."), std::string::npos);
}

TEST_F(DataImportTest, ItBeginsAnewAfterAnImport) {
    begin("First,Last\nAnn,Smith\n");
    answerAll();
    button("Command3").click();
    form.close();
    begin("First,Last,Zip\nAnn,Smith,1\n");
    EXPECT_TRUE(list.isVisible());
    EXPECT_TRUE(test::named<QLabel>(form, "Label1").isVisible());
    EXPECT_FALSE(test::named<QLabel>(form, "Label2").isVisible());
    EXPECT_EQ(button("Command1").text(), "&Cancel");
    EXPECT_EQ(list.lines().size(), 4U);
    EXPECT_EQ(form.size(), QSize(500, 522));
}

TEST_F(DataImportTest, CancelClosesAtAnyQuestion) {
    begin("First,Last\nAnn,Smith\n");
    answer();
    button("Command1").click();
    EXPECT_FALSE(form.isVisible());
    EXPECT_EQ(yellow(), "");
}

}  // namespace
}  // namespace velmora
