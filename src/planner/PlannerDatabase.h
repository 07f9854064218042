#pragma once

#include <cstdint>
#include <optional>
#include <string>

namespace velmora::sqlite {
class Database;
}

// The file that holds the table of appointments. Paths here are those of the system.
namespace velmora {

enum class DatabaseKind {
    Missing,  // no such file, or none that can be read
    Planner,  // has the signature of the engine that Velmora uses
    Access,   // a database of the older format, to be converted
    Foreign,  // anything else, the empty file too: never opened, never written
};

// Looks at the file's first bytes only.
[[nodiscard]] DatabaseKind kindOfDatabase(const std::string& path);

// Makes the table of appointments and its indexes in an empty database. Throws Failure.
void createAppointmentTable(sqlite::Database& database);

// Lays down an empty database where no file is, whole or not at all; a file that is there stays as
// it is. The folder must exist. Throws Failure.
void layDownDatabase(const std::string& path);

// Which file a path means at this moment; nothing when it means none.
struct FileIdentity {
    std::uint64_t device = 0;
    std::uint64_t node = 0;

    bool operator==(const FileIdentity&) const = default;
};
[[nodiscard]] std::optional<FileIdentity> identityOf(const std::string& path);

}  // namespace velmora
