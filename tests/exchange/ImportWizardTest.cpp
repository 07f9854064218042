#include "exchange/ImportWizard.h"

#include <gmock/gmock.h>

#include <string>
#include <vector>

#include "TextBytes.h"
#include "platform/FatalFailure.h"
#include "support/FakeAccessReader.h"
#include "support/PhonebookFixture.h"
#include "support/PrintDesk.h"

namespace velmora {
namespace {

using testing::ElementsAre;
using Texts = std::vector<std::string>;
using Stage = ImportWizard::Stage;

constexpr const char* kOpen = "open|Please select a file for import:|.MDB|";
constexpr const char* kTabs =
    "ask|Tab or Comma Delimited?|Is this text file tab-delimited? Choosing No indicates that the "
    "file is comma-delimited (CSV).";
constexpr const char* kNotImportable = "warn|Error|File not importable.";
constexpr const char* kSeparate =
    "ask|Separate?|Are the city, state, and zipcode elements of the address separate fields?";
constexpr const char* kPress = "tell|Velmora|Press the Import Button to begin importing.";

class FakeCopies final : public CopiesBeforeImport {
  public:
    std::string copyBook(const std::string& bookFile, const std::function<bool()>& goOn) override {
        copied.push_back(bookFile);
        if (fails)
            throw Failure("The disk is full.");
        return goOn() ? "/velmora/copy" : "";
    }
    std::vector<std::string> copied;
    bool fails = false;
};

class PathsAsTheyAre final : public SystemPaths {
  public:
    [[nodiscard]] NativePath nativePath(const std::string& path) const override {
        return NativePath(path);
    }
};

class ImportWizardTest : public testing::Test, protected test::PhonebookFixture {
  protected:
    // Chooses a file of this text.
    bool beginText(const std::string& text, bool tabs = false,
                   const std::string& path = "/lists/people.csv") {
        bytes.files[path] = text;
        desk.messages.willAnswer(std::optional<std::string>(path));
        desk.messages.willAnswer(tabs);
        return wizard.begin();
    }

    bool beginTables() {
        desk.messages.willAnswer(std::optional<std::string>("/lists/people.mdb"));
        return wizard.begin();
    }

    void chooseNone() { wizard.choose(wizard.lines().size() - 1); }

    // Answers the questions that are left with "None", but those of these texts with a line.
    void answerAll(const std::vector<std::pair<ImportField, std::size_t>>& answers,
                   bool separate = false) {
        bool asked = false;
        while (wizard.stage() == Stage::Question) {
            if (!asked && wizard.question() == questionFor(ImportField::Street)) {
                desk.messages.willAnswer(separate);
                asked = true;
            }
            std::size_t line = wizard.lines().size() - 1;
            for (const auto& [field, chosen] : answers)
                if (wizard.question() == questionFor(field))
                    line = chosen;
            wizard.choose(line);
        }
    }

    bool import(const std::string& book = kYellowPagesFile) {
        return wizard.import(book, [this](const ImportRun::State& state) {
            states.push_back(state);
            if (onState)
                onState();
        });
    }

    test::PrintDesk desk;
    test::TextBytes bytes;
    FakeCopies copies;
    PathsAsTheyAre paths;
    test::FakeAccessReader access;
    int changes = 0;
    std::function<void()> onState;
    std::vector<ImportRun::State> states;

    struct Shared final : AccessTableReader {
        Shared(AccessTableReader& reader, std::function<void()> waiting)
            : reader_(reader), waiting_(std::move(waiting)) {}
        std::vector<AccessTable> tables(const NativePath& path) override {
            waiting_();
            return reader_.tables(path);
        }
        void readRows(const NativePath& path, const std::string& table,
                      const std::function<void(const AccessRow&)>& take) override {
            waiting_();
            reader_.readRows(path, table, take);
        }
        AccessTableReader& reader_;
        std::function<void()> waiting_;
    };

