#include "planner/PlannerDatabaseMove.h"

#include <unistd.h>

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <optional>

#include "planner/PlannerDatabase.h"
#include "planner/SafeReplace.h"
#include "platform/Failure.h"
#include "platform/sqlite/Database.h"

namespace velmora {

namespace {

// Keeps writers out of a database as long as it lives; what a crash left undone in the file is put
// right first. Closing any other handle of this process on the file would end it early.
class StandStill {
  public:
    // `begin`: how the transaction begins that stands for all that time.
    StandStill(const std::string& path, const char* begin)
        : database_(path, sqlite::Access::ReadWrite) {
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

bool sameBytes(const std::string& a, const std::string& b) {
    std::ifstream first(a, std::ios::binary);
    std::ifstream second(b, std::ios::binary);
    using Bytes = std::istreambuf_iterator<char>;
    return first && second && std::equal(Bytes(first), Bytes(), Bytes(second), Bytes());
}

void keepGeneration(const std::string& path) {
    const std::filesystem::path file(path);
    const std::string kept =
        (file.parent_path() / (file.stem().string() + ".previous" + file.extension().string()))
            .string();
    const std::string beside = kept + ".keeping-" + std::to_string(::getpid());
    removeIfThere(beside);
    keepUnderSecondName(path, beside);
    renameOver(beside, kept);
}

}  // namespace

void copyPlannerDatabase(const std::string& from, const std::string& to) {
    if (kindOfDatabase(from) != DatabaseKind::Planner)
        throw Failure("\"" + from + "\" is no planner database.");
    if (identityOf(from) == identityOf(to))
        return;
    const std::string beside = to + ".copying-" + std::to_string(::getpid());
    try {
        {
            const StandStill source(from, kToRead);
            copyFile(from, beside);
        }
        if (sameBytes(beside, to))
            return removeIfThere(beside);
        std::optional<StandStill> target;
        if (kindOfDatabase(to) == DatabaseKind::Planner)
            target.emplace(to, kToReplace);
        if (identityOf(to))
            keepGeneration(to);
        renameOver(beside, to);
    } catch (const Failure&) {
        ignoringErrors([&] { removeIfThere(beside); });
        throw;
    }
    // A journal of the replaced file must not be played back into the new one.
    ignoringErrors([&] { removeIfThere(to + "-journal"); });
}

}  // namespace velmora
