#include "planner/sqlite/PlannerDatabaseMove.h"

#include <chrono>
#include <optional>

#include "planner/sqlite/PlannerDatabase.h"
#include "platform/Failure.h"
#include "platform/files/FileIdentity.h"
#include "platform/files/FileSteps.h"
#include "platform/files/TemporaryName.h"
#include "platform/sqlite/Database.h"

namespace velmora {

namespace {

constexpr std::chrono::milliseconds kPatience{200};

// Keeps writers out of a database as long as it lives; what a crash left undone in the file is put
// right first. Closing any other handle of this process on the file would end it early.
class StandStill {
  public:
    // `begin`: how the transaction begins that stands for all that time.
    StandStill(const NativePath& path, const char* begin)
        : database_(path, sqlite::Access::ReadWrite, kPatience) {
        database_.execute(begin);
        (void)database_.prepare("SELECT 1 FROM sqlite_master").step();
    }

  private:
    sqlite::Database database_;
};

// A read lock, so that the file may lie where nothing can be written.
constexpr const char* kToRead = "BEGIN";

// The write lock, so that whoever wants to write waits, and finds the new file then.
constexpr const char* kToReplace = "BEGIN IMMEDIATE";

void keepGeneration(const NativePath& path) {
    const NativePath kept = path.sibling(path.stem() + ".previous" + path.extension());
    const NativePath beside = temporaryBeside(kept);
    removeIfThere(beside);
    keepUnderSecondName(path, beside);
    try {
        renameOver(beside, kept);
    } catch (const Failure&) {
        ignoringErrors([&] { removeIfThere(beside); });
        throw;
    }
    // Still there where it was kept before already, for two names of one file are left as they are.
    ignoringErrors([&] { removeIfThere(beside); });
}

}  // namespace

void copyPlannerDatabase(const NativePath& from, const NativePath& to) {
    if (kindOfDatabase(from) != DatabaseKind::Planner)
        throw Failure("\"" + from.utf8() + "\" is no planner database.");
    if (identityOf(from) == identityOf(to))
        return;
    clearAbandonedBeside(to);
    const NativePath beside = temporaryBeside(to);
    try {
        {
            const StandStill source(from, kToRead);
            copyFile(from, beside);
        }
        if (sameBytes(beside, to))
            return removeIfThere(beside);
        std::optional<StandStill> target;
        if (readableKindOf(to) == DatabaseKind::Planner)
            target.emplace(to, kToReplace);
        if (identityOf(to))
            keepGeneration(to);
        renameOver(beside, to);
    } catch (const Failure&) {
        ignoringErrors([&] { removeIfThere(beside); });
        throw;
    }
    // A journal of the replaced file must not be played back into the new one.
    ignoringErrors([&] { removeIfThere(to.withEnding("-journal")); });
}

}  // namespace velmora
