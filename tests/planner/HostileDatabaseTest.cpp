#include <gmock/gmock.h>

#include <fstream>
#include <set>

#include "planner/AppointmentStore.h"
#include "platform/Failure.h"
#include "support/PlannerFixture.h"

namespace velmora {
namespace {

using test::rowOn;
using testing::ElementsAre;
using testing::IsEmpty;

constexpr const char* kColumns =
    R"("TagVariant" TEXT, "Date" TEXT, "BeginTime" TEXT, "EndTime" TEXT, "Desc" TEXT, "StyleSet" TEXT)";

// Numbers without end.
constexpr const char* kEndless = "WITH RECURSIVE n(i) AS (SELECT 1 UNION ALL SELECT i + 1 FROM n) ";

// A database that somebody made up.
class HostileDatabase : public testing::Test, protected test::PlannerFixture {
  protected:
    void alter(const std::string& sql) {
        sqlite::Database(NativePath(path), sqlite::Access::ReadWrite).execute(sql);
        store.OpenDatabase(path);
    }
    void addOne() {
        store.AddNew();
        store.Put(Column::TagVariant, "2026-03-12 10:42:00");
        store.Put(Column::Date, "03/12/2026");
        store.Put(Column::Desc, "new");
        store.Update();
    }
    std::vector<std::string> textsOfTheDay() {
        std::vector<std::string> result;
        store.SelectByDate("03/12/2026");
        for (store.Refresh(); !store.Eof(); store.MoveNext())
            result.push_back(store.Get(Column::Desc));
        return result;
    }
    void expectNothingIsThere() {
        EXPECT_THAT(textsOfTheDay(), IsEmpty());
        EXPECT_THAT(store.DayStyles(), IsEmpty());
        EXPECT_THROW(addOne(), Failure);
    }
};

TEST_F(HostileDatabase, HasNoTableWhereItHasAView) {
    alter("DROP TABLE appoint; CREATE TABLE t (i);");
    alter(std::string("CREATE VIEW appoint AS ") + kEndless +
          R"(SELECT 1 AS rowid, '2026-01-01 08:00:01' AS "TagVariant", '2026-03-12' AS "Date",
             '' AS "BeginTime", '' AS "EndTime", 'seen' AS "Desc", 'Event' AS "StyleSet" FROM n)");
    expectNothingIsThere();
}

TEST_F(HostileDatabase, HasNoTableWhereAModuleOfTheEngineAnswers) {
    alter("DROP TABLE appoint");
    alter(R"(CREATE VIRTUAL TABLE appoint USING fts5
             ("TagVariant", "Date", "BeginTime", "EndTime", "Desc", "StyleSet"))");
    expectNothingIsThere();
}

TEST_F(HostileDatabase, HasNoTableWhereColumnsAreWorkedOut) {
    alter("DROP TABLE appoint");
    alter(R"(CREATE TABLE appoint ("TagVariant" TEXT, "Date" TEXT, "BeginTime" TEXT,
             "EndTime" TEXT, "StyleSet" TEXT,
             "Desc" TEXT GENERATED ALWAYS AS (hex(zeroblob(50000000))) VIRTUAL))");
    expectNothingIsThere();
}

TEST_F(HostileDatabase, IsNotObeyedByWayOfATrigger) {
    add(rowOn("2026-03-12", 1, "kept"));
    alter("CREATE TRIGGER t AFTER INSERT ON appoint BEGIN DELETE FROM appoint; END");
    alter(std::string("CREATE TRIGGER u AFTER INSERT ON appoint BEGIN INSERT INTO appoint "
                      "(\"Desc\") ") +
          "SELECT i FROM (" + kEndless + "SELECT i FROM n LIMIT 10000000); END");
    addOne();
    EXPECT_THAT(textsOfTheDay(), ElementsAre("kept", "new"));
    EXPECT_EQ(rows().size(), 2U);
}

TEST_F(HostileDatabase, IsNotObeyedByWayOfAViewInTheSamePlace) {
    alter("CREATE TRIGGER t BEFORE DELETE ON appoint BEGIN SELECT RAISE(IGNORE); END");
    addOne();
    store.SelectAll();
    store.Refresh();
    store.MoveFirst();
    store.Delete();
    EXPECT_THAT(rows(), IsEmpty());
}

TEST_F(HostileDatabase, WhoseConditionsAreExpensiveIsGivenUp) {
    alter("DROP TABLE appoint");
    alter(std::string("CREATE TABLE appoint (") + kColumns +
          ", CHECK (length(hex(zeroblob(60000000))) > 0))");
    EXPECT_THROW(addOne(), Failure);
    EXPECT_THAT(rows(), IsEmpty());
}

// A page of the tree of rows that names itself as its child, many times, leads in circles.
TEST_F(HostileDatabase, WhosePagesLeadInCirclesIsGivenUp) {
    {
        sqlite::Database database(NativePath(path), sqlite::Access::ReadWrite);
        database.execute(
            "DROP INDEX appoint_date; DROP INDEX appoint_day; DROP INDEX appoint_tag;"
            "WITH RECURSIVE n(i) AS (SELECT 1 UNION ALL SELECT i + 1 FROM n WHERE i < 4000) "
            "INSERT INTO appoint SELECT 'x', '2026-03-12', '', '', hex(zeroblob(40)), '' FROM n");
    }
    std::int64_t root = 0;
    {
        sqlite::Database database(NativePath(path), sqlite::Access::ReadOnly);
        auto select = database.prepare("SELECT rootpage FROM sqlite_master WHERE name = 'appoint'");
        ASSERT_TRUE(select.step());
        root = select.integer(0);
    }
    std::string bytes = folder.read("qel.mdb");
    const std::size_t pageSize =
        static_cast<unsigned char>(bytes[16]) * 256U + static_cast<unsigned char>(bytes[17]);
    const std::size_t page = static_cast<std::size_t>(root - 1) * pageSize;
    ASSERT_EQ(bytes[page], 5) << "the root is no inner page";
    const auto number = [&](std::size_t at) {
        return static_cast<unsigned char>(bytes[at]) * 256U +
               static_cast<unsigned char>(bytes[at + 1]);
    };
    // All children become the first one: the same rows come again and again.
    const std::size_t cells = number(page + 3);
    ASSERT_GT(cells, 10U);
    const std::string child = bytes.substr(page + number(page + 12), 4);
    for (std::size_t cell = 0; cell < cells; ++cell)
        bytes.replace(page + number(page + 12 + 2 * cell), 4, child);
    // That child in turn is taken for an inner page with the root as its children.
    const std::size_t inner =
        (static_cast<unsigned char>(child[2]) * 256U + static_cast<unsigned char>(child[3]) - 1U) *
        pageSize;
    std::string loop = bytes.substr(page, pageSize);
    for (std::size_t cell = 0; cell < cells; ++cell) {
        const std::string self{0, 0, static_cast<char>(root >> 8), static_cast<char>(root)};
        loop.replace(number(page + 12 + 2 * cell), 4, self);
    }
    bytes.replace(inner, pageSize, loop);
    folder.write("qel.mdb", bytes);
    store.OpenDatabase(path);
    (void)store.DayStyles();
    EXPECT_TRUE(store.obstacle().has_value());
    EXPECT_THAT(textsOfTheDay(), IsEmpty());
}

TEST_F(HostileDatabase, AnOrdinaryOneIsReadAndWritten) {
    add(rowOn("2026-03-12", 1, "kept"));
    alter("CREATE VIEW other AS SELECT 1; CREATE TABLE notes (i)");
    addOne();
    EXPECT_THAT(textsOfTheDay(), ElementsAre("kept", "new"));
}

// An index as a disk that fails may leave it: its entries lie in another order.
TEST_F(HostileDatabase, ColoursDaysAndRefusesRowsThoughAnIndexIsOutOfOrder) {
    for (int second = 1; second < 40; ++second)
        add(rowOn("2026-03-" + std::to_string(10 + second % 5), second, "text",
                  second % 2 == 0 ? "Event" : "Holiday"));
    alter(R"(CREATE INDEX astray ON appoint ("Desc", "StyleSet" DESC, "Date" DESC);
             PRAGMA writable_schema = ON;
             UPDATE sqlite_master SET rootpage =
                 (SELECT rootpage FROM sqlite_master WHERE name = 'astray')
             WHERE name IN ('appoint_day', 'appoint_date');)");
    std::set<std::chrono::year_month_day> days;
    for (const DayStyle& style : store.DayStyles())
        days.insert(style.day);
    EXPECT_THAT(textsOfTheDay(), testing::Each("text"));
}

}  // namespace
}  // namespace velmora
