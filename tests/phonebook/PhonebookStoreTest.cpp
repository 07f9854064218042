#include "phonebook/PhonebookStore.h"

#include <gtest/gtest.h>

#include <string>

#include "platform/Failure.h"
#include "support/PhonebookFixture.h"

namespace velmora {
namespace {

using test::bytesOf;
using test::companyRecord;
using test::formRecord;
using test::personRecord;
using test::tombstoneBytes;

class PhonebookStoreTest : public testing::Test, protected test::PhonebookFixture {
  protected:
    OpenBook open() { return store.Open(kYellowPagesFile); }

    std::size_t slotFor(const PhonebookRecord& record, SlotMode mode = SlotMode::Overwrite) {
        return static_cast<std::size_t>(open().FindSlot(record, mode).number);
    }
};

const std::string kAdams = bytesOf(personRecord("Adams", "Ann"));
const std::string kBaker = bytesOf(personRecord("Baker", "Bob"));
const std::string kAcme = bytesOf(companyRecord("Acme"));
const std::string kNulSlot(kRecordSize, '\0');

TEST_F(PhonebookStoreTest, OpensNoOtherBookWhereTheSettingCanNotBeRead) {
    settings.Save("White", "/share");
    medium.unreadable = true;
    EXPECT_THROW((void)store.Open(kWhitePagesFile), Failure);
    EXPECT_FALSE(files.has("/velmora\\DATAW.QEL"));
}

TEST_F(PhonebookStoreTest, OpeningCreatesAnEmptyBookInTheFolderOfTheSettings) {
    settings.Save("White", "/share");
    EXPECT_EQ(store.Open(kWhitePagesFile).recordCount(), 0);
    EXPECT_TRUE(files.has("/share\\DATAW.QEL"));
    EXPECT_EQ(store.Open(kYellowPagesFile).recordCount(), 0);
    EXPECT_TRUE(files.has("/velmora\\DATAY.QEL"));
    EXPECT_EQ(files.openFiles(), 0);
}

TEST_F(PhonebookStoreTest, ReadsOneRecordAfterTheOtherAndEmptiesTheLast) {
    yellow() = kAdams + kAcme;
    OpenBook book = open();
    PhonebookRecord record;
    EXPECT_TRUE(book.ReadNext(record));
    EXPECT_EQ(bytesOf(record), kAdams);
    EXPECT_TRUE(book.ReadNext(record));
    EXPECT_EQ(bytesOf(record), kAcme);
    EXPECT_FALSE(book.AtEnd());
    EXPECT_FALSE(book.ReadNext(record));
    EXPECT_EQ(bytesOf(record), kNulSlot);
    EXPECT_TRUE(book.AtEnd());
}

TEST_F(PhonebookStoreTest, AShortLastRecordIsReadAsFarAsItGoesAndCounts) {
    yellow() = kAdams + kBaker.substr(0, 18);
    OpenBook book = open();
    EXPECT_EQ(book.recordCount(), 2);
    PhonebookRecord record;
    EXPECT_TRUE(book.ReadNext(record));
    EXPECT_FALSE(book.AtEnd());
    EXPECT_TRUE(book.ReadNext(record));
    EXPECT_EQ(record.text(Field::Last), "Bak");
    EXPECT_EQ(record.raw(Field::Company), std::string(50, '\0'));
    EXPECT_TRUE(book.AtEnd());
    EXPECT_FALSE(book.ReadNext(record));
    EXPECT_EQ(slotFor(companyRecord("New")), 3U);
}

TEST_F(PhonebookStoreTest, RecordsLieAtTheirNumber) {
    yellow() = kAdams + kBaker + kAcme;
    OpenBook book = open();
    PhonebookRecord record;
    EXPECT_TRUE(book.ReadAt(2, record));
    EXPECT_EQ(bytesOf(record), kBaker);
    EXPECT_FALSE(book.ReadAt(4, record));
    EXPECT_EQ(bytesOf(record), kNulSlot);
    EXPECT_THROW((void)book.ReadAt(0, record), Failure);
}

TEST_F(PhonebookStoreTest, WritingBehindTheEndGrowsTheFile) {
    {
        OpenBook book = open();
        const OpenBook::Lock lock(book);
        book.WriteAt(1, personRecord("Adams", "Ann"));
        book.WriteAt(3, companyRecord("Acme"));
    }
    EXPECT_EQ(yellow(), kAdams + kNulSlot + kAcme);
}

TEST_F(PhonebookStoreTest, AReadAfterAWriteSeesIt) {
    yellow() = kAdams + kBaker;
    OpenBook book = open();
    PhonebookRecord record;
    EXPECT_TRUE(book.ReadNext(record));
    {
        const OpenBook::Lock lock(book);
        book.WriteAt(2, companyRecord("Acme"));
    }
    EXPECT_TRUE(book.ReadNext(record));
    EXPECT_EQ(bytesOf(record), kAcme);
    EXPECT_FALSE(book.ReadNext(record));
}

TEST_F(PhonebookStoreTest, ATombstoneKeepsTheSlotAndNoOldData) {
    yellow() = kAdams + kBaker + kAcme;
    {
        OpenBook book = open();
        const OpenBook::Lock lock(book);
        book.Tombstone(2);
    }
    EXPECT_EQ(yellow(), kAdams + tombstoneBytes() + kAcme);
}

TEST_F(PhonebookStoreTest, FindsTheFirstEntryThatALineNames) {
    yellow() = bytesOf(formRecord("Smith", "Ann", "Acme")) + kAcme + kBaker + kAcme;
    EXPECT_EQ(open().FindByListLine("acme"), 2);
    EXPECT_EQ(open().FindByListLine("BAKER, bob"), 3);
    EXPECT_EQ(open().FindByListLine("Baker, Al"), std::nullopt);
    EXPECT_EQ(open().FindByListLine(""), std::nullopt);
}

TEST_F(PhonebookStoreTest, FindsEntriesBehindTheFirstBlock) {
    for (int i = 0; i < 2000; ++i)
        yellow() += bytesOf(personRecord("Baker", std::to_string(i)));
    EXPECT_EQ(open().FindByListLine("Baker, 0"), 1);
    EXPECT_EQ(open().FindByListLine("Baker, 656"), 657);
    EXPECT_EQ(open().FindByListLine("Baker, 657"), 658);
    EXPECT_EQ(open().FindByListLine("Baker, 1999"), 2000);
    EXPECT_EQ(slotFor(companyRecord("New")), 2001U);
}

TEST_F(PhonebookStoreTest, TheFirstEntryOfAnEmptyBookIsRecordOne) {
    EXPECT_EQ(slotFor(personRecord("Adams", "Ann")), 1U);
}

TEST_F(PhonebookStoreTest, ANewEntryGoesBehindTheLast) {
    yellow() = kAdams + kBaker;
    EXPECT_EQ(slotFor(companyRecord("Acme"), SlotMode::Add), 3U);
}

TEST_F(PhonebookStoreTest, AnEntryOfTheSameNameIsAskedAboutOnlyWhenAdding) {
    yellow() = kAdams + kBaker;
    const Slot adding = open().FindSlot(personRecord("baker", "BOB"), SlotMode::Add);
    EXPECT_EQ(adding.number, 2);
    EXPECT_TRUE(adding.mustAsk);
    const Slot changing = open().FindSlot(personRecord("baker", "BOB"), SlotMode::Overwrite);
    EXPECT_EQ(changing.number, 2);
    EXPECT_FALSE(changing.mustAsk);
}

TEST_F(PhonebookStoreTest, TheFirstTombstoneWinsOverAnEntryOfTheSameNameFurtherOn) {
    yellow() = kAdams + tombstoneBytes() + kBaker;
    const Slot slot = open().FindSlot(personRecord("Baker", "Bob"), SlotMode::Add);
    EXPECT_EQ(slot.number, 2);
    EXPECT_FALSE(slot.mustAsk);
}

TEST_F(PhonebookStoreTest, ALowerCaseDeletedIsATombstoneForReuse) {
    yellow() = kAdams + bytesOf(personRecord("deleted", "Bob"));
    EXPECT_EQ(slotFor(companyRecord("New")), 2U);
}

TEST_F(PhonebookStoreTest, NulNamesAreAFreeSlotButBlankOnesAreNot) {
    yellow() = kAcme + bytesOf(formRecord("", "")) + kNulSlot + kAdams;
    EXPECT_EQ(slotFor(companyRecord("New")), 3U);
    PhonebookRecord nulNamed;
    nulNamed.assign(Field::Company, "Imported");
    yellow() = kAdams + bytesOf(nulNamed);
    EXPECT_EQ(slotFor(companyRecord("New")), 2U);
}

TEST_F(PhonebookStoreTest, ACompanyNeverTakesTheSlotOfAPersonOrOfAnotherCompany) {
    yellow() = bytesOf(formRecord("Smith", "Ann", "Acme")) + bytesOf(companyRecord("Beta"));
    EXPECT_EQ(slotFor(companyRecord("Acme")), 3U);
}

TEST_F(PhonebookStoreTest, ARecordOfBlanksMatchesNothing) {
    yellow() = bytesOf(formRecord("", "")) + kAcme;
    EXPECT_EQ(slotFor(formRecord("", "")), 3U);
}

TEST_F(PhonebookStoreTest, AValueOf21CharactersIsCutAndIdentifiedByTheCutValue) {
    yellow() = bytesOf(personRecord("12345678901234567890", "Ann"));
    const Slot slot = open().FindSlot(personRecord("123456789012345678901", "Ann"), SlotMode::Add);
    EXPECT_EQ(slot.number, 1);
    EXPECT_TRUE(slot.mustAsk);
}

TEST_F(PhonebookStoreTest, ARecordMayCountAsDeleted) {
    yellow() = kAdams + kBaker + kAcme;
    EXPECT_EQ(open().FindSlot(companyRecord("New"), SlotMode::Overwrite, 2).number, 2);
    EXPECT_EQ(open().FindSlot(personRecord("Adams", "Ann"), SlotMode::Overwrite, 2).number, 1);
}

TEST_F(PhonebookStoreTest, GivesTheTabOfAnEntry) {
    EXPECT_EQ(store.BucketOf(companyRecord("3M")), 26);
    EXPECT_EQ(store.BucketOf(companyRecord("Acme")), 0);
    EXPECT_EQ(store.BucketOf(personRecord("O'Brien", "Pat")), 14);
}

TEST_F(PhonebookStoreTest, AFolderThatCanNotBeReachedIsAFailure) {
    files.unreachable = true;
    EXPECT_THROW((void)open(), Failure);
}

TEST_F(PhonebookStoreTest, AnythingCanBeReadAsABook) {
    std::string noise;
    unsigned seed = 7;
    for (int i = 0; i < 5 * 1595 + 700; ++i)
        noise += static_cast<char>((seed = seed * 1103515245 + 12345) >> 16);
    for (const std::string& bytes : {std::string(), std::string(1, 'x'), std::string(1594, '\0'),
                                     std::string(3000, '\0'), noise}) {
        SCOPED_TRACE(bytes.size());
        yellow() = bytes;
        EXPECT_EQ(open().FindByListLine("Adams, Ann"), std::nullopt);
        EXPECT_GE(slotFor(personRecord("Adams", "Ann")), 1U);
        EXPECT_EQ(yellow(), bytes);
    }
}

}  // namespace
}  // namespace velmora
