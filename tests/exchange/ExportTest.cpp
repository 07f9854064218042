#include "exchange/Export.h"

#include <gmock/gmock.h>
#include <unistd.h>

#include <array>
#include <filesystem>
#include <optional>
#include <random>
#include <string>
#include <utility>
#include <vector>

#include "platform/Failure.h"
#include "platform/files/PosixFiles.h"
#include "platform/files/PosixReplacement.h"
#include "support/ChildProcess.h"
#include "support/FakeJobPanel.h"
#include "support/OrdinaryUser.h"
#include "support/PhonebookFixture.h"
#include "support/PrintDesk.h"
#include "support/SmallDisk.h"
#include "support/Soak.h"
#include "support/TemporaryFolder.h"

namespace velmora {
namespace {

using test::bytesOf;
using test::companyRecord;
using test::personRecord;
using testing::ElementsAre;
using Texts = std::vector<std::string>;

constexpr int kCanNotMount = 77;

const std::string kHeader =
    "Title\tFirst Name\tLast Name\tTitle\tCompany Name\tAddress 1\tAddress 2\tAddress 3\t"
    "Address 4\tAddress 5\tCountry\tPhone Number\tWork Number\tFax Number\tPager\t"
    "Other Phone Number\tE-Mail\tWeb Page\tNote\tClass\tSalutation\tDate Reference\t\t\tSpouse\r\n";

const std::string kWait = "Please Wait While Exporting... This can take a long time.";
const std::string kAskFile = "save|Export Data|.txt|Text (*.txt)|*.txt|All Files (*.*)|*.*";
const std::string kAskOverwrite =
    "ask|File Exists|Are you sure you want to overwrite existing file?";
const std::string kAskBoth =
    "ask|Export Addressbook|Export Both Address Books? Choosing No will export the current address "
    "book.";
const std::string kAskTabs =
    "ask|Export|Export the text as standard tab-delimited? Choosing No prompts you for the "
    "separating character.";
const std::string kAskSeparator =
    "input|Character|Please enter the separating character in the box below. This character will "
    "be used between entries in the database.|";

// A record whose every field is assigned, and tells which it is.
PhonebookRecord fullRecord() {
    PhonebookRecord record;
    for (std::size_t i = 0; i < kFieldCount; ++i)
        record.assign(static_cast<Field>(i), " " + std::to_string(i) + " ");
    return record;
}

// Books in memory, exported into a real file.
class ExportTest : public testing::Test, protected test::PhonebookFixture {
  protected:
    // Prepares the answers to all questions, for a file that is there already.
    void answerForExisting() {
        desk.messages.willAnswer(path());
        desk.messages.willAnswer(true);
        desk.messages.willAnswer(false);
        desk.messages.willAnswer(true);
    }
    // With the answers to all questions prepared, for a file that is not there yet.
    void answer(bool both, std::optional<std::string> separator = std::nullopt) {
        desk.messages.willAnswer(path());
        desk.messages.willAnswer(both);
        desk.messages.willAnswer(!separator.has_value());
        if (separator)
            desk.messages.willAnswer(separator);
    }
    std::string exported(bool both = false, std::optional<std::string> separator = std::nullopt) {
        answer(both, separator);
        exporting.run();
        return out.has("out.txt") ? out.read("out.txt") : "none";
    }
    [[nodiscard]] std::string path() const { return out.file("out.txt"); }
    [[nodiscard]] std::size_t filesThere() const {
        const std::filesystem::directory_iterator listing(out.path());
        return static_cast<std::size_t>(std::distance(begin(listing), end(listing)));
    }
    // The lines behind the header, by their last names.
    Texts lastNames(const std::string& text) {
        Texts names;
        for (std::size_t at = text.find("\r\n") + 2; at < text.size();
             at = text.find("\r\n", at) + 2) {
            const std::size_t first = text.find('\t', text.find('\t', at) + 1) + 1;
            names.push_back(text.substr(first, text.find('\t', first) - first));
        }
        return names;
    }
    void fillYellow(int people) {
        std::string book;
        PhonebookRecord record = personRecord("", "First");
        for (int i = 0; i < people; ++i) {
            record.assign(Field::Last, "Last" + std::to_string(10000 + i));
            book.append(record.bytes().data(), kRecordSize);
        }
        yellow() = book;
    }

