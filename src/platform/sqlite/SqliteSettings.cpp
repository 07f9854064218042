#include "platform/sqlite/SqliteSettings.h"

#include <sqlite3.h>

#include <algorithm>

#include "platform/Failure.h"
#include "platform/files/FileSteps.h"

namespace velmora {
namespace {

constexpr const char* kSchema =
    "PRAGMA journal_mode = WAL;"
    "PRAGMA synchronous = FULL;"
    "CREATE TABLE IF NOT EXISTS settings("
    "  key TEXT PRIMARY KEY COLLATE NOCASE, value BLOB NOT NULL) WITHOUT ROWID;";

// A name that is free: the path plus ".damaged", with a number behind it from the second on.
NativePath freeName(const NativePath& path) {
    NativePath name = path.withEnding(".damaged");
    for (int number = 2; isNameTaken(name); ++number)
        name = path.withEnding(".damaged-" + std::to_string(number));
    return name;
}

// Lets go of the lock that a statement holds while it stands on a row.
class Reading {
  public:
    explicit Reading(sqlite::Statement& statement) : statement_(statement) {}
    ~Reading() { statement_.reset(); }
    Reading(const Reading&) = delete;
    Reading& operator=(const Reading&) = delete;

  private:
    sqlite::Statement& statement_;
};

char lowerAscii(char c) {
    return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c;
}

// As the keys' collation compares.
bool beginsWith(std::string_view key, std::string_view prefix) {
    return key.size() >= prefix.size() &&
           std::equal(prefix.begin(), prefix.end(), key.begin(),
                      [](char a, char b) { return lowerAscii(a) == lowerAscii(b); });
}

}  // namespace

SqliteSettings::Statements::Statements(sqlite::Database& database)
    : read(database.prepare("SELECT value FROM settings WHERE key = ?1")),
      readAll(database.prepare("SELECT key, value FROM settings WHERE key >= ?1 ORDER BY key")),
      save(database.prepare("INSERT INTO settings VALUES(?1, ?2) "
                            "ON CONFLICT(key) DO UPDATE SET value = ?2")),
      remove(database.prepare("DELETE FROM settings WHERE key = ?1")) {}

SqliteSettings::SqliteSettings(const NativePath& path) {
    try {
        open(path);
    } catch (const Failure&) {
        const int code = database_ ? database_->errorCode() : SQLITE_OK;
        if (code != SQLITE_NOTADB && code != SQLITE_CORRUPT)
            throw;
        statements_.reset();
        database_.reset();
        putAside_ = freeName(path);
        renameOver(path, *putAside_);
        open(path);
    }
}

void SqliteSettings::open(const NativePath& path) {
    database_.emplace(path, sqlite::Access::ReadWriteOrCreate);
    database_->execute(kSchema);
    statements_.emplace(*database_);
}

std::string SqliteSettings::read(std::string_view key) const {
    std::string value;
    ignoringErrors([&] {
        const Reading reading(statements_->read);
        if (statements_->read.bindText(1, key).step())
            value = statements_->read.blob(0);
    });
    return value;
}

std::vector<Setting> SqliteSettings::readAll(std::string_view prefix) const {
    std::vector<Setting> found;
    sqlite::Statement& query = statements_->readAll;
    const Reading reading(query);
    query.bindText(1, prefix);
    while (query.step() && beginsWith(query.text(0), prefix))
        found.push_back({std::string(query.text(0)), std::string(query.blob(1))});
    return found;
}

void SqliteSettings::save(std::string_view key, std::string_view value) {
    statements_->save.bindText(1, key).bindBlob(2, value).run();
}

void SqliteSettings::remove(std::string_view key) {
    statements_->remove.bindText(1, key).run();
}

void SqliteSettings::batch(const std::function<void()>& changes) {
    if (database_->inTransaction()) {
        changes();
        return;
    }
    sqlite::Transaction transaction(*database_);
    changes();
    transaction.commit();
}

}  // namespace velmora
