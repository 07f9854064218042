#include "platform/sqlite/SqliteSettings.h"

#include <sqlite3.h>

#include <filesystem>

#include "platform/Failure.h"

namespace velmora {
namespace {

constexpr const char* kSchema =
    "PRAGMA journal_mode = WAL;"
    "PRAGMA synchronous = FULL;"
    "CREATE TABLE IF NOT EXISTS settings("
    "  key TEXT PRIMARY KEY COLLATE NOCASE, value BLOB NOT NULL) WITHOUT ROWID;";

// A name that is free: the path plus ".damaged", with a number behind it from the second on.
std::string freeName(const std::string& path) {
    std::string name = path + ".damaged";
    for (int number = 2; std::filesystem::exists(name); ++number)
        name = path + ".damaged-" + std::to_string(number);
    return name;
}

}  // namespace

SqliteSettings::SqliteSettings(const std::string& path) {
    try {
        open(path);
    } catch (const Failure&) {
        const int code = database_ ? database_->errorCode() : SQLITE_OK;
        if (code != SQLITE_NOTADB && code != SQLITE_CORRUPT)
            throw;
        database_.reset();
        putAside_ = freeName(path);
        std::error_code error;
        std::filesystem::rename(path, *putAside_, error);
        if (error)
            throw Failure("The damaged settings " + path +
                          " can not be put aside: " + error.message() + ".");
        open(path);
    }
}

void SqliteSettings::open(const std::string& path) {
    database_.emplace(path, sqlite::Access::ReadWriteOrCreate);
    database_->execute(kSchema);
}

std::string SqliteSettings::read(std::string_view key) const {
    std::string value;
    ignoringErrors([&] {
        auto query = database_->prepare("SELECT value FROM settings WHERE key = ?1");
        if (query.bindText(1, key).step())
            value = query.blob(0);
    });
    return value;
}

void SqliteSettings::save(std::string_view key, std::string_view value) {
    database_
        ->prepare(
            "INSERT INTO settings VALUES(?1, ?2) "
            "ON CONFLICT(key) DO UPDATE SET value = ?2")
        .bindText(1, key)
        .bindBlob(2, value)
        .run();
}

void SqliteSettings::remove(std::string_view key) {
    database_->prepare("DELETE FROM settings WHERE key = ?1").bindText(1, key).run();
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
