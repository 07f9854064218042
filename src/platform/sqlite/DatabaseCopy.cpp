#include "platform/sqlite/DatabaseCopy.h"

#include <sqlite3.h>

#include <string>

#include "platform/Failure.h"
#include "platform/StorageFailure.h"
#include "platform/files/FileSteps.h"
#include "platform/files/TemporaryName.h"

namespace velmora::sqlite {
namespace {

constexpr int kPagesPerStep = 64;

Failure notCopied(const NativePath& path, const std::string& why) {
    return Failure("The database " + path.utf8() + " can not be copied: " + why + ".");
}

}  // namespace

void DatabaseCopy::CloseDatabase::operator()(sqlite3* handle) const {
    sqlite3_close_v2(handle);
}

void DatabaseCopy::FinishBackup::operator()(sqlite3_backup* backup) const {
    sqlite3_backup_finish(backup);
}

DatabaseCopy::DatabaseCopy(const NativePath& source, const NativePath& target,
                           std::chrono::milliseconds patience)
    : target_(target), beside_(temporaryBeside(target)), patience_(patience) {
    clearAbandonedBeside(target);
    source_ = open(source, SQLITE_OPEN_READONLY);
    removeIfThere(beside_);
    makePrivateFile(beside_);
    try {
        copy_ = open(beside_, SQLITE_OPEN_READWRITE);
    } catch (const Failure&) {
        ignoringErrors([&] { removeIfThere(beside_); });
        throw;
    }
    // Whatever ends it in the middle, the file is thrown away.
    sqlite3_exec(copy_.get(), "PRAGMA journal_mode=OFF", nullptr, nullptr, nullptr);
    backup_.reset(sqlite3_backup_init(copy_.get(), "main", source_.get(), "main"));
    if (!backup_) {
        ignoringErrors([&] { removeIfThere(beside_); });
        throw notCopied(source, sqlite3_errmsg(copy_.get()));
    }
}

DatabaseCopy::~DatabaseCopy() {
    backup_.reset();
    copy_.reset();
    ignoringErrors([&] { removeIfThere(beside_); });
}

DatabaseCopy::Handle DatabaseCopy::open(const NativePath& path, int flags) {
    sqlite3* handle = nullptr;
    const int result = sqlite3_open_v2(path.c_str(), &handle, flags, nullptr);
    Handle owned(handle);
    if (result != SQLITE_OK)
        throw notCopied(path, sqlite3_errstr(result));
    return owned;
}

bool DatabaseCopy::step() {
    const int result = sqlite3_backup_step(backup_.get(), kPagesPerStep);
    if (result == SQLITE_DONE) {
        place();
        return false;
    }
    if (result == SQLITE_OK) {
        lockedSince_.reset();
        return true;
    }
    const NativePath source(sqlite3_db_filename(source_.get(), "main"));
    if (result != SQLITE_BUSY && result != SQLITE_LOCKED)
        throw notCopied(source, sqlite3_errstr(result));
    const auto now = std::chrono::steady_clock::now();
    if (!lockedSince_)
        lockedSince_ = now;
    else if (now - *lockedSince_ > patience_)
        throw StorageFailure(notCopied(source, "it is in use").what(), Obstacle::InUse);
    return true;
}

// The engine tells at the end only that all was written.
void DatabaseCopy::place() {
    const int result = sqlite3_backup_finish(backup_.release());
    copy_.reset();
    if (result != SQLITE_OK)
        throw notCopied(target_, sqlite3_errstr(result));
    flushFile(beside_);
    renameOver(beside_, target_);
}

}  // namespace velmora::sqlite
