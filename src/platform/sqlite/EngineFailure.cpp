#include "platform/sqlite/EngineFailure.h"

#include <sqlite3.h>

#include <string>

namespace velmora::sqlite {
namespace {

Obstacle obstacleBehind(int code) {
    switch (code & 0xFF) {
        case SQLITE_BUSY:
        case SQLITE_LOCKED:
            return Obstacle::InUse;
        case SQLITE_FULL:
            return Obstacle::DiskFull;
        case SQLITE_READONLY:
        case SQLITE_PERM:
            return Obstacle::ReadOnly;
        default:
            return Obstacle::Other;
    }
}

}  // namespace

StorageFailure engineFailure(sqlite3* database) {
    const char* path = sqlite3_db_filename(database, "main");
    const std::string where = path && *path ? " \"" + std::string(path) + "\"" : std::string();
    return {"The database" + where + " can not be used: " + sqlite3_errmsg(database) + ".",
            obstacleBehind(sqlite3_errcode(database))};
}

}  // namespace velmora::sqlite
