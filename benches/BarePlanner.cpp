#include "benches/BarePlanner.h"

#include <sqlite3.h>

#include <array>
#include <stdexcept>
#include <vector>

namespace velmora::bench {
namespace {

using Row = std::array<std::string, 6>;

void check(bool good) {
    if (!good)
        throw std::runtime_error("the bare planner failed");
}

sqlite3_stmt* prepared(sqlite3* database, const char* text) {
    sqlite3_stmt* statement = nullptr;
    check(sqlite3_prepare_v2(database, text, -1, &statement, nullptr) == SQLITE_OK);
    return statement;
}

}  // namespace

BarePlanner::BarePlanner(const std::string& path) {
    check(sqlite3_open(path.c_str(), &database_) == SQLITE_OK);
    check(sqlite3_exec(database_, "PRAGMA cache_size = -16384", nullptr, nullptr, nullptr) ==
          SQLITE_OK);
}

BarePlanner::~BarePlanner() {
    sqlite3_close(database_);
}

std::size_t BarePlanner::fetchDay(const std::string& storedDay) {
    sqlite3_stmt* statement =
        prepared(database_,
                 R"(SELECT rowid, "TagVariant", "Date", "BeginTime", "EndTime", "Desc", "StyleSet"
           FROM appoint WHERE "Date" = ?1 ORDER BY rowid)");
    check(sqlite3_bind_text(statement, 1, storedDay.c_str(), -1, SQLITE_STATIC) == SQLITE_OK);
    std::vector<Row> rows;
    int code = SQLITE_ROW;
    while ((code = sqlite3_step(statement)) == SQLITE_ROW) {
        Row& row = rows.emplace_back();
        for (int i = 0; i < 6; ++i)
            row[static_cast<std::size_t>(i)].assign(
                reinterpret_cast<const char*>(sqlite3_column_text(statement, i + 1)),
                static_cast<std::size_t>(sqlite3_column_bytes(statement, i + 1)));
    }
    check(code == SQLITE_DONE);
    sqlite3_finalize(statement);
    return rows.size();
}

void BarePlanner::changeFirstRowOf(const std::string& storedDay, const std::string& text) {
    sqlite3_stmt* statement = prepared(database_,
                                       R"(UPDATE appoint SET "Desc" = ?2
           WHERE rowid = (SELECT min(rowid) FROM appoint WHERE "Date" = ?1))");
    check(sqlite3_bind_text(statement, 1, storedDay.c_str(), -1, SQLITE_STATIC) == SQLITE_OK);
    check(sqlite3_bind_text(statement, 2, text.c_str(), -1, SQLITE_STATIC) == SQLITE_OK);
    check(sqlite3_step(statement) == SQLITE_DONE);
    sqlite3_finalize(statement);
    check(sqlite3_changes(database_) == 1);
}

std::size_t BarePlanner::passDays() {
    sqlite3_stmt* statement =
        prepared(database_, R"(SELECT "Date", "StyleSet" FROM appoint ORDER BY rowid)");
    std::size_t count = 0;
    int code = SQLITE_ROW;
    while ((code = sqlite3_step(statement)) == SQLITE_ROW)
        if (sqlite3_column_text(statement, 0) && sqlite3_column_text(statement, 1))
            ++count;
    check(code == SQLITE_DONE);
    sqlite3_finalize(statement);
    return count;
}

}  // namespace velmora::bench
