#include "platform/sqlite/EngineFailure.h"

#include <sqlite3.h>

#include <string>

namespace velmora::sqlite {

Failure engineFailure(sqlite3* database) {
    const char* path = sqlite3_db_filename(database, "main");
    const std::string where = path && *path ? " \"" + std::string(path) + "\"" : std::string();
    return Failure("The database" + where + " can not be used: " + sqlite3_errmsg(database) + ".");
}

}  // namespace velmora::sqlite
