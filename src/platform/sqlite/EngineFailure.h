#pragma once

#include "platform/Failure.h"

struct sqlite3;

namespace velmora::sqlite {

// A Failure with the engine's text for the last error of `database`.
[[nodiscard]] Failure engineFailure(sqlite3* database);

}  // namespace velmora::sqlite
