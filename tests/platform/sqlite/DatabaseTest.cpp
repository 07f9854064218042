#include "platform/sqlite/Database.h"

#include <gmock/gmock.h>
#include <sqlite3.h>

#include "platform/Failure.h"
#include "support/TemporaryFolder.h"

namespace velmora::sqlite {
namespace {

using testing::HasSubstr;

class DatabaseFile : public testing::Test {
  protected:
    [[nodiscard]] Database create(std::chrono::milliseconds patience = std::chrono::seconds(5)) {
        Database database(NativePath(path), Access::ReadWriteOrCreate, patience);
        database.execute("CREATE TABLE IF NOT EXISTS t (a, b)");
        return database;
    }

    test::TemporaryFolder folder;
    std::string path = folder.file("some.db");
};

TEST_F(DatabaseFile, IsNotMadeUnlessAskedFor) {
    EXPECT_THROW(Database(NativePath(path), Access::ReadWrite), Failure);
    EXPECT_THROW(Database(NativePath(path), Access::ReadOnly), Failure);
    EXPECT_FALSE(folder.has("some.db"));
}

TEST_F(DatabaseFile, NamesThePathWhenItCanNotBeOpened) {
    try {
        Database database(NativePath(path), Access::ReadWrite);
        FAIL() << "opened";
    } catch (const Failure& failure) {
        EXPECT_THAT(failure.what(), HasSubstr(path));
    }
}

TEST_F(DatabaseFile, GivesBackTextAndBlobsByteForByteAndNullAsNull) {
    Database database = create();
    const std::string text("a\0b\xE9", 4);
    auto insert = database.prepare("INSERT INTO t VALUES (?1, ?2)");
    insert.bindText(1, text).bindBlob(2, text).run();
    insert.bindText(1, {}).bindNull(2).run();
    EXPECT_EQ(database.changedRows(), 1);

    auto select = database.prepare("SELECT a, b FROM t ORDER BY rowid");
    ASSERT_TRUE(select.step());
    EXPECT_EQ(select.text(0), text);
    EXPECT_EQ(select.blob(1), text);
    ASSERT_TRUE(select.step());
    EXPECT_FALSE(select.isNull(0));
    EXPECT_EQ(select.text(0), "");
    EXPECT_TRUE(select.isNull(1));
    EXPECT_EQ(select.text(1), "");
    EXPECT_EQ(select.textOrNull(0), "");
    EXPECT_EQ(select.textOrNull(1), std::nullopt);
    EXPECT_FALSE(select.step());
}

TEST_F(DatabaseFile, GivesBackWholeNumbers) {
    Database database = create();
    database.prepare("INSERT INTO t VALUES (?1, NULL)").bindInteger(1, -5'000'000'000).run();
    auto select = database.prepare("SELECT a FROM t");
    ASSERT_TRUE(select.step());
    EXPECT_EQ(select.integer(0), -5'000'000'000);
}

TEST_F(DatabaseFile, RefusesTextThatIsNoSingleStatement) {
    Database database = create();
    EXPECT_THROW((void)database.prepare("SELECT nothing FROM nowhere"), Failure);
    EXPECT_THROW((void)database.prepare(""), Failure);
    EXPECT_THROW((void)database.prepare("DELETE FROM t; DELETE FROM t"), Failure);
    EXPECT_NO_THROW((void)database.prepare("DELETE FROM t;\n"));
}

TEST_F(DatabaseFile, RefusesAParameterThatTheStatementLacks) {
    Database database = create();
    auto insert = database.prepare("INSERT INTO t VALUES (?1, NULL)");
    EXPECT_THROW(insert.bindText(2, "x"), Failure);
}

TEST_F(DatabaseFile, TellsAFileThatIsNoDatabase) {
    folder.write("some.db", std::string(4096, 'x'));
    Database database(NativePath(path), Access::ReadWrite);
    EXPECT_THROW(database.execute("SELECT * FROM t"), Failure);
    EXPECT_EQ(database.errorCode(), SQLITE_NOTADB);
    EXPECT_EQ(folder.read("some.db"), std::string(4096, 'x'));
}

TEST_F(DatabaseFile, TellsThatAnotherHoldsTheLock) {
    Database first = create();
    Database second = create(std::chrono::milliseconds(1));
    Transaction held(first);
    EXPECT_THROW(Transaction refused(second), Failure);
    EXPECT_EQ(second.errorCode(), SQLITE_BUSY);
}

TEST_F(DatabaseFile, UndoesATransactionThatIsNotCommitted) {
    Database database = create();
    {
        Transaction transaction(database);
        database.execute("INSERT INTO t VALUES (1, 2)");
        EXPECT_TRUE(database.inTransaction());
    }
    EXPECT_FALSE(database.inTransaction());
    EXPECT_FALSE(database.prepare("SELECT * FROM t").step());
}

TEST_F(DatabaseFile, KeepsATransactionThatIsCommitted) {
    {
        Database database = create();
        Transaction transaction(database);
        database.execute("INSERT INTO t VALUES (1, 2)");
        transaction.commit();
    }
    Database again(NativePath(path), Access::ReadOnly);
    EXPECT_TRUE(again.prepare("SELECT * FROM t").step());
    EXPECT_EQ(again.errorCode(), SQLITE_OK);
}

TEST_F(DatabaseFile, StaysUnlockedBehindTheLastRow) {
    Database first = create();
    Database second = create(std::chrono::milliseconds(1));
    first.execute("INSERT INTO t VALUES (1, 2)");
    auto select = first.prepare("SELECT * FROM t");
    while (select.step()) {
    }
    EXPECT_NO_THROW(second.execute("INSERT INTO t VALUES (3, 4)"));
}

TEST_F(DatabaseFile, CanBeMoved) {
    Database first = create();
    Database moved = std::move(first);
    EXPECT_NO_THROW(moved.execute("INSERT INTO t VALUES (1, 2)"));
}

}  // namespace
}  // namespace velmora::sqlite
