#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "phonebook/FileBooks.h"
#include "phonebook/WriteTrace.h"
#include "platform/Failure.h"
#include "support/PhonebookFixture.h"

namespace velmora {
namespace {

using test::bytesOf;
using test::personRecord;

// Record 3 crosses the sectors at its bytes 394, 906 and 1418; record 5 at 1300 and others.
class WriteTogetherTest : public testing::Test, protected test::PhonebookFixture {
  protected:
    WriteTogetherTest() { yellow() = old + old + old; }

    const std::string kTrace = "/velmora\\DATAY.QEL.unfinished";

    void writeAll(const std::vector<PlacedRecord>& records) {
        OpenBook book = store.Open(kYellowPagesFile);
        const OpenBook::Lock lock(book);
        book.WriteAll(records);
    }

    // The trace that stands beside the book while the records are written.
    std::string traceOf(const std::vector<PlacedRecord>& records) {
        std::string trace;
        files.whileWriting = [&] {
            if (files.has(kTrace))
                trace = files[kTrace];
        };
        writeAll(records);
        files.whileWriting = {};
        return trace;
    }

    // What is in the book once somebody has opened it.
    const std::string& reopened() {
        (void)store.Open(kYellowPagesFile);
        return yellow();
    }

    const std::string old = bytesOf(personRecord("Adams", "Ann", "old"));
    const PhonebookRecord clark = personRecord("Clark", "Cy", "new");
    const PhonebookRecord davis = personRecord("Davis", "Di", "new");
    const PhonebookRecord evans = personRecord("Evans", "Ed", "new");
    const std::vector<PlacedRecord> three{{1, clark}, {3, davis}, {4, evans}};
    const std::vector<PlacedRecord> twoNew{{4, clark}, {5, davis}};
};

TEST_F(WriteTogetherTest, AllRecordsAreWritten) {
    EXPECT_FALSE(traceOf(three).empty());
    EXPECT_EQ(yellow(), bytesOf(clark) + old + bytesOf(davis) + bytesOf(evans));
    EXPECT_FALSE(files.has(kTrace));
}

TEST_F(WriteTogetherTest, EachRecordThatWasCutInTwoIsFinished) {
    const std::string trace = traceOf(three);
    const std::string torn = bytesOf(clark).substr(0, 512) + old.substr(512);
    yellow() = torn + old + bytesOf(davis).substr(0, 906) + old.substr(906);
    files[kTrace] = trace;
    EXPECT_EQ(reopened(), bytesOf(clark) + old + bytesOf(davis));
    EXPECT_FALSE(files.has(kTrace));
}

TEST_F(WriteTogetherTest, ANewRecordThatWasCutInTwoBecomesAFreeSlot) {
    const std::string trace = traceOf(twoNew);
    const std::string whole = old + old + old + bytesOf(clark);
    yellow() = whole + bytesOf(davis).substr(0, 700);
    files[kTrace] = trace;
    EXPECT_EQ(reopened(), whole + std::string(kRecordSize, '\0'));
    EXPECT_FALSE(files.has(kTrace));
}

TEST_F(WriteTogetherTest, BothHappenAfterOneKill) {
    const std::string trace = traceOf(three);
    yellow() = bytesOf(clark) + old + bytesOf(davis).substr(0, 906) + old.substr(906) +
               bytesOf(evans).substr(0, 10);
    files[kTrace] = trace;
    EXPECT_EQ(reopened(), bytesOf(clark) + old + bytesOf(davis) + std::string(kRecordSize, '\0'));
}

TEST_F(WriteTogetherTest, AShortRecordThatWasThereBeforeStays) {
    yellow() = old + old + old + old.substr(0, 700);
    const std::string trace = traceOf({{5, davis}});
    yellow() = old + old + old + old.substr(0, 700);
    files[kTrace] = trace;
    EXPECT_EQ(reopened(), old + old + old + old.substr(0, 700));
}

TEST_F(WriteTogetherTest, WholeNewRecordsStayAfterAKill) {
    const std::string trace = traceOf(twoNew);
    files[kTrace] = trace;
    EXPECT_EQ(reopened(), old + old + old + bytesOf(clark) + bytesOf(davis));
    EXPECT_FALSE(files.has(kTrace));
}

TEST_F(WriteTogetherTest, ADamagedTraceProvesNothing) {
    const std::string trace = traceOf(three);
    const std::string torn =
        bytesOf(clark).substr(0, 512) + old.substr(512) + old + old + old.substr(0, 5);
    std::string flipped = trace;
    flipped.back() = static_cast<char>(flipped.back() ^ 1);
    for (const std::string& bad : {trace.substr(0, trace.size() - 1), trace + "x", flipped}) {
        yellow() = torn;
        files[kTrace] = bad;
        EXPECT_EQ(reopened(), torn);
        EXPECT_FALSE(files.has(kTrace));
    }
}

TEST_F(WriteTogetherTest, WithoutRoomForTheTraceTheRecordsAreWrittenAllTheSame) {
    files.unwritable = kTrace;
    writeAll(three);
    EXPECT_EQ(yellow(), bytesOf(clark) + old + bytesOf(davis) + bytesOf(evans));
}

}  // namespace
}  // namespace velmora
