#include "docpad/MergePrint.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <iterator>
#include <utility>
#include "docpad/LetterFakes.h"
#include "docpad/PadFakes.h"
#include "platform/Failure.h"
#include "platform/files/PosixFiles.h"
#include "support/FakeClock.h"
#include "support/Golden.h"
#include "support/OrdinaryUser.h"
#include "support/PhonebookFixture.h"
#include "support/PrintDesk.h"
#include "support/TemporaryFolder.h"

namespace velmora {
namespace {

using namespace std::chrono_literals;
using ::testing::ElementsAre;
using ::testing::IsEmpty;
using WhichBooks = MergePrint::WhichBooks;

class MergePrintTest : public ::testing::Test, protected test::PhonebookFixture {
  protected:
    MergePrintTest() {
        PhonebookRecord john = test::personRecord("Smith", "John");
        john.assign(Field::Title, "Mr.");
        john.assign(Field::Position, "Buyer");
        john.assign(Field::Company, "Bindery");
        john.assign(Field::Address1, "1 Lake Road");
        john.assign(Field::Address3, "Lakeside");
        john.assign(Field::PostalCode, "12345");
        john.assign(Field::Country, "USA");
        john.assign(Field::Salutation, "Dear John,");
        PhonebookRecord company = test::companyRecord("Acme");
        company.assign(Field::Address1, "Mill Street");
        yellow() = test::bytesOf(john) + test::tombstoneBytes() + test::bytesOf(company);
        white() = test::bytesOf(test::personRecord("Adams", "Eva"));
        settings.Save("DefaultSal", "Dear Sirs,");
        settings.Save("DocFont", "Georgia");
        pad.setBytes("thank you for the tea.\r\nIt was good.");
    }

    [[nodiscard]] std::string signatureFile() { return files["/velmora\\sig.txt"]; }

    // The first text of each job behind the date, which is the name or the company.
    std::vector<std::string> takeReceivers() {
        std::vector<std::string> receivers;
        for (const PrintJob& job : desk.printer.takeJobs())
            receivers.push_back(std::get<PrintedText>(job.pages.front().at(1)).text);
        return receivers;
    }