    ImportWizard wizard{{desk.jobs, desk.messages, store, settings, copies, paths, bytes.opener(),
                         [this](std::function<void()> waiting) {
                             return std::make_unique<Shared>(access, std::move(waiting));
                         },
                         [this] { ++changes; }}};
};

TEST_F(ImportWizardTest, WithoutAFileNothingBegins) {
    desk.messages.willAnswer(std::nullopt);
    EXPECT_FALSE(wizard.begin());
    desk.messages.willAnswer(std::optional<std::string>(""));
    EXPECT_FALSE(wizard.begin());
    for (const std::string& box : desk.messages.takeShown())
        EXPECT_TRUE(box.starts_with(kOpen)) << box;
}

TEST_F(ImportWizardTest, ATextIsAskedForItsSeparatorAndBeginsWithTheTitle) {
    ASSERT_TRUE(beginText("First,Last\nAnn,Smith\n"));
    EXPECT_EQ(desk.messages.takeShown()[1], kTabs);
    EXPECT_TRUE(wizard.isText());
    EXPECT_EQ(wizard.question(),
              "Which field from the list below represents the title field, for example, Mr.?");
    EXPECT_THAT(wizard.lines(), ElementsAre("First", "Last", "None"));
    EXPECT_EQ(wizard.step(), 1);
}

TEST_F(ImportWizardTest, TheNameOfTheFileItselfMakesAText) {
    for (const std::string path : {"/x/a.TXT", "/x/b.csv", "/x/c.Prn", "/x/d.txt.old"}) {
        ASSERT_TRUE(beginText("A,B\n", false, path)) << path;
        EXPECT_TRUE(wizard.isText());
    }
    desk.messages.willAnswer(std::optional<std::string>("/my.txt/people.mdb"));
    ASSERT_TRUE(wizard.begin());
    EXPECT_FALSE(wizard.isText());
}

TEST_F(ImportWizardTest, ATextWithoutItsSeparatorIsRefused) {
    EXPECT_FALSE(beginText("First;Last\nAnn;Smith\n"));
    EXPECT_EQ(desk.messages.takeShown().back(), kNotImportable);
    EXPECT_FALSE(desk.jobs.running());
}

TEST_F(ImportWizardTest, AFileThatCanNotBeReadIsRefusedAndTheStatusLineSaysWhy) {
    bytes.failsFrom = 0;
    EXPECT_FALSE(beginText("First,Last\n"));
    EXPECT_EQ(desk.messages.takeShown().back(), kNotImportable);
    EXPECT_EQ(desk.status.text, "The file can not be read: Input/output error.");
}

TEST_F(ImportWizardTest, AsksOneQuestionAfterTheOtherWithSeparateCity) {
    ASSERT_TRUE(beginText("A,B\n"));
    Texts questions;
    std::vector<int> steps;
    int doubleClicks = 0;
    while (wizard.stage() == Stage::Question) {
        questions.push_back(wizard.question());
        steps.push_back(wizard.step());
        if (questions.size() == 6)
            desk.messages.willAnswer(true);
        chooseNone();
        ++doubleClicks;
    }
    EXPECT_EQ(doubleClicks, 25);
    EXPECT_EQ(wizard.stage(), Stage::Ready);
    EXPECT_EQ(wizard.step(), 25);
    EXPECT_EQ(steps, (std::vector<int>{1,  2,  3,  4,  5,  6,  8,  8,  8,  9,  10, 11, 12,
                                       13, 14, 15, 16, 17, 18, 19, 20, 21, 22, 23, 24}));
    const std::string begin = "Which field from the list below represents ";
    EXPECT_EQ(questions,
              (Texts{begin + "the title field, for example, Mr.?",
                     begin + "the first name field, for example, Bill?",
                     begin + "the last name field, for example, Smith?",
                     begin + "the occupation status/title field, for example, CEO?",
                     begin + "the company name field, for example, Bill Smith, Inc.?",
                     begin + "the street address field, for example, One Beklumfig Way?",
                     begin + "the city field, for example, Chicago?",
                     begin + "the state field, for example, Illinois?",
                     begin + "the zip code field, for example, 90210?",
                     begin + "the country field, for example, United States of America?",
                     begin + "any additional address information, for example, Building Name?",
                     begin + "the home/primary phone number field, for example, (432)123-4567?",
                     begin + "the work phone number field, for example, 1-800-555-5555?",
                     begin + "the pager phone number field, for example, 555-5555?",
                     begin + "the fax number field, for example, (432)444-5454?",
                     begin + "the other/alternate phone number field, for example, (718)222-5555?",
                     begin + "the e-mail address field, for example, bsmith@company.com?",
                     begin + "the note/memo field, for example, Spoke to him on the 21st.?",
                     begin + "the salutation/greeting field, for example, Dear John,?",
                     begin + "the class field, for example, Business?",
                     begin + "the date reference field, for example, 8/8/95?",
                     begin + "a custom field (#1), for example, Birthdates?",
                     begin + "a custom field (#2), for example, Pricing Info?",
                     begin + "the contact's Spouse's Name?",
                     begin + "a the contact's web site/page?"}));
    const Texts shown = desk.messages.takeShown();
    ASSERT_EQ(shown.size(), 4U);
    EXPECT_EQ(shown[2], kSeparate);
    EXPECT_EQ(shown[3], kPress);
}

TEST_F(ImportWizardTest, AsksOneQuestionForAllThreeWhereTheyAreNotSeparate) {
    ASSERT_TRUE(beginText("A,B\n"));
    int doubleClicks = 0;
    while (wizard.stage() == Stage::Question) {
        if (++doubleClicks == 6)
            desk.messages.willAnswer(false);
        chooseNone();
        if (doubleClicks == 6) {
            EXPECT_EQ(wizard.question(),
                      "Which field from the list below represents the city, state, and zipcode "
                      "field, for example, Chicago, Illinois 90210?");
        }
    }
    EXPECT_EQ(doubleClicks, 23);
}

TEST_F(ImportWizardTest, ADatabaseIsAskedForItsTableFirst) {
    ASSERT_TRUE(beginTables());
    EXPECT_EQ(wizard.stage(), Stage::Table);
    EXPECT_EQ(wizard.question(), "Import from which table?");
    EXPECT_THAT(wizard.lines(), ElementsAre("Appoint"));
    EXPECT_EQ(wizard.step(), 0);
    wizard.choose(0);
    EXPECT_THAT(wizard.lines(), ElementsAre("ID", "TagVariant", "Date", "BeginTime", "EndTime",
                                            "desc", "StyleSet", "None"));
    EXPECT_EQ(wizard.step(), 1);
}

TEST_F(ImportWizardTest, TablesWhoseNamesBeginWithMsAreNotListed) {
    access.described = {{"MSysObjects", {}, true},
                        {"Msgs", {}, false},
                        {"msX", {}, false},
                        {"People", {}, false},
                        {"M", {}, false}};
    ASSERT_TRUE(beginTables());
    EXPECT_THAT(wizard.lines(), ElementsAre("People", "M"));
}

TEST_F(ImportWizardTest, ADatabaseWithoutTablesOrADamagedOneIsRefused) {
    access.described = {{"MSysObjects", {}, true}};
    EXPECT_FALSE(beginTables());
    EXPECT_EQ(desk.messages.takeShown().back(), kNotImportable);
    access.damaged = true;
    EXPECT_FALSE(beginTables());
    EXPECT_EQ(desk.messages.takeShown().back(), kNotImportable);
    EXPECT_EQ(desk.status.text, "The Access database is damaged and can not be read.");
}

TEST_F(ImportWizardTest, ProposesTheColumnThatFitsAndNoneWhereThereIsNone) {
    ASSERT_TRUE(beginText("Vorname,Surname,Zip\nAnn,Smith,1\n"));
    EXPECT_EQ(wizard.proposedLine(), 3U) << "no title";
    chooseNone();
    EXPECT_EQ(wizard.proposedLine(), 0U);
    chooseNone();
    EXPECT_EQ(wizard.proposedLine(), 1U);
}

TEST_F(ImportWizardTest, ProposesTheLastMappingOfTheSameColumns) {
    ASSERT_TRUE(beginText("Vorname,Surname,Zip\nAnn,Smith,1\n"));
    answerAll({{ImportField::First, 2}}, true);
    ASSERT_TRUE(import());
    ASSERT_TRUE(beginText("Vorname,Surname,Zip\nBob,Smith,1\n"));
    desk.messages.takePreselected();
    chooseNone();
    EXPECT_EQ(wizard.proposedLine(), 2U);
    chooseNone();
    EXPECT_EQ(wizard.proposedLine(), 3U);
    chooseNone();
    chooseNone();
    chooseNone();
    desk.messages.willAnswer(false);
    chooseNone();
    EXPECT_EQ(desk.messages.takePreselected(), (std::vector<Answer>{Answer::Yes}));
}

TEST_F(ImportWizardTest, ShowsWhatAColumnHoldsInTheFirstThreeRows) {
    ASSERT_TRUE(beginText("A,B\nAnn,x\n,y\nCy\nDi,z\n"));
    EXPECT_EQ(wizard.sampleOf(0), "Ann  |  Cy");
    EXPECT_EQ(wizard.sampleOf(1), "x  |  y");
    EXPECT_EQ(wizard.sampleOf(2), "");
}

TEST_F(ImportWizardTest, SaysBeforeTheFirstQuestionThatQuotesAreNotInterpreted) {
    ASSERT_TRUE(beginText("A,B\n\"x\",y\n"));
    EXPECT_TRUE(wizard.remark().starts_with("Quotes are not interpreted"));
}

TEST_F(ImportWizardTest, AfterTheLastQuestionADoubleClickShowsTheAnswers) {
    ASSERT_TRUE(beginText("A,B\n"));
    answerAll({{ImportField::First, 1}, {ImportField::Memo, 0}});
    desk.messages.takeShown();
    wizard.choose(0);
    EXPECT_EQ(desk.messages.takeShown(),
              (Texts{"tell|Velmora|Title None", "tell|Velmora|First 2", "tell|Velmora|Last None",
                     "tell|Velmora|Comp None", "tell|Velmora|A1 None", "tell|Velmora|A2 None",
                     "tell|Velmora|City ", "tell|Velmora|State ", "tell|Velmora|Zip ",
                     "tell|Velmora|Coun None", "tell|Velmora|Phone None", "tell|Velmora|Work None",
                     "tell|Velmora|Fax None", "tell|Velmora|Memo 1", "tell|Velmora|Sal None"}));
    EXPECT_EQ(wizard.stage(), Stage::Ready);
}

TEST_F(ImportWizardTest, ALineThatIsNoneIsNotWanted) {
    ASSERT_TRUE(beginText("A,B\n"));
    wizard.choose(17);
    EXPECT_EQ(wizard.step(), 1);
}

TEST_F(ImportWizardTest, ColumnsCalledNoneAreNone) {
    ASSERT_TRUE(beginText("none,Last\nAnn,Smith\n"));
    answerAll({{ImportField::First, 0}, {ImportField::Last, 1}});
    ASSERT_TRUE(import());
    EXPECT_EQ(yellow(), test::bytesOf(test::personRecord("Smith", "")));
}

TEST_F(ImportWizardTest, ImportsATextIntoTheChosenBook) {
    ASSERT_TRUE(beginText("First,Last\nAnn,Smith\nBob,Jones"));
    answerAll({{ImportField::First, 0}, {ImportField::Last, 1}});
    ASSERT_TRUE(import(kWhitePagesFile));
    EXPECT_EQ(white(), test::bytesOf(test::personRecord("Smith", "Ann")) +
                           test::bytesOf(test::personRecord("Jones", "Bob")));
    EXPECT_EQ(yellow(), "");
    EXPECT_EQ(copies.copied, (Texts{kWhitePagesFile}));
    EXPECT_EQ(wizard.stage(), Stage::Finished);
    EXPECT_TRUE(wizard.report().isWhole());
    EXPECT_EQ(wizard.reportText(),
              "2 entries added, 0 replaced. The phonebook as it was before: /velmora/copy");
    EXPECT_EQ(changes, 1);
    EXPECT_FALSE(desk.jobs.running());
    EXPECT_FALSE(desk.icon.shown);
}

TEST_F(ImportWizardTest, AnEntryOfTheSameNameIsReplacedAsAWhole) {
    PhonebookRecord old = test::personRecord("SMITH", "ANN", "old memo");
    old.assign(Field::FileAttachment, "x");
    yellow() = test::bytesOf(old);
    ASSERT_TRUE(beginText("First,Last\nAnn,Smith\n"));
    answerAll({{ImportField::First, 0}, {ImportField::Last, 1}});
    ASSERT_TRUE(import());
    EXPECT_EQ(yellow(), test::bytesOf(test::personRecord("Smith", "Ann")));
    EXPECT_EQ(wizard.report().counts.replaced, 1U);
}

TEST_F(ImportWizardTest, ImportsATableByTheNamesOfItsFields) {
    access.described = {{"People",
                         {{"Name", AccessType::Text},
                          {"Born", AccessType::DateTime},
                          {"Paid", AccessType::Number},
                          {"Town", AccessType::Text}},
                         false}};
    access.rows = {{"Ren\xC3\xA9 ", "1961-03-09 00:00:00", "12.5", std::nullopt},
                   {"\xC4\x99", std::nullopt, "1000000000000000", "Ulm"}};
    ASSERT_TRUE(beginTables());
    wizard.choose(0);
    answerAll({{ImportField::Last, 0},
               {ImportField::DateReference, 1},
               {ImportField::Custom1, 2},
               {ImportField::City, 3}},
              true);
    ASSERT_TRUE(import());
    const PhonebookRecord first(yellow());
    EXPECT_EQ(first.text(Field::Last), "Ren\xE9");
    EXPECT_EQ(first.text(Field::DateReference), "3/9/1961");
    EXPECT_EQ(first.text(Field::Custom1), "12.5");
    EXPECT_EQ(first.text(Field::Address2), "");
    const PhonebookRecord second(slot(yellow(), 2));
    EXPECT_EQ(second.text(Field::Last), "?");
    EXPECT_EQ(second.text(Field::Custom1), "1E+15");
    EXPECT_EQ(second.text(Field::Address2), "Ulm");
    EXPECT_EQ(access.asked, (Texts{"People"}));
    EXPECT_NE(wizard.reportText().find("1 character that Velmora can not store became \"?\"."),
              std::string::npos);
}

TEST(ImportedValue, DatesHaveATimeWhereThatIsNotMidnight) {
    EXPECT_EQ(importedValue("2026-11-02 00:00:00", AccessType::DateTime), "11/2/2026");
    EXPECT_EQ(importedValue("2026-11-02 00:05:09", AccessType::DateTime), "11/2/2026 12:05:09 AM");
    EXPECT_EQ(importedValue("0100-01-12 14:00:00", AccessType::DateTime), "1/12/100 2:00:00 PM");
    EXPECT_EQ(importedValue("True", AccessType::Boolean), "True");
    EXPECT_EQ(importedValue("0.10", AccessType::Number), "0.1");
}

TEST_F(ImportWizardTest, WithoutACopyOfTheBookNothingIsImported) {
    copies.fails = true;
    ASSERT_TRUE(beginText("First,Last\nAnn,Smith\n"));
    answerAll({{ImportField::First, 0}});
    ASSERT_TRUE(import());
    EXPECT_EQ(yellow(), "");
    EXPECT_EQ(wizard.reportText(),
              "Nothing was imported, since the phonebook could not be copied first. The disk is "
              "full.");
    EXPECT_FALSE(wizard.report().isWhole());
}

TEST_F(ImportWizardTest, AnImportThatIsCalledOffKeepsWhatItWrote) {
    std::string text = "First,Last\n";
    for (int i = 0; i < 5000; ++i)
        text += "Ann," + std::to_string(i) + "\n";
    ASSERT_TRUE(beginText(text));
    answerAll({{ImportField::First, 0}, {ImportField::Last, 1}});
    onState = [this] { wizard.cancel(); };
    ASSERT_TRUE(import());
    EXPECT_TRUE(wizard.report().calledOff);
    EXPECT_GT(yellow().size(), 0U);
    EXPECT_LT(yellow().size(), 5000 * kRecordSize);
    EXPECT_EQ(yellow().size() % kRecordSize, 0U);
    EXPECT_EQ(wizard.report().counts.added * kRecordSize, yellow().size());
}

TEST_F(ImportWizardTest, TellsTheRecordAndTheProgressOnTheWay) {
    std::string text = "First,Last\n";
    for (int i = 0; i < 2000; ++i)
        text += "Ann," + std::to_string(i) + "\n";
    ASSERT_TRUE(beginText(text));
    answerAll({{ImportField::First, 0}, {ImportField::Last, 1}});
    ASSERT_TRUE(import());
    ASSERT_GE(states.size(), 3U);
    EXPECT_GE(states[1].record, states[0].record);
    EXPECT_EQ(states.back().progress.all, text.size());
    EXPECT_GT(desk.loop.yields, 3);
}

TEST_F(ImportWizardTest, ALineOfTooManyColumnsEndsTheProgramBehindTheRowsBefore) {
    ASSERT_TRUE(beginText("First,Last\nAnn,Smith\n" + std::string(150, ',') + "\nBob,Jones\n"));
    answerAll({{ImportField::First, 0}, {ImportField::Last, 1}});
    EXPECT_THROW(import(), FatalFailure);
    EXPECT_EQ(yellow(), test::bytesOf(test::personRecord("Smith", "Ann")));
    EXPECT_FALSE(desk.jobs.running());
    EXPECT_EQ(wizard.stage(), Stage::Finished);
}

TEST_F(ImportWizardTest, ASourceThatFailsInTheMiddleIsToldAndWhatCameIsKept) {
    ASSERT_TRUE(beginText("First,Last\nAnn,Smith\n" + std::string(100'000, '\n')));
    answerAll({{ImportField::First, 0}, {ImportField::Last, 1}});
    bytes.failsFrom = 65'536;
    ASSERT_TRUE(import());
    EXPECT_EQ(slot(yellow(), 1), test::bytesOf(test::personRecord("Smith", "Ann")));
    EXPECT_FALSE(wizard.report().isWhole());
    EXPECT_NE(wizard.reportText().find(
                  "The rest could not be read: The file can not be read: Input/output error."),
              std::string::npos);
}

TEST_F(ImportWizardTest, ASourceThatIsGoneIsTold) {
    ASSERT_TRUE(beginText("First,Last\nAnn,Smith\n"));
    answerAll({{ImportField::First, 0}});
    bytes.files.clear();
    ASSERT_TRUE(import());
    EXPECT_NE(wizard.reportText().find("0 entries added, 0 replaced. The rest could not be read"),
              std::string::npos);
}

TEST_F(ImportWizardTest, AFullDiskEndsTheImportAndIsTold) {
    std::string text = "First,Last\n";
    for (int i = 0; i < 3000; ++i)
        text += "Ann," + std::to_string(i) + "\n";
    ASSERT_TRUE(beginText(text));
    answerAll({{ImportField::First, 0}, {ImportField::Last, 1}});
    files.writesUntilFailure = 700;
    ASSERT_TRUE(import());
    EXPECT_EQ(yellow().size() % kRecordSize, 0U);
    EXPECT_EQ(wizard.report().counts.added, yellow().size() / kRecordSize);
    EXPECT_GT(wizard.report().counts.added, 0U);
    EXPECT_GT(wizard.report().counts.unwritten, 0U);
    EXPECT_FALSE(wizard.report().isWhole());
    EXPECT_NE(wizard.reportText().find("could not be written: The file can not be written: No "
                                       "space left on device."),
              std::string::npos);
}

TEST_F(ImportWizardTest, WhatWasCutIsCounted) {
    ASSERT_TRUE(beginText("First,Last\nAnn," + std::string(25, 's') + "\nAnn," +
                          std::string(25, 's') + "\n"));
    answerAll({{ImportField::First, 0}, {ImportField::Last, 1}});
    ASSERT_TRUE(import());
    EXPECT_EQ(wizard.reportText(),
              "1 entry added, 1 replaced. 2 values were too long and cut. The phonebook as it was "
              "before: /velmora/copy");
}

TEST_F(ImportWizardTest, ManyLinesOfFewNamesReplaceOneAnother) {
    std::string text = "First,Last\n";
    for (int i = 0; i < 4000; ++i)
        text += "Ann," + std::to_string(i % 200) + "\n";
    ASSERT_TRUE(beginText(text));
    answerAll({{ImportField::First, 0}, {ImportField::Last, 1}});
    ASSERT_TRUE(import());
    EXPECT_EQ(yellow().size(), 200 * kRecordSize);
    EXPECT_EQ(wizard.report().counts.added, 200U);
    EXPECT_EQ(wizard.report().counts.replaced, 3800U);
}

TEST_F(ImportWizardTest, DoesNothingWhileAnotherJobRuns) {
    ASSERT_TRUE(beginText("First,Last\nAnn,Smith\n"));
    answerAll({});
    desk.messages.takeShown();
    desk.jobs.run([&](LongJob&) {
        EXPECT_FALSE(import());
        EXPECT_FALSE(wizard.begin());
    });
    EXPECT_TRUE(desk.messages.takeShown().empty());
    EXPECT_EQ(wizard.stage(), Stage::Ready);
    EXPECT_EQ(yellow(), "");
}

TEST_F(ImportWizardTest, TheEndOfTheProgramEndsTheImportBehindTheRowInHand) {
    std::string text = "First,Last\n";
    for (int i = 0; i < 5000; ++i)
        text += "Ann," + std::to_string(i) + "\n";
    ASSERT_TRUE(beginText(text));
    answerAll({{ImportField::First, 0}, {ImportField::Last, 1}});
    onState = [this] { desk.loop.isClosing = true; };
    ASSERT_TRUE(import());
    EXPECT_EQ(yellow().size() % kRecordSize, 0U);
    EXPECT_LT(yellow().size(), 5000 * kRecordSize);
}

}  // namespace
}  // namespace velmora
