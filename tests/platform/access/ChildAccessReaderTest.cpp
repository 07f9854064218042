#include "platform/access/ChildAccessReader.h"

#include <gmock/gmock.h>
#include <signal.h>
#include <sys/stat.h>

#include <algorithm>
#include <cstdlib>

#include "platform/Failure.h"
#include "support/TemporaryFolder.h"

namespace velmora::access {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using Rows = std::vector<AccessRow>;

Rows rowsOf(AccessTableReader& reader, const std::string& path, const std::string& table) {
    Rows rows;
    reader.readRows(NativePath(path), table, [&](const AccessRow& row) { rows.push_back(row); });
    return rows;
}

// Stands in for the child: a script that prints what the test wants.
class Impostor {
  public:
    explicit Impostor(const std::string& commands) {
        folder_.write("child", "#!/bin/sh\n" + commands + "\n");
        ::chmod(folder_.file("child").c_str(), 0755);
    }

    [[nodiscard]] ChildAccessReader reader(
        std::chrono::milliseconds patience = std::chrono::seconds(30)) const {
        return ChildAccessReader(folder_.file("child"), patience);
    }

  private:
    test::TemporaryFolder folder_;
};

TEST(ChildAccessReader, RefusesAMissingFile) {
    test::TemporaryFolder folder;
    ChildAccessReader reader;
    EXPECT_THROW((void)reader.tables(NativePath(folder.file("none.mdb"))), Failure);
    EXPECT_FALSE(folder.has("none.mdb"));
}

TEST(ChildAccessReader, RefusesAFileThatOnlyBeginsLikeADatabase) {
    test::TemporaryFolder folder;
    std::string bytes(8192, '\0');
    bytes.replace(0, 19, std::string("\0\1\0\0Standard Jet DB", 19));
    bytes[0x14] = 1;
    folder.write("broken.mdb", bytes);
    ChildAccessReader reader;
    EXPECT_THROW((void)rowsOf(reader, folder.file("broken.mdb"), "appoint"), Failure);
    EXPECT_EQ(folder.read("broken.mdb"), bytes);
}

TEST(ChildAccessReader, FailsWhenTheChildCanNotBeStarted) {
    ChildAccessReader reader("/nowhere/reader");
    EXPECT_THROW((void)reader.tables(NativePath("x.mdb")), Failure);
}

TEST(ChildAccessReader, FailsWhenTheChildDiesByASignal) {
    const Impostor impostor("kill -SEGV $$");
    auto reader = impostor.reader();
    try {
        (void)reader.tables(NativePath("x.mdb"));
        FAIL() << "read";
    } catch (const Failure& failure) {
        EXPECT_STREQ(failure.what(), "The Access database is damaged and can not be read.");
    }
}

TEST(ChildAccessReader, FailsWhenTheChildHangs) {
    const Impostor impostor("exec sleep 600");
    auto reader = impostor.reader(std::chrono::milliseconds(50));
    EXPECT_THROW((void)reader.tables(NativePath("x.mdb")), Failure);
}

TEST(ChildAccessReader, FailsWhenTheChildClosesItsOutputAndStays) {
    const Impostor impostor(R"(printf 'Z\0\0\0\0'; exec >&-; exec sleep 600)");
    auto reader = impostor.reader(std::chrono::milliseconds(100));
    EXPECT_THROW((void)reader.tables(NativePath("x.mdb")), Failure);
}

TEST(ChildAccessReader, FailsWhenTheEndIsMissing) {
    const Impostor impostor(R"(printf 'T\5\0\0\0Uabcd')");
    auto reader = impostor.reader();
    EXPECT_THROW((void)reader.tables(NativePath("x.mdb")), Failure);
}

TEST(ChildAccessReader, PassesOnWhyTheChildFailed) {
    const Impostor impostor(R"(printf 'E\2\0\0\0no')");
    auto reader = impostor.reader();
    try {
        (void)reader.tables(NativePath("x.mdb"));
        FAIL() << "read";
    } catch (const Failure& failure) {
        EXPECT_STREQ(failure.what(), "no");
    }
}

TEST(ChildAccessReader, FailsOnNonsense) {
    for (const char* words : {
             R"(printf 'hello')",                            // no message
             R"(printf 'F\2\0\0\0TaZ\0\0\0\0')",             // a field of no table
             R"(printf 'T\2\0\0\0UaF\2\0\0\0XaZ\0\0\0\0')",  // an unknown type
             R"(printf 'T\1\0\0\0aZ\0\0\0\0')",              // neither system nor user
             R"(printf 'R\0\0\0\0Z\0\0\0\0')",               // a row among tables
             R"(printf 'Z\0\0\0\0Z\0\0\0\0')",               // something behind the end
             R"(printf 'V\377\377\377\177')",                // too long
             R"(yes | tr -d '\n' | head -c 100000)",         // much of it
         }) {
        const Impostor impostor(words);
        auto reader = impostor.reader();
        EXPECT_THROW((void)reader.tables(NativePath("x.mdb")), Failure) << words;
    }
}

TEST(ChildAccessReader, FailsOnRowsOfDifferentLength) {
    const Impostor impostor(R"(printf 'R\0\0\0\0N\0\0\0\0R\0\0\0\0Z\0\0\0\0')");
    auto reader = impostor.reader();
    EXPECT_THROW((void)rowsOf(reader, "x.mdb", "t"), Failure);
}

TEST(ChildAccessReader, FailsOnAValueOutsideARow) {
    const Impostor impostor(R"(printf 'N\0\0\0\0Z\0\0\0\0')");
    auto reader = impostor.reader();
    EXPECT_THROW((void)rowsOf(reader, "x.mdb", "t"), Failure);
}

TEST(ChildAccessReader, TellsNullFromEmptyText) {
    const Impostor impostor(
        R"(printf 'R\0\0\0\0N\0\0\0\0V\0\0\0\0R\0\0\0\0V\1\0\0\0aN\0\0\0\0Z\0\0\0\0')");
    auto reader = impostor.reader();
    EXPECT_THAT(rowsOf(reader, "x.mdb", "t"),
                ElementsAre(AccessRow{std::nullopt, ""}, AccessRow{"a", std::nullopt}));
}

TEST(ChildAccessReader, LetsAFailureOfTheTakerThrough) {
    const Impostor impostor(R"(printf 'R\0\0\0\0R\0\0\0\0Z\0\0\0\0'; exec sleep 600)");
    auto reader = impostor.reader();
    EXPECT_THROW(
        reader.readRows(NativePath("x.mdb"), "t", [](const AccessRow&) { throw Failure("full"); }),
        Failure);
}

// Real databases are not part of the project. Where a folder with them is named, they are read.
class Samples : public testing::Test {
  protected:
    void SetUp() override {
        const char* folder = std::getenv("VELMORA_ACCESS_SAMPLES");
        if (!folder)
            GTEST_SKIP() << "VELMORA_ACCESS_SAMPLES names no folder";
        folder_ = folder;
    }