    test::PrintDesk desk;
    test::FakePadText pad;
    test::FixedFont font;
    test::FakeClock clock;
    LocaleFormats locale;
    Signature signature{"/velmora", files, desk.messages};
    test::FakeSignatureQuestion question;
    std::vector<std::string> ended;
    bool isChanged = false;
    MergePrint merge{{desk.printing, store, settings, pad, font, signature, question, clock, locale,
                      [this](const std::string& text) { ended.push_back(text); }}};
};

TEST_F(MergePrintTest, PrintsALetterToEachEntryInTheOrderOfTheirNames) {
    question.answers = {"With kind regards,\r\n\r\nHelen"};
    merge.run(WhichBooks::Yellow);
    test::expectGolden(desk.printer.takeDump(), "letters.txt");
    EXPECT_EQ(desk.status.text, "Velmora");
    EXPECT_EQ(signatureFile(), "With kind regards,\r\n\r\nHelen\r\n");
}

TEST_F(MergePrintTest, ATabStandsBeforeTheSalutationAlsoBeforeNone) {
    settings.Save("LetterTab", "1");
    settings.Save("DefaultSal", "");
    question.answers = {""};
    merge.run(WhichBooks::Yellow);
    test::expectGolden(desk.printer.takeDump(), "letters-with-tab.txt");
}

TEST_F(MergePrintTest, ALongLetterGoesOnOnTheNextSheet) {
    std::string body;
    for (int i = 1; i <= 70; ++i)
        body += "line " + std::to_string(i) + "\r\n";
    pad.setBytes(body);
    question.answers = {"Helen"};
    merge.run(WhichBooks::White);
    const auto jobs = desk.printer.takeJobs();
    ASSERT_EQ(jobs.size(), 1u);
    EXPECT_EQ(jobs.front().pages.size(), 2u);
}

TEST_F(MergePrintTest, EachLetterIsAJobWithATitle) {
    question.answers = {"Helen"};
    merge.run(WhichBooks::Yellow);
    std::vector<std::string> titles;
    for (const PrintJob& job : desk.printer.takeJobs())
        titles.push_back(job.title);
    EXPECT_THAT(titles, ElementsAre("Velmora: Letter to Acme (1 of 2)",
                                    "Velmora: Letter to Smith, John (2 of 2)"));
}

TEST_F(MergePrintTest, BothPrintsTheYellowPagesFirstAndAsksAgainForTheWhite) {
    question.answers = {"one", "two"};
    merge.run(WhichBooks::Both);
    EXPECT_THAT(takeReceivers(), ElementsAre("Acme", "Mr. John Smith", "Eva Adams"));
    EXPECT_THAT(question.asked, ElementsAre("", "one\r\n"));
    EXPECT_EQ(desk.loop.waited, 3s);
}

TEST_F(MergePrintTest, ACancelledSignatureEndsItsBookOnly) {
    question.answers = {std::nullopt, "two"};
    merge.run(WhichBooks::Both);
    EXPECT_THAT(takeReceivers(), ElementsAre("Eva Adams"));
    EXPECT_TRUE(files.has("/velmora\\sig.txt")) << "it was created empty";
}

TEST_F(MergePrintTest, ADoubledNamePrintsTheFirstEntryTwice) {
    PhonebookRecord other = test::personRecord("SMITH", "John");
    yellow() += test::bytesOf(other);
    question.answers = {""};
    merge.run(WhichBooks::Yellow);
    EXPECT_THAT(takeReceivers(), ElementsAre("Acme", "Mr. John Smith", "Mr. John Smith"));
}

TEST_F(MergePrintTest, AnEntryThatIsNotFoundAgainPrintsNothing) {
    yellow() = test::bytesOf(test::personRecord("Smith, Jr", "Bob")) +
               test::bytesOf(test::companyRecord("Acme, Inc")) +
               test::bytesOf(test::personRecord("Adams", "Al"));
    question.answers = {""};
    merge.run(WhichBooks::Yellow);
    EXPECT_THAT(takeReceivers(), ElementsAre("Al Adams"));
}

TEST_F(MergePrintTest, EntriesThatChangeWhileItPrintsAreTakenAsTheyAreThen) {
    question.answers = {""};
    desk.printer.beforeJob = [this, first = true]() mutable {
        if (!std::exchange(first, false))
            return;
        PhonebookRecord moved = test::personRecord("Smith", "John");
        moved.assign(Field::Title, "Dr.");
        yellow().replace(0, kRecordSize, test::tombstoneBytes());
        yellow() += test::bytesOf(moved);
    };
    merge.run(WhichBooks::Yellow);
    EXPECT_THAT(takeReceivers(), ElementsAre("Acme", "Dr. John Smith"));
}

TEST_F(MergePrintTest, ADeletedEntryGetsNoLetterAnyMore) {
    question.answers = {""};
    desk.loop.onYield = [this] { yellow().replace(0, kRecordSize, test::tombstoneBytes()); };
    merge.run(WhichBooks::Yellow);
    EXPECT_THAT(takeReceivers(), ElementsAre("Acme"));
}

TEST_F(MergePrintTest, TheTextIsThatOfTheBeginning) {
    question.answers = {""};
    desk.loop.onYield = [this] { pad.setBytes("changed"); };
    merge.run(WhichBooks::White);
    EXPECT_THAT(desk.printer.takeDump(), ::testing::HasSubstr("thank you"));
}

TEST_F(MergePrintTest, CancelledLettersAreNotSent) {
    question.answers = {""};
    desk.loop.onYield = [this] {
        if (desk.printer.jobsSent() == 1)
            desk.jobs.cancel();
    };
    merge.run(WhichBooks::Yellow);
    EXPECT_THAT(takeReceivers(), ElementsAre("Acme"));
    EXPECT_EQ(desk.status.text, "Velmora");
}

TEST_F(MergePrintTest, AQueueThatTakesNoMoreIsWaitedForAndNoLetterIsLeftOut) {
    desk.printer.tries = 3;
    question.answers = {""};
    merge.run(WhichBooks::Yellow);
    EXPECT_EQ(desk.printer.tries, 0);
    EXPECT_THAT(takeReceivers(), ElementsAre("Acme", "Mr. John Smith"));
    EXPECT_THAT(desk.messages.takeShown(), IsEmpty());
}

TEST_F(MergePrintTest, WaitingForAFullQueueCanBeCancelled) {
    desk.printer.tries = 1000000;
    question.answers = {""};
    desk.loop.onYield = [this] {
        if (desk.printer.tries < 999990)
            desk.jobs.cancel();
    };
    merge.run(WhichBooks::Yellow);
    EXPECT_THAT(takeReceivers(), IsEmpty());
    EXPECT_THAT(desk.messages.takeShown(), IsEmpty());
}

TEST_F(MergePrintTest, APrinterThatVanishesIsTold) {
    desk.printer.refusal = "Nothing was printed.";
    question.answers = {""};
    merge.run(WhichBooks::Yellow);
    EXPECT_THAT(desk.messages.takeShown(), ElementsAre("error|Velmora|Nothing was printed."));
}

TEST_F(MergePrintTest, AMissingAndAnEmptyBookPrintNothing) {
    yellow().clear();
    question.answers = {""};
    merge.run(WhichBooks::Yellow);
    EXPECT_THAT(takeReceivers(), IsEmpty());
    EXPECT_EQ(desk.status.text, "Velmora");
}

TEST_F(MergePrintTest, ABookThatCanNotBeReadIsTold) {
    question.answers = {""};
    desk.status.text.clear();
    static_cast<void>(signature.load());
    files.unreachable = true;
    merge.run(WhichBooks::Yellow);
    EXPECT_THAT(desk.messages.takeShown(), ::testing::Contains(::testing::StartsWith("error|")));
    files.unreachable = false;
}

TEST_F(MergePrintTest, MoreNamesThanTheBoundEndTheProgramAndPrintNothing) {
    yellow().clear();
    const std::string one = test::bytesOf(test::personRecord("Smith", "John"));
    for (int i = 0; i < 30002; ++i)
        yellow() += one;
    question.answers = {""};
    merge.run(WhichBooks::Both);
    EXPECT_THAT(ended, ElementsAre("Subscript out of range"));
    EXPECT_THAT(takeReceivers(), IsEmpty());
    EXPECT_EQ(question.asked.size(), 1u);
}

TEST_F(MergePrintTest, AsManyNamesAsTheBoundAreLetters) {
    yellow().clear();
    const std::string one = test::bytesOf(test::personRecord("Smith", "John"));
    for (int i = 0; i < 30001; ++i)
        yellow() += one;
    question.answers = {""};
    int count = 0;
    desk.loop.onYield = [&] {
        count = desk.printing.state().ReportCount;
        if (desk.printer.jobsSent() == 2)
            desk.jobs.cancel();
    };
    merge.run(WhichBooks::Yellow);
    EXPECT_EQ(count, 30001);
    EXPECT_THAT(ended, IsEmpty());
    EXPECT_EQ(desk.printer.takeJobs().at(1).title, "Velmora: Letter to Smith, John (2 of 30001)");
}

TEST_F(MergePrintTest, FieldsOfNulsAndAShortTailAreEmptyInALetter) {
    PhonebookRecord bare;
    bare.assign(Field::Last, "Abel");
    yellow() = test::bytesOf(bare) +
               test::bytesOf(test::personRecord("Baker", "Bob", "cut")).substr(0, 40);
    question.answers = {""};
    merge.run(WhichBooks::Yellow);
    const auto jobs = desk.printer.takeJobs();
    ASSERT_EQ(jobs.size(), 2u);
    std::vector<std::vector<std::string>> letters;
    for (const PrintJob& job : jobs) {
        letters.emplace_back();
        for (const auto& mark : job.pages.at(0))
            letters.back().push_back(std::get<PrintedText>(mark).text);
    }
    EXPECT_THAT(letters.at(0), ElementsAre("12-Mar-26", "Abel", "Dear Sirs,",
                                           "thank you for the tea.", "It was good."));
    EXPECT_THAT(letters.at(1), ElementsAre("12-Mar-26", "Bob Baker", "Dear Sirs,",
                                           "thank you for the tea.", "It was good."));
}

TEST_F(MergePrintTest, WhoIsAddedOrRenamedWhileItPrintsGetsNoLetter) {
    question.answers = {""};
    desk.loop.onYield = [this] {
        if (desk.printing.state().ReportCount == 0 || std::exchange(isChanged, true))
            return;
        yellow().replace(0, kRecordSize, test::bytesOf(test::personRecord("Renamed", "John")));
        yellow() += test::bytesOf(test::personRecord("Added", "Ann"));
    };
    merge.run(WhichBooks::Yellow);
    EXPECT_THAT(takeReceivers(), ElementsAre("Acme"));
}

TEST_F(MergePrintTest, APrinterThatVanishesBehindSomeLettersIsToldAndNoneIsTriedAnyMore) {
    question.answers = {""};
    desk.printer.beforeJob = [this] {
        if (desk.printer.jobsSent() == 1)
            throw Failure("Nothing was printed.");
    };
    merge.run(WhichBooks::Yellow);
    EXPECT_THAT(takeReceivers(), ElementsAre("Acme"));
    EXPECT_THAT(desk.messages.takeShown(), ElementsAre("error|Velmora|Nothing was printed."));
    EXPECT_FALSE(desk.jobs.running());
}

TEST_F(MergePrintTest, NothingHappensWhileAnotherJobRuns) {
    desk.jobs.run([this](LongJob&) { merge.run(WhichBooks::Yellow); });
    EXPECT_THAT(question.asked, IsEmpty());
}

TEST_F(MergePrintTest, TheSignatureOfALastRunComesBackALineLonger) {
    files["/velmora\\sig.txt"] = "Helen";
    EXPECT_EQ(signature.load(), "Helen");
    signature.keep("Helen");
    EXPECT_EQ(signature.load(), "Helen\r\n");
}

TEST_F(MergePrintTest, ASignatureFileThatIsTooLargeIsToldAndKept) {
    const std::string large(40001, 'x');
    files["/velmora\\sig.txt"] = large;
    EXPECT_EQ(signature.load(), "");
    EXPECT_THAT(desk.messages.takeShown(),
                ElementsAre("tell|File Exceeded Maximum Length.|Signature file is too large."));
    signature.keep("Helen");
    EXPECT_EQ(signatureFile(), "Helen\r\n");
    EXPECT_EQ(files["/velmora\\sig.txt~"], large);
    files["/velmora\\sig.txt"] = std::string(40000, 'x');
    EXPECT_EQ(signature.load().size(), 40000u);
}

TEST_F(MergePrintTest, ASignatureThatCouldNotBeReadIsNotWrittenOver) {
    files["/velmora\\sig.txt"] = "old";
    files.unreachable = true;
    EXPECT_EQ(signature.load(), "");
    files.unreachable = false;
    EXPECT_EQ(desk.messages.takeShown().size(), 1u);
    signature.keep("Helen");
    EXPECT_EQ(signatureFile(), "Helen\r\n");
    EXPECT_EQ(files["/velmora\\sig.txt~"], "old");
}

TEST_F(MergePrintTest, ASignatureInAFolderThatIsReadOnlyIsToldAndPrintsAllTheSame) {
    const test::TemporaryFolder folder;
    const std::string own = folder.path() + "/own";
    const std::string path = own + "/sig.txt";
    {
        const test::OrdinaryUser user(folder.path());
        std::filesystem::create_directory(own);
        std::ofstream(path) << "old\r\n";
        std::filesystem::permissions(path, std::filesystem::perms(0444));
        std::filesystem::permissions(own, std::filesystem::perms(0555));
        PosixFiles realFiles{NativePaths(codePage)};
        Signature real(own, realFiles, desk.messages);
        question.answers = {"Helen"};
        MergePrint({desk.printing, store, settings, pad, font, real, question, clock, locale,
                    [](const std::string&) {}})
            .run(WhichBooks::White);
        std::filesystem::permissions(own, std::filesystem::perms(0755));
    }
    EXPECT_THAT(question.asked, ElementsAre("old\r\n"));
    EXPECT_THAT(takeReceivers(), ElementsAre("Eva Adams"));
    EXPECT_THAT(desk.messages.takeShown(),
                ElementsAre(::testing::StartsWith("error|Velmora|The file " + path)));
    std::ifstream left(path, std::ios::binary);
    EXPECT_EQ(std::string(std::istreambuf_iterator<char>(left), {}), "old\r\n");
}

TEST_F(MergePrintTest, ASignatureThatCanNotBeWrittenIsToldAndPrintsAllTheSame) {
    files["/velmora\\sig.txt"] = "old";
    files.writesUntilFailure = 0;
    question.answers = {"Helen"};
    merge.run(WhichBooks::White);
    EXPECT_EQ(takeReceivers().size(), 1u);
    EXPECT_EQ(desk.messages.takeShown().size(), 1u);
    files.writesUntilFailure = -1;
    EXPECT_EQ(signatureFile(), "old");
}

}  // namespace
}  // namespace velmora
