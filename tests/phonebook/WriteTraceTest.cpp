#include "phonebook/WriteTrace.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "phonebook/FileBooks.h"
#include "platform/Failure.h"
#include "support/PhonebookFixture.h"

namespace velmora {
namespace {

using test::bytesOf;
using test::personRecord;
using Texts = std::vector<std::string>;

// Record 3 lies at 3190 to 4784 and crosses the sectors at 3584, 4096 and 4608, which are bytes
// 394, 906 and 1418 of the record: names lie before them, the memo behind the second.
class WriteTraceTest : public testing::Test, protected test::PhonebookFixture {
  protected:
    WriteTraceTest() { yellow() = two + old + old; }

    const std::string kPath = "/velmora\\DATAY.QEL";
    const std::string kTrace = kPath + ".unfinished";

    void overwrite(RecordNumber number, const std::string& bytes) {
        OpenBook book = store.Open(kYellowPagesFile);
        const OpenBook::Lock lock(book);
        try {
            book.WriteAt(number, PhonebookRecord(bytes));
        } catch (const Failure&) {
            failed = true;
        }
    }

    // The trace that stands beside the book while record 3 becomes `bytes`.
    std::string traceOf(const std::string& bytes) {
        std::string trace;
        files.whileWriting = [&] {
            if (files.has(kTrace))
                trace = files[kTrace];
        };
        overwrite(3, bytes);
        files.whileWriting = {};
        return trace;
    }

    // Opens the book for reading, as every scan does, and gives back what record 3 is then.
    std::string seenThird() {
        PhonebookRecord record;
        (void)store.Open(kYellowPagesFile).ReadAt(3, record);
        return bytesOf(record);
    }

    const std::string old = bytesOf(personRecord("Adams", "Ann", "old"));
    const std::string two = bytesOf(personRecord("Baker", "Bob")) + old;
    const std::string both = bytesOf(personRecord("Clark", "Cy", "new"));
    const std::string behind = bytesOf(personRecord("Adams", "Ann", "new"));
    bool failed = false;
};

TEST_F(WriteTraceTest, StandsBesideTheBookOnlyWhileARecordIsOverwritten) {
    EXPECT_FALSE(traceOf(both).empty());
    EXPECT_FALSE(files.has(kTrace));
    EXPECT_EQ(yellow(), two + both + old);
    EXPECT_EQ(files.takeLog(), (Texts{"lock", "write 3190", "unlock"}));
}

TEST_F(WriteTraceTest, IsNotLeftForAChangeWithinOneSector) {
    EXPECT_TRUE(traceOf(behind).empty());
    EXPECT_EQ(yellow(), two + behind + old);
}

TEST_F(WriteTraceTest, IsNotLeftForANewRecordBehindTheEnd) {
    bool there = false;
    files.whileWriting = [&] { there = there || files.has(kTrace); };
    overwrite(5, both);
    files.whileWriting = {};
    EXPECT_FALSE(there);
    EXPECT_EQ(yellow(), two + old + old + both);
}

TEST_F(WriteTraceTest, TheNextReaderFinishesAWriteThatWasCutInTwo) {
    const std::string trace = traceOf(both);
    for (const std::size_t cut : {394U, 906U, 1418U}) {
        yellow() = two + both.substr(0, cut) + old.substr(cut) + old;
        files[kTrace] = trace;
        EXPECT_EQ(seenThird(), both) << cut;
        EXPECT_EQ(yellow(), two + both + old);
        EXPECT_FALSE(files.has(kTrace));
    }
}

TEST_F(WriteTraceTest, TheNextWriterFinishesItBeforeItWrites) {
    const std::string trace = traceOf(both);
    OpenBook book = store.Open(kYellowPagesFile);
    yellow() = two + both.substr(0, 906) + old.substr(906) + old;
    files[kTrace] = trace;
    {
        const OpenBook::Lock lock(book);
        book.Tombstone(4);
    }
    EXPECT_EQ(yellow(), two + both + test::tombstoneBytes());
}

TEST_F(WriteTraceTest, AWriteThatWasNotBegunIsForgotten) {
    const std::string trace = traceOf(both);
    yellow() = two + old + old;
    files[kTrace] = trace;
    EXPECT_EQ(seenThird(), old);
    EXPECT_FALSE(files.has(kTrace));
}

TEST_F(WriteTraceTest, ASlotThatHoldsAnotherEntryIsLeftAlone) {
    const std::string trace = traceOf(both);
    const std::string other = bytesOf(personRecord("Young", "Al", "from a backup"));
    yellow() = two + other + old;
    files[kTrace] = trace;
    EXPECT_EQ(seenThird(), other);
    EXPECT_FALSE(files.has(kTrace));
}

TEST_F(WriteTraceTest, ATraceThatIsDamagedProvesNothing) {
    const std::string trace = traceOf(both);
    const std::string torn = two + both.substr(0, 906) + old.substr(906) + old;
    std::string flipped = trace;
    flipped[2000] = static_cast<char>(flipped[2000] ^ 1);
    for (const std::string& bad :
         {std::string(), trace.substr(0, trace.size() - 1), trace + "x", flipped}) {
        yellow() = torn;
        files[kTrace] = bad;
        EXPECT_EQ(seenThird(), torn.substr(2 * kRecordSize, kRecordSize));
        EXPECT_FALSE(files.has(kTrace));
        EXPECT_EQ(yellow(), torn);
    }
}

TEST_F(WriteTraceTest, AShortLastRecordIsCompleted) {
    yellow() = (two + old).substr(0, 4700);
    overwrite(3, both);
    EXPECT_EQ(yellow(), two + both);
}

TEST_F(WriteTraceTest, ABookWithAShortLastRecordKeepsItsLength) {
    yellow() = two + old + old.substr(0, 700);
    overwrite(3, both);
    EXPECT_EQ(yellow(), two + both + old.substr(0, 700));
}

TEST_F(WriteTraceTest, WithoutRoomForTheTraceTheRecordIsWrittenAllTheSame) {
    files.unwritable = kTrace;
    overwrite(3, both);
    EXPECT_FALSE(failed);
    EXPECT_EQ(yellow(), two + both + old);
}

TEST_F(WriteTraceTest, AFailureLeavesTheBookAsItWasAndNoTrace) {
    files.writesUntilFailure = 1;
    overwrite(3, both);
    EXPECT_TRUE(failed);
    EXPECT_EQ(yellow(), two + old + old);
    EXPECT_FALSE(files.has(kTrace));
}

TEST_F(WriteTraceTest, ABookTellsItsNamesAndItsStatesApart) {
    const BookState first = store.Open(kYellowPagesFile).state();
    EXPECT_EQ(first, store.Open(kYellowPagesFile).state());
    EXPECT_NE(first.book, store.Open(kWhitePagesFile).state().book);
    overwrite(3, both);
    const BookState second = store.Open(kYellowPagesFile).state();
    EXPECT_EQ(first.book, second.book);
    EXPECT_NE(first.version, second.version);
    yellow() += old;
    EXPECT_NE(second.version, store.Open(kYellowPagesFile).state().version);
    files.link("/velmora\\DATAW.QEL", kPath);
    EXPECT_EQ(store.Open(kWhitePagesFile).state().book, first.book);
}

}  // namespace
}  // namespace velmora