    [[nodiscard]] std::string file(const char* name) const { return folder_ + "/" + name; }

    ChildAccessReader reader;

  private:
    std::string folder_;
};

TEST_F(Samples, GiveTablesAndFieldsWithTheirTypes) {
    const auto tables = reader.tables(NativePath(file("node-adodb.mdb")));
    const auto users = std::find_if(tables.begin(), tables.end(),
                                    [](const auto& table) { return !table.isSystem; });
    ASSERT_NE(users, tables.end());
    EXPECT_EQ(*users, (AccessTable{"Users",
                                   {{"UserId", AccessType::Number},
                                    {"UserName", AccessType::Text},
                                    {"UserSex", AccessType::Text},
                                    {"UserBirthday", AccessType::DateTime},
                                    {"UserMarried", AccessType::Boolean}},
                                   false}));
}

TEST_F(Samples, GiveRowsOfAllTypes) {
    EXPECT_THAT(rowsOf(reader, file("node-adodb.mdb"), "Users"),
                ElementsAre(AccessRow{"1", "Nuintun", "Male", "1989-01-25 00:00:00", "True"},
                            AccessRow{"2", "Angela", "Female", "1988-12-18 00:00:00", "False"},
                            AccessRow{"3", "张三", "男", "1986-12-18 00:00:00", "True"}));
}

TEST_F(Samples, GiveDatesOfAllTimesAndLineEnds) {
    const auto rows = rowsOf(reader, file("DateTestDatabase.mdb"), "DateTest");
    ASSERT_EQ(rows.size(), 6U);
    EXPECT_EQ(rows[1][1], "9999-01-01 00:00:00");
    EXPECT_EQ(rows[2][1], "1898-01-01 00:00:00");
    EXPECT_EQ(rows[3][3], "0634-01-01 00:00:00");
    EXPECT_EQ(rows[5][4], "New line\r\nin field");
}

TEST_F(Samples, GiveNullAndMoneyFromTheNewerFormat) {
    const auto rows = rowsOf(reader, file("ASampleDatabase.accdb"), "Asset Items");
    ASSERT_EQ(rows.size(), 65U);
    EXPECT_EQ(rows[0][8], "1995.5");
    EXPECT_EQ(rows[0][12], std::nullopt);
}

TEST_F(Samples, LackATable) {
    EXPECT_THROW((void)rowsOf(reader, file("node-adodb.mdb"), "appoint"), Failure);
}

TEST_F(Samples, CutShortAtAnyPageFailOrGiveWhatIsThere) {
    const test::TemporaryFolder folder;
    std::string bytes;
    {
        FILE* in = std::fopen(file("node-adodb.mdb").c_str(), "rb");
        ASSERT_NE(in, nullptr);
        bytes.resize(200704);
        bytes.resize(std::fread(bytes.data(), 1, bytes.size(), in));
        std::fclose(in);
    }
    for (std::size_t length = 0; length < bytes.size(); length += 4096 * 5 + 7) {
        folder.write("cut.mdb", std::string_view(bytes).substr(0, length));
        try {
            EXPECT_LE(rowsOf(reader, folder.file("cut.mdb"), "Users").size(), 3U);
        } catch (const Failure& failure) {
            EXPECT_STRNE(failure.what(), "");
        }
    }
}

}  // namespace
}  // namespace velmora::access
