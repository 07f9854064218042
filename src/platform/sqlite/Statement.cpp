#include "platform/sqlite/Statement.h"

#include <sqlite3.h>

#include "platform/sqlite/EngineFailure.h"
#include "platform/sqlite/WorkLimit.h"

namespace velmora::sqlite {

namespace {

// An empty view may hold a null pointer, which would bind Null.
const char* bytesOf(std::string_view text) {
    return text.data() ? text.data() : "";
}

}  // namespace

void Statement::Finalizer::operator()(sqlite3_stmt* handle) const {
    sqlite3_finalize(handle);
}

void Statement::check(int result) const {
    if (result != SQLITE_OK)
        throw engineFailure(database_);
}

Statement& Statement::bindText(int parameter, std::string_view text) {
    check(sqlite3_bind_text64(handle_.get(), parameter, bytesOf(text), text.size(),
                              SQLITE_TRANSIENT, SQLITE_UTF8));
    return *this;
}

Statement& Statement::bindBlob(int parameter, std::string_view bytes) {
    check(sqlite3_bind_blob64(handle_.get(), parameter, bytesOf(bytes), bytes.size(),
                              SQLITE_TRANSIENT));
    return *this;
}

Statement& Statement::bindInteger(int parameter, std::int64_t number) {
    check(sqlite3_bind_int64(handle_.get(), parameter, number));
    return *this;
}

Statement& Statement::bindNull(int parameter) {
    check(sqlite3_bind_null(handle_.get(), parameter));
    return *this;
}

bool Statement::step() {
    if (workLimit_ && sqlite3_stmt_busy(handle_.get()) == 0)
        workLimit_->renew();
    const int result = sqlite3_step(handle_.get());
    if (result == SQLITE_ROW)
        return true;
    if (result == SQLITE_DONE) {
        reset();
        return false;
    }
    const StorageFailure failure = engineFailure(database_);
    reset();
    throw failure;
}

void Statement::run() {
    while (step()) {
    }
}

void Statement::reset() {
    sqlite3_reset(handle_.get());
}

std::string_view Statement::text(int column) const {
    return textOrNull(column).value_or(std::string_view());
}

std::optional<std::string_view> Statement::textOrNull(int column) const {
    const auto* bytes = sqlite3_column_text(handle_.get(), column);
    if (!bytes)
        return std::nullopt;
    const auto size = static_cast<std::size_t>(sqlite3_column_bytes(handle_.get(), column));
    return std::string_view(reinterpret_cast<const char*>(bytes), size);
}

std::string_view Statement::blob(int column) const {
    const void* bytes = sqlite3_column_blob(handle_.get(), column);
    const auto size = static_cast<std::size_t>(sqlite3_column_bytes(handle_.get(), column));
    return bytes ? std::string_view(static_cast<const char*>(bytes), size) : std::string_view();
}

std::int64_t Statement::integer(int column) const {
    return sqlite3_column_int64(handle_.get(), column);
}

bool Statement::isNull(int column) const {
    return sqlite3_column_type(handle_.get(), column) == SQLITE_NULL;
}

}  // namespace velmora::sqlite
