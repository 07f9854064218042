#include "platform/sqlite/DatabaseCopy.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <string>

#include "platform/Failure.h"
#include "platform/StorageFailure.h"
#include "platform/sqlite/Database.h"
#include "support/TemporaryFolder.h"

namespace velmora::sqlite {
namespace {

namespace fs = std::filesystem;

class DatabaseCopyTest : public testing::Test {
  protected:
    [[nodiscard]] NativePath path(const std::string& name) const {
        return NativePath(folder.file(name));
    }
    [[nodiscard]] Database open(const std::string& name) const {
        return {path(name), Access::ReadWriteOrCreate};
    }
    void fill(const char* journal) {
        Database database = open("data");
        database.execute(std::string("PRAGMA journal_mode=") + journal +
                         "; CREATE TABLE t (n, text);"
                         "WITH RECURSIVE c(n) AS (SELECT 1 UNION ALL SELECT n + 1 FROM c LIMIT "
                         "3000) INSERT INTO t SELECT n, hex(randomblob(200)) FROM c");
    }
    [[nodiscard]] std::int64_t rows(const std::string& name) const {
        Database database = open(name);
        auto count = database.prepare("SELECT count(*) FROM t");
        return count.step() ? count.integer(0) : -1;
    }
    static void finish(DatabaseCopy& copy) {
        while (copy.step()) {
        }
    }
    [[nodiscard]] std::size_t files() const {
        const fs::directory_iterator listing(folder.path());
        return static_cast<std::size_t>(std::distance(begin(listing), end(listing)));
    }

    test::TemporaryFolder folder;
};

TEST_F(DatabaseCopyTest, ADatabaseInEitherJournalIsCopiedInPieces) {
    for (const char* journal : {"DELETE", "WAL"}) {
        fill(journal);
        DatabaseCopy copy(path("data"), path("copy"));
        int steps = 1;
        while (copy.step())
            ++steps;
        EXPECT_GT(steps, 3);
        EXPECT_EQ(rows("copy"), 3000);
        for (const char* name : {"data", "copy"})
            fs::remove(folder.file(name));
    }
}

TEST_F(DatabaseCopyTest, TwoCopiesOfTheSameHoldTheSameBytes) {
    fill("WAL");
    for (const char* name : {"one", "two"}) {
        DatabaseCopy copy(path("data"), path(name));
        finish(copy);
    }
    EXPECT_TRUE(folder.read("one") == folder.read("two"));
}

TEST_F(DatabaseCopyTest, WhatIsWrittenMeanwhileIsInIt) {
    fill("DELETE");
    DatabaseCopy copy(path("data"), path("copy"));
    ASSERT_TRUE(copy.step());
    Database other = open("data");
    other.execute("INSERT INTO t VALUES (0, 'meanwhile'); DELETE FROM t WHERE n > 2999");
    finish(copy);
    EXPECT_EQ(rows("copy"), 3000);
    Database copied = open("copy");
    auto found = copied.prepare("SELECT n FROM t WHERE text = 'meanwhile'");
    EXPECT_TRUE(found.step());
}

TEST_F(DatabaseCopyTest, AnEarlierCopyStaysUntilTheNewOneIsWhole) {
    fill("DELETE");
    folder.write("copy", "earlier");
    {
        DatabaseCopy copy(path("data"), path("copy"));
        ASSERT_TRUE(copy.step());
        EXPECT_EQ(folder.read("copy"), "earlier");
    }
    EXPECT_EQ(folder.read("copy"), "earlier");
    EXPECT_EQ(files(), 2U) << "what is given up leaves nothing";
    DatabaseCopy copy(path("data"), path("copy"));
    finish(copy);
    EXPECT_EQ(rows("copy"), 3000);
    EXPECT_EQ(files(), 2U);
}

TEST_F(DatabaseCopyTest, WhatIsNoDatabaseAndWhatIsNotThereFails) {
    folder.write("data", std::string(5000, 'x'));
    DatabaseCopy copy(path("data"), path("copy"));
    EXPECT_THROW(finish(copy), Failure);
    EXPECT_FALSE(folder.has("copy"));
    EXPECT_THROW(DatabaseCopy(path("nothing"), path("copy")), Failure);
    EXPECT_FALSE(folder.has("nothing"));
    EXPECT_THROW(DatabaseCopy(path("data"), path("nowhere/copy")), Failure);
}

TEST_F(DatabaseCopyTest, ALockThatIsHeldForLongIsTold) {
    fill("DELETE");
    Database other = open("data");
    other.execute("BEGIN EXCLUSIVE");
    DatabaseCopy copy(path("data"), path("copy"), std::chrono::milliseconds(50));
    try {
        finish(copy);
        ADD_FAILURE() << "copied in spite of the lock";
    } catch (const Failure& failure) {
        EXPECT_EQ(obstacleOf(failure), Obstacle::InUse);
        EXPECT_EQ(std::string(failure.what()),
                  "The database " + folder.file("data") + " can not be copied: it is in use.");
    }
    other.execute("ROLLBACK");
    DatabaseCopy second(path("data"), path("copy"));
    finish(second);
    EXPECT_EQ(rows("copy"), 3000);
}

}  // namespace
}  // namespace velmora::sqlite