    test::TemporaryFolder out;
    test::PrintDesk desk;
    test::FakeJobPanel panel;
    PosixFiles realFiles{NativePaths(CodePage::western())};
    PosixReplacements replacements;
    Texts endings;
    Export exporting{{desk.jobs, panel, desk.printing.state(), state, store, settings, realFiles,
                      realFiles, replacements, desk.messages,
                      [this](const std::string& text) { endings.push_back(text); }}};
};

TEST_F(ExportTest, AnEmptyBookGivesAFileWithTheHeaderOnly) {
    EXPECT_EQ(exported(), kHeader);
    EXPECT_THAT(desk.messages.takeShown(), ElementsAre(kAskFile, kAskBoth, kAskTabs));
    EXPECT_EQ(desk.status.text, "Velmora");
}

TEST_F(ExportTest, EveryFieldButTheAttachmentStandsTrimmedInItsColumn) {
    yellow() = bytesOf(fullRecord());
    medium.save("Custom1", "Birthday");
    medium.save("Custom2", "Price");
    const std::string text = exported();
    EXPECT_NE(text.find("\tDate Reference\tBirthday\tPrice\tSpouse\r\n"), std::string::npos);
    const auto number = [](Field field) { return std::to_string(static_cast<int>(field)); };
    std::string line;
    for (const Field field :
         {Field::Title,      Field::First,         Field::Last,     Field::Position,
          Field::Company,    Field::Address1,      Field::Address2, Field::Address3,
          Field::Address4,   Field::PostalCode,    Field::Country,  Field::Phone,
          Field::WorkPhone,  Field::Fax,           Field::Pager,    Field::OtherPhone,
          Field::EMail,      Field::WebPage,       Field::Memo,     Field::Class,
          Field::Salutation, Field::DateReference, Field::Custom1,  Field::Custom2})
        line += number(field) + "\t";
    line += number(Field::Spouse) + "\r\n";
    EXPECT_EQ(text.substr(text.find("\r\n") + 2), line);
}

TEST_F(ExportTest, TheFourthColumnIsATitleLikeTheFirst) {
    EXPECT_EQ(exported(false, ";").substr(0, 37), "Title;First Name;Last Name;Title;Comp");
}

TEST_F(ExportTest, ACompanyHasNoNamesAndAPersonKeepsTheCompany) {
    yellow() = bytesOf(companyRecord("Acme")) + bytesOf(test::formRecord("Zorn", "Al", "Zip Co"));
    const std::string text = exported();
    EXPECT_EQ(text.substr(kHeader.size(), 8), "\t\t\t\tAcme");
    EXPECT_NE(text.find("\r\n\tAl\tZorn\t\tZip Co\t"), std::string::npos);
}

TEST_F(ExportTest, EntriesStandInTheOrderOfTheirNamesWhateverTheCase) {
    yellow() = bytesOf(personRecord("smith", "Bob")) + bytesOf(personRecord("Zorn", "Al")) +
               test::tombstoneBytes() + bytesOf(personRecord("Adams", "Al"));
    EXPECT_THAT(lastNames(exported()), ElementsAre("Adams", "smith", "Zorn"));
}

TEST_F(ExportTest, TwoEntriesOfOneNameStandThereTwiceEach) {
    yellow() =
        bytesOf(personRecord("Smith", "Bob", "one")) + bytesOf(personRecord("SMITH", "BOB", "two"));
    EXPECT_THAT(lastNames(exported()), ElementsAre("Smith", "SMITH", "Smith", "SMITH"));
}

TEST_F(ExportTest, WithoutASeparatorAllValuesRunTogether) {
    yellow() = bytesOf(test::formRecord("Smith", "Bob", "Acme", "memo"));
    const std::string text = exported(false, "  ");
    EXPECT_TRUE(text.starts_with("TitleFirst NameLast NameTitleCompany Name"));
    EXPECT_TRUE(text.ends_with("Spouse\r\nBobSmithAcmememo\r\n"));
    EXPECT_THAT(desk.messages.takeShown(),
                ElementsAre(kAskFile, kAskBoth, kAskTabs, kAskSeparator));
}

TEST_F(ExportTest, ASeparatorIsTrimmedAndMayBeSeveralCharacters) {
    EXPECT_TRUE(exported(false, " <> ").starts_with("Title<>First Name<>Last Name<>"));
}

TEST_F(ExportTest, ACancelledSeparatorIsNone) {
    desk.messages.willAnswer(path());
    desk.messages.willAnswer(false);
    desk.messages.willAnswer(false);
    desk.messages.willAnswer(std::optional<std::string>());
    exporting.run();
    EXPECT_TRUE(out.read("out.txt").starts_with("TitleFirst Name"));
}

TEST_F(ExportTest, BothBooksStandUnderOneHeaderTheYellowOneFirst) {
    yellow() = bytesOf(companyRecord("Zip"));
    white() = bytesOf(personRecord("Adams", "Ann"));
    desk.printing.state().ReportBook = 2;
    const std::string text = exported(true, ",");
    EXPECT_EQ(text.substr(text.find("\r\n")),
              "\r\n,,,,Zip,,,,,,,,,,,,,,,,,,,,\r\n,Ann,Adams,,,,,,,,,,,,,,,,,,,,,,\r\n");
    EXPECT_EQ(desk.printing.state().ReportBook, 2);
}

TEST_F(ExportTest, TheBookOnShowIsExportedAlone) {
    yellow() = bytesOf(companyRecord("Zip"));
    white() = bytesOf(personRecord("Adams", "Ann"));
    state.BookKind = kWhitePages;
    desk.printing.state().ReportBook = 1;
    EXPECT_THAT(lastNames(exported()), ElementsAre("Adams"));
    EXPECT_EQ(desk.printing.state().ReportBook, 1);
    EXPECT_TRUE(desk.printing.state().ReportNames.empty());
}

TEST_F(ExportTest, ACancelledFileDialogStopsTheCommand) {
    desk.messages.willAnswer(std::optional<std::string>());
    exporting.run();
    desk.messages.willAnswer(std::optional<std::string>(""));
    exporting.run();
    EXPECT_THAT(desk.messages.takeShown(), ElementsAre(kAskFile, kAskFile));
    EXPECT_EQ(desk.status.text, "");
    EXPECT_EQ(filesThere(), 0U);
}

TEST_F(ExportTest, AnExistingFileIsAskedAboutAndNoAsksForAnother) {
    out.write("there.txt", "earlier");
    desk.messages.willAnswer(out.file("there.txt"));
    desk.messages.willAnswer(false);
    EXPECT_EQ(exported(), kHeader);
    EXPECT_THAT(desk.messages.takeShown(),
                ElementsAre(kAskFile, kAskOverwrite, kAskFile, kAskBoth, kAskTabs));
    EXPECT_EQ(desk.messages.takePreselected().front(), Answer::No) << "what keeps the file";
    EXPECT_EQ(out.read("there.txt"), "earlier");
}

TEST_F(ExportTest, AnExistingFileStaysUntilTheNewOneIsWhole) {
    out.write("out.txt", "earlier");
    fillYellow(100);
    desk.loop.onYield = [&] { EXPECT_EQ(out.read("out.txt"), "earlier"); };
    answerForExisting();
    exporting.run();
    EXPECT_GT(desk.loop.yields, 0);
    EXPECT_EQ(lastNames(out.read("out.txt")).size(), 100U);
    EXPECT_EQ(filesThere(), 1U);
}

TEST_F(ExportTest, ItIsAJobWithAPanelThatTellsHowFarItIs) {
    fillYellow(100);
    desk.loop.onYield = [&] {
        EXPECT_TRUE(desk.jobs.running());
        EXPECT_TRUE(panel.shown);
        EXPECT_FALSE(desk.icon.shown) << "nothing is printed";
        EXPECT_EQ(desk.status.text, kWait);
    };
    exported();
    EXPECT_FALSE(panel.shown);
    ASSERT_FALSE(panel.progress.empty());
    EXPECT_EQ(panel.progress.back(), std::pair(96, 100));
    EXPECT_EQ(desk.status.text, "Velmora");
}

TEST_F(ExportTest, WhileAnotherJobRunsNothingIsAsked) {
    desk.jobs.run([&](LongJob&) { exporting.run(); });
    EXPECT_TRUE(desk.messages.takeShown().empty());
    EXPECT_EQ(desk.status.text, "Velmora is still busy with a job. Try again when it is done.");
}

TEST_F(ExportTest, ManyEntriesOfOneNameLetEventsRunToo) {
    const std::string one = bytesOf(personRecord("Smith", "Bob"));
    for (int i = 0; i < 100; ++i)
        yellow() += one;
    desk.loop.onYield = [&] {
        if (panel.progress.size() == 2)
            desk.jobs.cancel();
    };
    EXPECT_EQ(lastNames(exported()).size(), 64U);
    EXPECT_EQ(panel.progress.back(), std::pair(1, 100));
}

TEST_F(ExportTest, CalledOffItKeepsWhatIsWrittenAndSaysSo) {
    fillYellow(100);
    desk.loop.onYield = [&] {
        if (!panel.progress.empty() && panel.progress.back().first == 64)
            desk.jobs.cancel();
    };
    EXPECT_EQ(lastNames(exported()).size(), 64U);
    EXPECT_EQ(desk.status.text, "Velmora. Called off, 64 lines were exported.");
    EXPECT_EQ(filesThere(), 1U);
}

TEST_F(ExportTest, CalledOffBeforeTheFirstEntryTheEarlierFileStays) {
    fillYellow(100);
    out.write("out.txt", "earlier");
    desk.cancelInYield(1);
    answerForExisting();
    exporting.run();
    EXPECT_EQ(out.read("out.txt"), "earlier");
    EXPECT_EQ(desk.status.text, "Velmora. Called off, nothing was exported.");
}

TEST_F(ExportTest, TheEndOfTheProgramCallsItOff) {
    fillYellow(100);
    desk.loop.onYield = [&] { desk.loop.isClosing = panel.progress.size() == 2; };
    EXPECT_EQ(lastNames(exported()).size(), 64U);
    desk.messages.whileOpen([&] { desk.loop.isClosing = true; });
    desk.messages.willAnswer(out.file("second.txt"));
    exporting.run();
    EXPECT_FALSE(out.has("second.txt"));
}

TEST_F(ExportTest, WhatIsMissingIsToldWithItsNumber) {
    yellow() = bytesOf(personRecord("Smith, Jr", "Bob")) + bytesOf(companyRecord("Acme, Inc")) +
               bytesOf(personRecord("Adams", "Ann", "two\r\nlines"));
    exported();
    EXPECT_EQ(desk.status.text,
              "Velmora. 2 entries are missing: a comma in the name, or deleted meanwhile. 1 line "
              "has a separator or a line end inside a field.");
    yellow() =
        bytesOf(personRecord("Adams", "Ann", "a;b")) + bytesOf(personRecord("Smith, Jr", ""));
    desk.messages.willAnswer(out.file("second.txt"));
    desk.messages.willAnswer(false);
    desk.messages.willAnswer(false);
    desk.messages.willAnswer(std::optional<std::string>(";"));
    exporting.run();
    EXPECT_EQ(desk.status.text,
              "Velmora. 1 entry is missing: a comma in the name, or deleted meanwhile. 1 line has "
              "a separator or a line end inside a field.");
}

TEST_F(ExportTest, FieldsThatWereNeverAssignedAreEmptyColumns) {
    PhonebookRecord record;
    record.assign(Field::Last, "Adams");
    yellow() = bytesOf(record);
    const std::string text = exported(false, ",");
    EXPECT_EQ(text.substr(text.find("\r\n") + 2), ",,Adams,,,,,,,,,,,,,,,,,,,,,,\r\n");
}

TEST_F(ExportTest, EveryByteComesOutAsItIs) {
    std::string memo;
    for (int byte = 1; byte < 256; ++byte)
        if (byte != '\t' && byte != '\r' && byte != '\n')
            memo += static_cast<char>(byte);
    memo = "[" + memo.substr(0, 248) + "]";
    yellow() = bytesOf(personRecord("M\xFCller", "\x80\xFF", memo));
    EXPECT_NE(exported().find("\t\x80\xFF\tM\xFCller\t"), std::string::npos);
    EXPECT_NE(out.read("out.txt").find(memo), std::string::npos);
}

TEST_F(ExportTest, AFolderThatMayNotBeWrittenIsTold) {
    fillYellow(3);
    std::filesystem::create_directory(out.file("locked"));
    std::filesystem::permissions(out.file("locked"), std::filesystem::perms(0555));
    const test::OrdinaryUser user(out.path());
    desk.messages.willAnswer(out.file("locked/out.txt"));
    desk.messages.willAnswer(false);
    desk.messages.willAnswer(true);
    exporting.run();
    EXPECT_EQ(desk.status.text, "Velmora. Nothing was exported: The file " +
                                    out.file("locked/out.txt") +
                                    " can not be written: Permission denied.");
}

TEST_F(ExportTest, OnAFullDiskWholeLinesAreWrittenAndTheOthersCounted) {
    fillYellow(5000);
    test::ChildProcess child([&] {
        if (!test::mountSmallDisk(out.path(), "64k"))
            return kCanNotMount;
        const std::string text = exported();
        if (!text.ends_with("\r\n"))
            return 1;
        const std::size_t lines = lastNames(text).size();
        if (lines < 1000 || lines >= 5000)
            return 2;
        return desk.status.text == "Velmora. " + std::to_string(5000 - lines) +
                                       " lines could not be written: The file " + path() +
                                       " can not be written: No space left on device."
                   ? 0
                   : 3;
    });
    const int code = child.wait();
    if (code == kCanNotMount)
        GTEST_SKIP() << "this system lets no test mount a disk";
    EXPECT_EQ(code, 0);
}

TEST_F(ExportTest, ABookThatCanNotBeReadIsAFailureAndTheEarlierFileStays) {
    out.write("out.txt", "earlier");
    files.unreachable = true;
    answerForExisting();
    EXPECT_THROW(exporting.run(), Failure);
    EXPECT_EQ(out.read("out.txt"), "earlier");
    EXPECT_EQ(filesThere(), 1U);
    EXPECT_EQ(desk.status.text, "Velmora");
    EXPECT_FALSE(desk.jobs.running());
}

TEST_F(ExportTest, MoreNamesThanTheBoundEndTheProgramAndTheEarlierFileStays) {
    yellow().clear();
    const std::string one = bytesOf(companyRecord("C"));
    for (std::size_t i = 0; i <= NamedEntries::kMostNames; ++i)
        yellow() += one;
    EXPECT_EQ(exported(), "none");
    EXPECT_THAT(endings, ElementsAre("Subscript out of range"));
    EXPECT_EQ(desk.status.text, "Velmora");
}

TEST_F(ExportTest, EntriesChangedWhileItRunsComeOutAsTheyAreThen) {
    fillYellow(100);
    desk.loop.onYield = [&] {
        if (panel.progress.size() != 1)
            return;
        std::string& book = yellow();
        book.replace(90 * kRecordSize, kRecordSize, test::tombstoneBytes());
        book.replace(91 * kRecordSize, kRecordSize,
                     bytesOf(personRecord("Last10091", "First", "new")));
    };
    const std::string text = exported();
    EXPECT_EQ(lastNames(text).size(), 99U);
    EXPECT_NE(text.find("\tnew\t"), std::string::npos);
    EXPECT_EQ(desk.status.text,
              "Velmora. 1 entry is missing: a comma in the name, or deleted meanwhile.");
}

// Both books are exported in turn into one file, until the killer comes.
TEST_F(ExportTest, KilledAtAnyMomentTheFileIsWholeOldOrNew) {
    fillYellow(200);
    white() = yellow().substr(0, 100 * kRecordSize);
    const std::string ofYellow = exported();
    state.BookKind = kWhitePages;
    std::filesystem::remove(path());
    const std::string ofWhite = exported();
    std::minstd_rand random(testing::UnitTest::GetInstance()->random_seed() + 1U);
    const int kills = test::soaked(10);
    for (int kill = 0; kill < kills; ++kill) {
        std::array<int, 2> ends{};
        ASSERT_EQ(pipe(ends.data()), 0);
        test::ChildProcess child([&] {
            desk.loop.onYield = [&] { (void)!write(ends[1], "y", 1); };
            for (;;) {
                state.BookKind = state.BookKind == kYellowPages ? kWhitePages : kYellowPages;
                answerForExisting();
                exporting.run();
            }
            return 0;
        });
        for (unsigned yields = 1 + random() % 60; yields > 0; --yields) {
            char yielded = 0;
            ASSERT_EQ(read(ends[0], &yielded, 1), 1);
        }
        // A moment more, so that the kill falls anywhere between two yields.
        for (unsigned more = random() % 100000; more > 0; --more)
            (void)random();
        child.killAndWait();
        close(ends[0]);
        close(ends[1]);
        const std::string now = out.read("out.txt");
        ASSERT_TRUE(now == ofYellow || now == ofWhite) << now.size() << " bytes";
    }
    answerForExisting();
    exporting.run();
    EXPECT_EQ(filesThere(), 1U) << "what the killed left is cleared away";
}

}  // namespace
}  // namespace velmora
