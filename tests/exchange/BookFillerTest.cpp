#include "exchange/BookFiller.h"

#include <gtest/gtest.h>

#include <functional>
#include <string>

#include "phonebook/RecordState.h"
#include "support/PhonebookFixture.h"

namespace velmora {
namespace {

using test::bytesOf;
using test::companyRecord;
using test::personRecord;

class BookFillerTest : public testing::Test, protected test::PhonebookFixture {
  protected:
    bool add(const PhonebookRecord& entry) {
        filler.add(entry);
        return filler.write();
    }

    // As another copy of the program does it.
    void writeAsOther(RecordNumber number, const PhonebookRecord& record) {
        FileBooks others(files, locations,
                         [this](const std::string& path) { return files.stampOf(path); });
        const PhonebookStore otherStore(others, codePage);
        OpenBook book = otherStore.Open(kYellowPagesFile);
        const OpenBook::Lock lock(book);
        book.WriteAt(number, record);
    }

    std::function<bool()> turn = [] { return true; };
    BookFiller filler{store, kYellowPagesFile, [this] { return turn(); }};
    const PhonebookRecord ann = personRecord("Adams", "Ann", "new");
    const PhonebookRecord bob = personRecord("Baker", "Bob", "new");
    const PhonebookRecord cy = personRecord("Clark", "Cy", "new");
};

TEST_F(BookFillerTest, AddsReplacesAndCounts) {
    yellow() = bytesOf(personRecord("ADAMS", "ann", "old")) + bytesOf(personRecord("Z", "Z"));
    filler.add(ann);
    filler.add(bob);
    filler.add(bob);
    EXPECT_TRUE(filler.write());
    EXPECT_EQ(yellow(), bytesOf(ann) + bytesOf(personRecord("Z", "Z")) + bytesOf(bob));
    EXPECT_EQ(filler.counts().added, 1U);
    EXPECT_EQ(filler.counts().replaced, 2U);
    EXPECT_EQ(filler.counts().unwritten, 0U);
    EXPECT_EQ(filler.lastNumber(), 3);
}

TEST_F(BookFillerTest, ReplacesTheWholeEntryAndClearsWhatTheSourceLacks) {
    PhonebookRecord old = personRecord("Adams", "Ann", "memo");
    old.assign(Field::Fax, "555");
    old.assign(Field::FileAttachment, "letter.txt");
    yellow() = bytesOf(old);
    EXPECT_TRUE(add(personRecord("Adams", "Ann")));
    EXPECT_EQ(yellow(), bytesOf(personRecord("Adams", "Ann")));
}

TEST_F(BookFillerTest, UsesFreeSlotsBeforeTheBookGrows) {
    yellow() = bytesOf(ann) + test::tombstoneBytes() + bytesOf(cy) + std::string(kRecordSize, '\0');
    filler.add(bob);
    filler.add(companyRecord("Acme"));
    filler.add(personRecord("Young", "Y"));
    EXPECT_TRUE(filler.write());
    EXPECT_EQ(yellow(), bytesOf(ann) + bytesOf(bob) + bytesOf(cy) + bytesOf(companyRecord("Acme")) +
                            bytesOf(personRecord("Young", "Y")));
    EXPECT_EQ(filler.counts().added, 3U);
}

TEST_F(BookFillerTest, RowsWithoutANameAreWrittenEachOne) {
    yellow() = test::tombstoneBytes();
    filler.add(test::formRecord("", ""));
    filler.add(test::formRecord("", ""));
    EXPECT_TRUE(filler.write());
    EXPECT_EQ(yellow(), std::string(2 * kRecordSize, ' '));
}

TEST_F(BookFillerTest, AShortLastRecordCounts) {
    yellow() = bytesOf(ann) + bytesOf(cy).substr(0, 100);
    EXPECT_TRUE(add(bob));
    EXPECT_EQ(yellow().size(), 3 * kRecordSize);
    EXPECT_EQ(slot(yellow(), 3), bytesOf(bob));
}

TEST_F(BookFillerTest, WhatWaitsTogetherSharesOneLock) {
    filler.add(ann);
    filler.add(bob);
    EXPECT_TRUE(filler.write());
    EXPECT_EQ(files.takeLog(),
              (std::vector<std::string>{"lock", "write 0", "write 1595", "unlock"}));
    EXPECT_EQ(files.openFiles(), 0);
}

TEST_F(BookFillerTest, SeesWhatOthersWroteBetweenTwoWrites) {
    EXPECT_TRUE(add(ann));
    writeAsOther(2, bob);
    filler.add(cy);
    filler.add(bob);
    EXPECT_TRUE(filler.write());
    EXPECT_EQ(yellow(), bytesOf(ann) + bytesOf(bob) + bytesOf(cy));
    EXPECT_EQ(filler.counts().added, 2U);
    EXPECT_EQ(filler.counts().replaced, 1U);
}

TEST_F(BookFillerTest, SeesWhatOthersWriteWhileItReadsTheBook) {
    yellow() = test::tombstoneBytes();
    bool once = true;
    turn = [&] {
        if (std::exchange(once, false))
            writeAsOther(1, bob);
        return true;
    };
    for (int i = 0; i < 600; ++i)
        yellow() += bytesOf(cy);
    EXPECT_TRUE(add(ann));
    EXPECT_EQ(slot(yellow(), 1), bytesOf(bob));
    EXPECT_EQ(slot(yellow(), 602), bytesOf(ann));
}

// The file system's clock ticks some times a second only.
TEST_F(BookFillerTest, NeverTakesASlotThatIsNotFreeAnyMoreEvenWhereTheFileShowsNoChange) {
    FileStamp stamp{1, 2, 3, 4};
    FileBooks blind(files, locations, [&](const std::string&) { return stamp; });
    const PhonebookStore blindStore(blind, codePage);
    BookFiller careful(blindStore, kYellowPagesFile, [] { return true; });
    yellow() = test::tombstoneBytes() + test::tombstoneBytes() + bytesOf(cy);
    careful.add(ann);
    EXPECT_TRUE(careful.write());
    writeAsOther(2, bob);
    writeAsOther(3, personRecord("Other", "Name"));
    careful.add(personRecord("Young", "Y"));
    careful.add(cy);
    EXPECT_TRUE(careful.write());
    EXPECT_EQ(yellow(), bytesOf(ann) + bytesOf(bob) + bytesOf(personRecord("Other", "Name")) +
                            bytesOf(personRecord("Young", "Y")) + bytesOf(cy));
}

TEST_F(BookFillerTest, WaitsForAnotherCopyThatHoldsTheLock) {
    files.locksInUse = 3;
    int turns = 0;
    turn = [&] {
        ++turns;
        EXPECT_EQ(filler.isHeldUp(), true);
        return true;
    };
    EXPECT_TRUE(add(ann));
    EXPECT_EQ(turns, 3);
    EXPECT_FALSE(filler.isHeldUp());
    EXPECT_EQ(yellow(), bytesOf(ann));
}

TEST_F(BookFillerTest, GivesUpWaitingWhenTheImportIsCalledOff) {
    files.locksInUse = 1000;
    turn = [] { return false; };
    EXPECT_FALSE(add(ann));
    EXPECT_EQ(yellow(), "");
    files.locksInUse = 0;
}

TEST_F(BookFillerTest, CountsWhatCanNotBeWrittenAndSaysWhy) {
    files.writesUntilFailure = 0;
    filler.add(ann);
    filler.add(bob);
    EXPECT_FALSE(filler.write());
    EXPECT_EQ(filler.counts().unwritten, 2U);
    EXPECT_EQ(filler.counts().whyUnwritten,
              "The file can not be written: No space left on device.");
    files.writesUntilFailure = -1;
    EXPECT_TRUE(add(cy));
    EXPECT_EQ(yellow(), bytesOf(cy));
}

TEST_F(BookFillerTest, AnEntryThatCanNotBeWrittenIsPassedOver) {
    yellow() = bytesOf(personRecord("Adams", "Ann", "old")) + bytesOf(personRecord("Baker", "Bob"));
    files.failsOnceAt = 0;
    turn = [] { return true; };
    filler.add(ann);
    filler.add(bob);
    EXPECT_TRUE(filler.write());
    EXPECT_EQ(yellow(), bytesOf(ann) + bytesOf(bob)) << "the second try of the first one works";
    EXPECT_EQ(filler.counts().unwritten, 0U);
}

TEST_F(BookFillerTest, ABookThatCanNotBeOpenedIsTold) {
    files.unreachable = true;
    EXPECT_FALSE(add(ann));
    EXPECT_EQ(filler.counts().unwritten, 1U);
    EXPECT_NE(filler.counts().whyUnwritten, "");
}

TEST_F(BookFillerTest, NoticesWhenTheBookIsTakenAwayInTheMiddle) {
    EXPECT_TRUE(add(ann));
    EXPECT_FALSE(filler.bookWasReplaced());
    files.remove("/velmora\\DATAY.QEL");
    EXPECT_TRUE(add(bob));
    EXPECT_TRUE(filler.bookWasReplaced());
    EXPECT_EQ(yellow(), bytesOf(bob));
}

}  // namespace
}  // namespace velmora
