#pragma once

#include "platform/NativePath.h"

namespace velmora::sqlite {
class Database;
}

// The file that holds the table of appointments.
namespace velmora {

enum class DatabaseKind {
    Missing,  // no such file, or none that can be read
    Planner,  // has the signature of the engine that Velmora uses
    Access,   // a database of the older format, to be converted
    Foreign,  // anything else, the empty file too: never opened, never written
};

// Looks at the file's first bytes only.
[[nodiscard]] DatabaseKind kindOfDatabase(const NativePath& path);

// The same, but a file that is there and can not be read is a Failure, not a missing one.
[[nodiscard]] DatabaseKind readableKindOf(const NativePath& path);

// Makes the table of appointments and its indexes in an empty database. Throws Failure.
void createAppointmentTable(sqlite::Database& database);

// Lays down an empty database where no file is, whole or not at all; a file that is there stays as
// it is. The folder must exist. Throws Failure.
void layDownDatabase(const NativePath& path);

}  // namespace velmora
