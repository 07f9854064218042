#include "benches/BareSettings.h"

#include <sqlite3.h>

#include <stdexcept>

namespace velmora::bench {
namespace {

void check(bool good) {
    if (!good)
        throw std::runtime_error("the bare settings failed");
}

void run(sqlite3* database, const char* text) {
    check(sqlite3_exec(database, text, nullptr, nullptr, nullptr) == SQLITE_OK);
}

sqlite3_stmt* prepared(sqlite3* database, const char* text) {
    sqlite3_stmt* statement = nullptr;
    check(sqlite3_prepare_v2(database, text, -1, &statement, nullptr) == SQLITE_OK);
    return statement;
}

}  // namespace

BareSettings::BareSettings(const std::string& path) {
    check(sqlite3_open(path.c_str(), &database_) == SQLITE_OK);
    run(database_,
        "PRAGMA journal_mode = WAL; PRAGMA synchronous = FULL;"
        "CREATE TABLE IF NOT EXISTS settings("
        "key TEXT PRIMARY KEY COLLATE NOCASE, value BLOB NOT NULL) WITHOUT ROWID");
}

BareSettings::~BareSettings() {
    sqlite3_close(database_);
}

void BareSettings::write(const std::vector<std::pair<std::string, std::string>>& rows) {
    run(database_, "BEGIN IMMEDIATE");
    sqlite3_stmt* statement = prepared(database_,
                                       "INSERT INTO settings VALUES(?1, ?2) "
                                       "ON CONFLICT(key) DO UPDATE SET value = ?2");
    for (const auto& [key, value] : rows) {
        sqlite3_bind_text(statement, 1, key.data(), static_cast<int>(key.size()), SQLITE_STATIC);
        sqlite3_bind_blob(statement, 2, value.data(), static_cast<int>(value.size()),
                          SQLITE_STATIC);
        check(sqlite3_step(statement) == SQLITE_DONE);
        sqlite3_reset(statement);
    }
    sqlite3_finalize(statement);
    run(database_, "COMMIT");
}

std::size_t BareSettings::fetchAll() {
    sqlite3_stmt* statement = prepared(database_, "SELECT key, value FROM settings ORDER BY key");
    std::vector<std::pair<std::string, std::string>> rows;
    int code = SQLITE_ROW;
    while ((code = sqlite3_step(statement)) == SQLITE_ROW)
        rows.emplace_back(
            reinterpret_cast<const char*>(sqlite3_column_text(statement, 0)),
            std::string(static_cast<const char*>(sqlite3_column_blob(statement, 1)),
                        static_cast<std::size_t>(sqlite3_column_bytes(statement, 1))));
    check(code == SQLITE_DONE);
    sqlite3_finalize(statement);
    return rows.size();
}

}  // namespace velmora::bench
