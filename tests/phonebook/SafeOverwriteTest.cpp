#include "phonebook/SafeOverwrite.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "platform/Failure.h"
#include "support/PhonebookFixture.h"

namespace velmora {
namespace {

using test::bytesOf;
using test::personRecord;
using Texts = std::vector<std::string>;

// Record 3 lies at 3190 to 4784 and crosses the page at 4096, which is byte 906 of the record:
// names lie before it, the memo behind it.
class SafeOverwriteTest : public testing::Test, protected test::PhonebookFixture {
  protected:
    SafeOverwriteTest() { yellow() = two + old + old; }

    void overwrite(std::uint64_t offset, const std::string& bytes) {
        const PhonebookRecord record(bytes);
        const auto file = files.openOrCreate("/velmora\\DATAY.QEL");
        const bool locked = file->lock();
        try {
            overwriteSafely(*file, offset, record.bytes());
        } catch (const Failure&) {
            failed = true;
        }
        if (locked)
            file->unlock();
    }

    const std::string old = bytesOf(personRecord("Adams", "Ann", "old"));
    const std::string two = bytesOf(personRecord("Baker", "Bob")) + old;
    const std::string both = bytesOf(personRecord("Clark", "Cy", "new"));
    const std::string behind = bytesOf(personRecord("Adams", "Ann", "new"));
    bool failed = false;
};

TEST_F(SafeOverwriteTest, ACopyStandsInWhereAWriteCouldBeCutInTwo) {
    overwrite(3190, both);
    EXPECT_EQ(yellow(), two + both + old);
    EXPECT_EQ(files.takeLog(),
              (Texts{"lock", "write 6380", "write 3190", "shorten 6380", "unlock"}));
}

TEST_F(SafeOverwriteTest, ChangesOfOnePageAreOneWrite) {
    overwrite(3190, behind);
    EXPECT_EQ(yellow(), two + behind + old);
    overwrite(0, both);
    overwrite(3190, behind);
    EXPECT_EQ(files.takeLog(), (Texts{"lock", "write 3190", "unlock", "lock", "write 0", "unlock",
                                      "lock", "write 3190", "unlock"}));
}

TEST_F(SafeOverwriteTest, ANewRecordBehindTheEndIsOneWrite) {
    overwrite(6380, both);
    EXPECT_EQ(yellow(), two + old + old + both);
    EXPECT_EQ(files.takeLog(), (Texts{"lock", "write 6380", "unlock"}));
}

TEST_F(SafeOverwriteTest, AShortLastRecordIsCompleted) {
    yellow() = (two + old).substr(0, 4700);
    overwrite(3190, both);
    EXPECT_EQ(yellow(), two + both);
}

TEST_F(SafeOverwriteTest, ABookWithAShortLastRecordKeepsItsLength) {
    yellow() = two + old + old.substr(0, 700);
    overwrite(3190, both);
    EXPECT_EQ(yellow(), two + both + old.substr(0, 700));
}

TEST_F(SafeOverwriteTest, AFailureLeavesTheBookAsItWas) {
    files.writesUntilFailure = 1;
    overwrite(3190, both);
    EXPECT_TRUE(failed);
    EXPECT_EQ(yellow(), two + old + old);
}

}  // namespace
}  // namespace velmora
