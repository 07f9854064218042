#pragma once

#include <chrono>
#include <memory>
#include <optional>

#include "platform/NativePath.h"

struct sqlite3;
struct sqlite3_backup;

namespace velmora::sqlite {

// Copies a database that may be in use into another file, in pieces, between which it can be read
// and written. The copy is the database as it was at one moment. It is made beside the target and
// takes its place when it is whole and on the disk; until then the target's earlier file stays.
class DatabaseCopy {
  public:
    // `patience` with locks of others, over all steps. Throws Failure when the database can not be
    // opened, or nothing can be written beside the target.
    DatabaseCopy(const NativePath& source, const NativePath& target,
                 std::chrono::milliseconds patience = std::chrono::seconds(5));
    ~DatabaseCopy();
    DatabaseCopy(const DatabaseCopy&) = delete;
    DatabaseCopy& operator=(const DatabaseCopy&) = delete;

    // Copies a piece, some milliseconds of work. True while there is more to do. Throws Failure;
    // the copy is then given up.
    [[nodiscard]] bool step();

  private:
    struct CloseDatabase {
        void operator()(sqlite3* handle) const;
    };
    struct FinishBackup {
        void operator()(sqlite3_backup* backup) const;
    };
    using Handle = std::unique_ptr<sqlite3, CloseDatabase>;

    [[nodiscard]] static Handle open(const NativePath& path, int flags);
    void place();

    NativePath target_;
    NativePath beside_;
    std::chrono::milliseconds patience_;
    Handle source_;
    Handle copy_;
    std::unique_ptr<sqlite3_backup, FinishBackup> backup_;  // goes before both
    std::optional<std::chrono::steady_clock::time_point> lockedSince_;
};

}  // namespace velmora::sqlite
