#include "phonebook/EntryWriter.h"

#include <gtest/gtest.h>

#include <optional>
#include <string>
#include <vector>

#include "platform/Failure.h"
#include "support/FakeMessages.h"
#include "support/PhonebookFixture.h"

namespace velmora {
namespace {

using test::bytesOf;
using test::companyRecord;
using test::formRecord;
using test::personRecord;
using test::tombstoneBytes;
using Texts = std::vector<std::string>;

const std::string kQuestion = "ask|Velmora|This entry exists. Would you like to overwrite it?";
const std::string kAdams = bytesOf(personRecord("Adams", "Ann"));
const std::string kBaker = bytesOf(personRecord("Baker", "Bob"));
const std::string kClark = bytesOf(personRecord("Clark", "Cy"));
const std::string kAcme = bytesOf(companyRecord("Acme"));

class EntryWriterTest : public testing::Test, protected test::PhonebookFixture {
  protected:
    EntryWriter::ChangeResult change(const std::string& line, const PhonebookRecord& record) {
        return writer.change(kYellowPagesFile, line, record);
    }

    test::FakeMessages messages;
    EntryWriter writer{store, messages};
};

TEST_F(EntryWriterTest, TheFirstEntryOfAnAbsentBookBecomesRecordOne) {
    EXPECT_TRUE(writer.add(kYellowPagesFile, companyRecord("Acme")));
    EXPECT_EQ(yellow(), kAcme);
    EXPECT_EQ(files.openFiles(), 0);
}

TEST_F(EntryWriterTest, ScanAndWriteLieUnderOneLock) {
    yellow() = kAdams;
    EXPECT_TRUE(writer.add(kYellowPagesFile, companyRecord("Acme")));
    EXPECT_EQ(files.takeLog(), (Texts{"lock", "write 1595", "unlock"}));
}

TEST_F(EntryWriterTest, AddingAfterDeletingRecordThreeOfFiveReusesItAndKeepsTheLength) {
    yellow() = kAdams + kBaker + kClark + kAcme + bytesOf(companyRecord("Beta"));
    writer.remove(kYellowPagesFile, "Clark, Cy");
    EXPECT_EQ(slot(yellow(), 3), tombstoneBytes());
    EXPECT_EQ(yellow().size(), 5 * kRecordSize);
    EXPECT_TRUE(writer.add(kYellowPagesFile, personRecord("Young", "Al")));
    EXPECT_EQ(slot(yellow(), 3), bytesOf(personRecord("Young", "Al")));
    EXPECT_EQ(yellow().size(), 5 * kRecordSize);
}

TEST_F(EntryWriterTest, TheSameNameTwiceAsksWithNoBookOpenAndOverwritesAfterAYes) {
    yellow() = kAdams + kBaker;
    messages.whileOpen([&] { EXPECT_EQ(files.openFiles(), 0); });
    messages.willAnswer(true);
    EXPECT_TRUE(writer.add(kYellowPagesFile, personRecord("adams", "ann", "new")));
    EXPECT_EQ(messages.takeShown(), Texts{kQuestion});
    EXPECT_EQ(messages.takePreselected(), std::vector{Answer::No});
    EXPECT_EQ(yellow(), bytesOf(personRecord("adams", "ann", "new")) + kBaker);
    EXPECT_EQ(files.takeLog(), (Texts{"lock", "unlock", "lock", "write 0", "unlock"}));
}

TEST_F(EntryWriterTest, ANoWritesNothing) {
    yellow() = kAdams + kBaker + tombstoneBytes();
    const std::string before = yellow();
    messages.willAnswer(false);
    EXPECT_FALSE(writer.add(kYellowPagesFile, personRecord("Baker", "Bob", "new")));
    EXPECT_EQ(yellow(), before);
    EXPECT_EQ(messages.takeShown(), Texts{kQuestion});
}

TEST_F(EntryWriterTest, TheSlotIsLookedForAgainAfterTheQuestion) {
    yellow() = kAdams + kBaker;
    messages.willAnswer(true);
    messages.whileOpen([&] { yellow() = tombstoneBytes() + kAdams; });
    EXPECT_TRUE(writer.add(kYellowPagesFile, personRecord("Baker", "Bob", "new")));
    EXPECT_EQ(yellow(), bytesOf(personRecord("Baker", "Bob", "new")) + kAdams);
}

TEST_F(EntryWriterTest, AChangeInPlaceIsOneWrite) {
    yellow() = kAdams + kBaker + kClark;
    const PhonebookRecord changed = personRecord("Baker", "Bob", "new");
    EXPECT_EQ(change("Baker, Bob", changed), EntryWriter::ChangeResult::Written);
    EXPECT_EQ(yellow(), kAdams + bytesOf(changed) + kClark);
    EXPECT_EQ(files.takeLog(), (Texts{"lock", "write 1595", "unlock"}));
}

TEST_F(EntryWriterTest, AChangeTakesAnEarlierTombstoneAndWritesTheNewRecordFirst) {
    yellow() = kAdams + tombstoneBytes() + kBaker + kClark;
    const PhonebookRecord changed = personRecord("Clark", "Cy", "new");
    EXPECT_EQ(change("Clark, Cy", changed), EntryWriter::ChangeResult::Written);
    EXPECT_EQ(yellow(), kAdams + bytesOf(changed) + kBaker + tombstoneBytes());
    EXPECT_EQ(files.takeLog(), (Texts{"lock", "write 1595", "write 4785", "unlock"}));
}

TEST_F(EntryWriterTest, ALaterTombstoneIsNotTaken) {
    yellow() = kAdams + kBaker + tombstoneBytes();
    const PhonebookRecord changed = personRecord("Adams", "Ann", "new");
    EXPECT_EQ(change("Adams, Ann", changed), EntryWriter::ChangeResult::Written);
    EXPECT_EQ(yellow(), bytesOf(changed) + kBaker + tombstoneBytes());
}

TEST_F(EntryWriterTest, AChangeThatFailsBetweenItsWritesIsTakenBack) {
    yellow() = tombstoneBytes() + kBaker;
    files.failsOnceAt = kRecordSize;
    const PhonebookRecord changed = personRecord("Baker", "Bob", "new");
    EXPECT_THROW((void)change("Baker, Bob", changed), Failure);
    EXPECT_EQ(yellow(), tombstoneBytes() + kBaker);
    EXPECT_EQ(files.openFiles(), 0);
}

TEST_F(EntryWriterTest, AnEntryThatIsNotWhatWasSeenIsNotOverwritten) {
    const PhonebookRecord loaded = personRecord("Baker", "Bob");
    const PhonebookRecord theirs = personRecord("Baker", "Bob", "theirs");
    const PhonebookRecord mine = personRecord("Baker", "Bob", "mine");
    yellow() = kAdams + bytesOf(theirs);
    std::optional<PhonebookRecord> seen = loaded;
    const auto tryMine = [&] { return writer.change(kYellowPagesFile, "Baker, Bob", mine, &seen); };
    EXPECT_EQ(tryMine(), EntryWriter::ChangeResult::ChangedMeanwhile);
    EXPECT_EQ(yellow(), kAdams + bytesOf(theirs));
    ASSERT_TRUE(seen);
    EXPECT_EQ(bytesOf(*seen), bytesOf(theirs));
    EXPECT_EQ(tryMine(), EntryWriter::ChangeResult::Written);
    EXPECT_EQ(yellow(), kAdams + bytesOf(mine));
}

TEST_F(EntryWriterTest, AnEntryThatCameBackAfterItWasGoneIsNotOverwritten) {
    yellow() = kBaker;
    std::optional<PhonebookRecord> seen;
    EXPECT_EQ(
        writer.change(kYellowPagesFile, "Baker, Bob", personRecord("Baker", "Bob", "mine"), &seen),
        EntryWriter::ChangeResult::ChangedMeanwhile);
    EXPECT_EQ(yellow(), kBaker);
}

TEST_F(EntryWriterTest, AnEntryThatIsGoneIsWrittenWhateverWasSeen) {
    yellow() = kAdams;
    std::optional<PhonebookRecord> seen = personRecord("Baker", "Bob");
    EXPECT_EQ(
        writer.change(kYellowPagesFile, "Baker, Bob", personRecord("Baker", "Bob", "mine"), &seen),
        EntryWriter::ChangeResult::Written);
    EXPECT_EQ(yellow(), kAdams + bytesOf(personRecord("Baker", "Bob", "mine")));
}

TEST_F(EntryWriterTest, ChangesTheFirstRecordThatFitsAndNoOtherByte) {
    yellow() = kAdams + kBaker + kBaker;
    const auto written = writer.changeFirst(
        kYellowPagesFile, [](RecordView record) { return record.text(Field::Last) == "Baker"; },
        [](PhonebookRecord& record) { record.assign(Field::Class, "Friend"); });
    EXPECT_EQ(written.text(Field::Class), "Friend");
    EXPECT_EQ(yellow(), kAdams + bytesOf(written) + kBaker);
    EXPECT_EQ(files.takeLog(), (Texts{"lock", "write 1595", "unlock"}));
}

TEST_F(EntryWriterTest, ChangesAnEmptyRecordBehindTheLastWhereNoneFits) {
    yellow() = kAdams;
    const auto written = writer.changeFirst(
        kYellowPagesFile, [](RecordView) { return false; },
        [](PhonebookRecord& record) { record.assign(Field::Class, "Friend"); });
    EXPECT_EQ(yellow(), kAdams + bytesOf(written));
    EXPECT_EQ(written.text(Field::Last), "");
}

TEST_F(EntryWriterTest, TheNameOfAnotherEntryIsTaken) {
    yellow() = kAdams + kBaker + kAcme + bytesOf(companyRecord("Beta"));
    const std::string before = yellow();
    EXPECT_EQ(change("Baker, Bob", personRecord("ADAMS", "ann")),
              EntryWriter::ChangeResult::NameTaken);
    EXPECT_EQ(change("Beta", companyRecord("acme")), EntryWriter::ChangeResult::NameTaken);
    EXPECT_EQ(change("Baker, Bob", companyRecord("Acme")), EntryWriter::ChangeResult::NameTaken);
    EXPECT_EQ(yellow(), before);
}

TEST_F(EntryWriterTest, ANameTooLongForItsFieldIsTakenWhenTheCutOneIs) {
    yellow() = kAdams + bytesOf(personRecord("12345678901234567890", "Ann"));
    EXPECT_EQ(change("Adams, Ann", personRecord("123456789012345678901", "Ann")),
              EntryWriter::ChangeResult::NameTaken);
}

TEST_F(EntryWriterTest, AnEntryDoesNotCollideWithItself) {
    yellow() = kAdams + kAcme;
    EXPECT_EQ(change("Adams, Ann", personRecord("ADAMS", "Ann ")),
              EntryWriter::ChangeResult::Written);
    EXPECT_EQ(change("Acme", companyRecord("ACME ")), EntryWriter::ChangeResult::Written);
    EXPECT_EQ(yellow(), bytesOf(personRecord("ADAMS", "Ann ")) + bytesOf(companyRecord("ACME ")));
}

TEST_F(EntryWriterTest, APersonMayBecomeACompanyAndTheReverse) {
    yellow() = kAdams + kAcme;
    EXPECT_EQ(change("Adams, Ann", companyRecord("Beta")), EntryWriter::ChangeResult::Written);
    EXPECT_EQ(change("Acme", formRecord("Smith", "Al", "Acme")),
              EntryWriter::ChangeResult::Written);
    EXPECT_EQ(yellow(),
              bytesOf(companyRecord("Beta")) + bytesOf(formRecord("Smith", "Al", "Acme")));
}

TEST_F(EntryWriterTest, ABlankNameCollidesWithNoCompany) {
    yellow() = kAcme + kBaker;
    EXPECT_EQ(change("Baker, Bob", personRecord(" ", " ")), EntryWriter::ChangeResult::Written);
    EXPECT_EQ(yellow(), kAcme + bytesOf(formRecord("", "")));
}

TEST_F(EntryWriterTest, AChangeOfAnEntryThatIsGoneIsWritten) {
    yellow() = kAdams;
    EXPECT_EQ(change("Baker, Bob", personRecord("Baker", "Bob", "new")),
              EntryWriter::ChangeResult::Written);
    EXPECT_EQ(yellow(), kAdams + bytesOf(personRecord("Baker", "Bob", "new")));
}

TEST_F(EntryWriterTest, OfTwoEntriesOfOneNameTheFirstIsMeant) {
    yellow() = kAdams + kBaker + kBaker;
    writer.remove(kYellowPagesFile, "Baker, Bob");
    EXPECT_EQ(yellow(), kAdams + tombstoneBytes() + kBaker);
}

TEST_F(EntryWriterTest, DeletingACompanyLeavesPeopleWhoWorkThere) {
    const std::string before =
        bytesOf(formRecord("Smith", "Ann", "Acme")) + bytesOf(formRecord("", "Ann", "Acme"));
    yellow() = before + kAcme;
    writer.remove(kYellowPagesFile, "acme");
    EXPECT_EQ(yellow(), before + tombstoneBytes());
}

TEST_F(EntryWriterTest, DeletingWhatIsGoneWritesNothing) {
    yellow() = kAdams;
    writer.remove(kYellowPagesFile, "Baker, Bob");
    EXPECT_EQ(yellow(), kAdams);
}

TEST_F(EntryWriterTest, MovingKeepsAllBytesAndWritesTheTargetFirst) {
    PhonebookRecord record = companyRecord("Acme");
    for (std::size_t i = 4; i < kFieldCount; ++i)
        record.assign(static_cast<Field>(i), "value " + std::to_string(i));
    std::string bytes = bytesOf(record);
    bytes[1594] = '\0';
    yellow() = kAdams + bytes;
    white() = kBaker;
    writer.move(kYellowPagesFile, kWhitePagesFile, "Acme");
    EXPECT_EQ(white(), kBaker + bytes);
    EXPECT_EQ(yellow(), kAdams + tombstoneBytes());
}

TEST_F(EntryWriterTest, AMoveThatFailsAtTheSourceIsTakenBack) {
    yellow() = kAdams + kAcme;
    white() = kBaker;
    files.failsOnceAt = kRecordSize;
    files.failingFile = "/velmora\\DATAY.QEL";
    EXPECT_THROW(writer.move(kYellowPagesFile, kWhitePagesFile, "Acme"), Failure);
    EXPECT_EQ(yellow(), kAdams + kAcme);
    EXPECT_EQ(white(), kBaker + tombstoneBytes());
}

TEST_F(EntryWriterTest, AMoveThatIsTakenBackPutsBackWhatItOverwrote) {
    yellow() = kAdams;
    white() = bytesOf(personRecord("ADAMS", "ANN"));
    files.failsOnceAt = 0;
    files.failingFile = "/velmora\\DATAY.QEL";
    messages.willAnswer(true);
    EXPECT_THROW(writer.move(kYellowPagesFile, kWhitePagesFile, "Adams, Ann"), Failure);
    EXPECT_EQ(yellow(), kAdams);
    EXPECT_EQ(white(), bytesOf(personRecord("ADAMS", "ANN")));
}

TEST_F(EntryWriterTest, AMoveBetweenTwoNamesOfOneBookIsRefused) {
    yellow() = kAdams;
    files.link("/velmora\\DATAW.QEL", "/velmora\\DATAY.QEL");
    EXPECT_THROW(writer.move(kYellowPagesFile, kWhitePagesFile, "Adams, Ann"), Failure);
    EXPECT_EQ(yellow(), kAdams);
    EXPECT_EQ(files.takeLog(), Texts{});
}

TEST_F(EntryWriterTest, AMoveThatFailsAtTheTargetLeavesTheSource) {
    yellow() = kAcme;
    files.writesUntilFailure = 0;
    EXPECT_THROW(writer.move(kYellowPagesFile, kWhitePagesFile, "Acme"), Failure);
    EXPECT_EQ(yellow(), kAcme);
    EXPECT_EQ(white(), "");
}

TEST_F(EntryWriterTest, AMoveOntoTheSameNameAsksAndANoLeavesBothBooks) {
    yellow() = kAdams;
    white() = bytesOf(personRecord("ADAMS", "ANN"));
    messages.willAnswer(false);
    writer.move(kYellowPagesFile, kWhitePagesFile, "Adams, Ann");
    EXPECT_EQ(messages.takeShown(), Texts{kQuestion});
    EXPECT_EQ(yellow(), kAdams);
    EXPECT_EQ(white(), bytesOf(personRecord("ADAMS", "ANN")));
    messages.willAnswer(true);
    writer.move(kYellowPagesFile, kWhitePagesFile, "Adams, Ann");
    EXPECT_EQ(yellow(), tombstoneBytes());
    EXPECT_EQ(white(), kAdams);
}

TEST_F(EntryWriterTest, AnEntryThatChangedDuringItsMoveIsNotDeleted) {
    yellow() = kAdams;
    white() = bytesOf(personRecord("ADAMS", "ANN"));
    const std::string changed = bytesOf(personRecord("Adams", "Ann", "changed"));
    messages.willAnswer(true);
    messages.whileOpen([&] { yellow() = changed; });
    EXPECT_THROW(writer.move(kYellowPagesFile, kWhitePagesFile, "Adams, Ann"), Failure);
    EXPECT_EQ(yellow(), changed);
    EXPECT_EQ(white(), bytesOf(personRecord("ADAMS", "ANN")));
}

TEST_F(EntryWriterTest, MovingWhatIsGoneWritesNothing) {
    yellow() = kAdams;
    writer.move(kYellowPagesFile, kWhitePagesFile, "Baker, Bob");
    EXPECT_EQ(yellow(), kAdams);
    EXPECT_EQ(white(), "");
}

}  // namespace
}  // namespace velmora
