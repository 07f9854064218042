#include "planner/sqlite/PlannerDatabase.h"

#include <gtest/gtest.h>

#include <filesystem>

#include "platform/Failure.h"
#include "support/PlannerFixture.h"

namespace velmora {
namespace {

using namespace std::string_literals;

class PlannerDatabaseFile : public testing::Test {
  protected:
    test::TemporaryFolder folder;
    std::string path = folder.file("qel.mdb");
};

TEST_F(PlannerDatabaseFile, IsToldByItsFirstBytes) {
    EXPECT_EQ(kindOfDatabase(NativePath(path)), DatabaseKind::Missing);
    EXPECT_EQ(kindOfDatabase(NativePath(folder.path())), DatabaseKind::Missing);
    folder.write("qel.mdb", "");
    EXPECT_EQ(kindOfDatabase(NativePath(path)), DatabaseKind::Foreign);
    folder.write("qel.mdb", "SQLite");
    EXPECT_EQ(kindOfDatabase(NativePath(path)), DatabaseKind::Foreign);
    folder.write("qel.mdb", "SQLite format 3\0"s + std::string(500, '\0'));
    EXPECT_EQ(kindOfDatabase(NativePath(path)), DatabaseKind::Planner);
    folder.write("qel.mdb", "\0\1\0\0Standard Jet DB\0"s);
    EXPECT_EQ(kindOfDatabase(NativePath(path)), DatabaseKind::Access);
    folder.write("qel.mdb", "\0\1\0\0Standard ACE DB\0"s);
    EXPECT_EQ(kindOfDatabase(NativePath(path)), DatabaseKind::Access);
    folder.write("qel.mdb", "\0\1\0\0Standard Jet D"s);
    EXPECT_EQ(kindOfDatabase(NativePath(path)), DatabaseKind::Foreign);
    folder.write("qel.mdb", "Standard Jet DB");
    EXPECT_EQ(kindOfDatabase(NativePath(path)), DatabaseKind::Foreign);
}

TEST_F(PlannerDatabaseFile, IsLaidDownWithSixColumnsAndThreeIndexes) {
    layDownDatabase(NativePath(path));
    sqlite::Database database(NativePath(path), sqlite::Access::ReadOnly);
    auto columns = database.prepare("SELECT name, type, pk FROM pragma_table_info('appoint')");
    for (const char* name : {"TagVariant", "Date", "BeginTime", "EndTime", "Desc", "StyleSet"}) {
        ASSERT_TRUE(columns.step());
        EXPECT_EQ(columns.text(0), name);
        EXPECT_EQ(columns.text(1), "TEXT");
        EXPECT_EQ(columns.integer(2), 0);
    }
    EXPECT_FALSE(columns.step());
    auto indexes =
        database.prepare("SELECT name, \"unique\" FROM pragma_index_list('appoint') ORDER BY name");
    for (const char* name : {"appoint_date", "appoint_day", "appoint_tag"}) {
        ASSERT_TRUE(indexes.step());
        EXPECT_EQ(indexes.text(0), name);
        EXPECT_EQ(indexes.integer(1), 0);
    }
    EXPECT_FALSE(indexes.step());
    auto journal = database.prepare("PRAGMA journal_mode");
    ASSERT_TRUE(journal.step());
    EXPECT_EQ(journal.text(0), "delete");
    EXPECT_TRUE(test::rawRows(path).empty());
}

TEST_F(PlannerDatabaseFile, IsNeverLaidDownOverAnother) {
    folder.write("qel.mdb", "something else");
    layDownDatabase(NativePath(path));
    EXPECT_EQ(folder.read("qel.mdb"), "something else");
}

TEST_F(PlannerDatabaseFile, LeavesNothingBesideIt) {
    layDownDatabase(NativePath(path));
    std::size_t files = 0;
    for ([[maybe_unused]] const auto& entry : std::filesystem::directory_iterator(folder.path()))
        ++files;
    EXPECT_EQ(files, 1U);
}

TEST_F(PlannerDatabaseFile, IsNotLaidDownWithoutItsFolder) {
    EXPECT_THROW(layDownDatabase(NativePath(folder.file("missing/qel.mdb"))), Failure);
}

}  // namespace
}  // namespace velmora
