#include "platform/sqlite/Database.h"

#include <sqlite3.h>

#include <utility>

#include "platform/Failure.h"
#include "platform/sqlite/EngineFailure.h"
#include "platform/sqlite/WorkLimit.h"

namespace velmora::sqlite {

namespace {

int flagsFor(Access access) {
    switch (access) {
        case Access::ReadOnly:
            return SQLITE_OPEN_READONLY;
        case Access::AsItLies:
            return SQLITE_OPEN_READONLY | SQLITE_OPEN_URI;
        case Access::ReadWrite:
            return SQLITE_OPEN_READWRITE;
        case Access::ReadWriteOrCreate:
            break;
    }
    return SQLITE_OPEN_READWRITE | SQLITE_OPEN_CREATE;
}

// The address by which the engine is told that nobody writes to the file meanwhile.
std::string addressOf(const NativePath& path) {
    constexpr std::string_view kPlain =
        "abcdefghijklmnopqrstuvwxyzABCDEFGHIJKLMNOPQRSTUVWXYZ0123456789/._-";
    constexpr std::string_view kDigits = "0123456789ABCDEF";
    std::string address = "file:";
    for (const char letter : path.utf8()) {
        if (kPlain.find(letter) != std::string_view::npos) {
            address += letter;
            continue;
        }
        const auto byte = static_cast<unsigned char>(letter);
        address += {'%', kDigits[byte / 16], kDigits[byte % 16]};
    }
    return address + "?immutable=1";
}

std::string nameFor(const NativePath& path, Access access) {
    return access == Access::AsItLies ? addressOf(path) : path.utf8();
}
// Bytes; a foreign file may ask for texts of any length to be made.
constexpr int kLongestRow = 64 * 1024 * 1024;

}  // namespace

void Database::Closer::operator()(sqlite3* handle) const {
    sqlite3_close_v2(handle);
}

Database::Database(const NativePath& path, Access access, std::chrono::milliseconds patience) {
    open(path, access);
    sqlite3_busy_timeout(handle_.get(), static_cast<int>(patience.count()));
}

Database::Database(const NativePath& path, Access access, Patience& patience) {
    open(path, access);
    const auto wait = [](void* waiting, int timesBefore) {
        return static_cast<Patience*>(waiting)->wait(timesBefore) ? 1 : 0;
    };
    sqlite3_busy_handler(handle_.get(), wait, &patience);
}

Database::~Database() = default;
Database::Database(Database&& other) noexcept = default;
Database& Database::operator=(Database&& other) noexcept = default;

void Database::open(const NativePath& path, Access access) {
    sqlite3* opened = nullptr;
    const int result = sqlite3_open_v2(nameFor(path, access).c_str(), &opened,
                                       flagsFor(access) | SQLITE_OPEN_NOMUTEX, nullptr);
    handle_.reset(opened);
    if (!handle_)
        throw Failure("The database \"" + path.utf8() + "\" can not be opened: out of memory.");
    if (result != SQLITE_OK)
        throw Failure("The database \"" + path.utf8() +
                      "\" can not be opened: " + sqlite3_errmsg(opened) + ".");
    sqlite3_extended_result_codes(opened, 1);
}

void Database::distrust() {
    sqlite3* database = handle_.get();
    for (const auto& [setting, value] :
         {std::pair{SQLITE_DBCONFIG_DEFENSIVE, 1}, std::pair{SQLITE_DBCONFIG_TRUSTED_SCHEMA, 0},
          std::pair{SQLITE_DBCONFIG_ENABLE_TRIGGER, 0}, std::pair{SQLITE_DBCONFIG_ENABLE_VIEW, 0}})
        sqlite3_db_config(database, setting, value, nullptr);
    sqlite3_limit(database, SQLITE_LIMIT_LENGTH, kLongestRow);
    workLimit_ = std::make_unique<WorkLimit>(database);
}

void Database::execute(const std::string& sql) {
    if (workLimit_)
        workLimit_->renew();
    if (sqlite3_exec(handle_.get(), sql.c_str(), nullptr, nullptr, nullptr) != SQLITE_OK)
        throw engineFailure(handle_.get());
}

Statement Database::prepare(std::string_view sql) {
    if (workLimit_)
        workLimit_->renew();
    sqlite3_stmt* prepared = nullptr;
    const char* rest = nullptr;
    const int result = sqlite3_prepare_v2(handle_.get(), sql.data(), static_cast<int>(sql.size()),
                                          &prepared, &rest);
    Statement statement(handle_.get(), prepared, workLimit_.get());
    if (result != SQLITE_OK)
        throw engineFailure(handle_.get());
    const bool whole =
        std::string_view(rest, sql.data() + sql.size()).find_first_not_of(" \t\r\n;") ==
        std::string_view::npos;
    if (!prepared || !whole)
        throw Failure("Not a single database statement: " + std::string(sql));
    return statement;
}

int Database::errorCode() const {
    const int code = sqlite3_errcode(handle_.get()) & 0xFF;
    return code == SQLITE_ROW || code == SQLITE_DONE ? SQLITE_OK : code;
}

std::int64_t Database::changedRows() const {
    return sqlite3_changes(handle_.get());
}

bool Database::inTransaction() const {
    return sqlite3_get_autocommit(handle_.get()) == 0;
}

Transaction::Transaction(Database& database) : database_(database) {
    database_.execute("BEGIN IMMEDIATE");
}

Transaction::~Transaction() {
    // A failed commit, or a full disk, may have ended it already.
    if (open_ && database_.inTransaction())
        ignoringErrors([&] { database_.execute("ROLLBACK"); });
}

void Transaction::commit() {
    database_.execute("COMMIT");
    open_ = false;
}

}  // namespace velmora::sqlite
