#pragma once

#include "platform/StorageFailure.h"

struct sqlite3;

namespace velmora::sqlite {

// The engine's text for the last error of `database`, and the obstacle that it means.
[[nodiscard]] StorageFailure engineFailure(sqlite3* database);

}  // namespace velmora::sqlite
