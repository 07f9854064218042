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

// Keeps all writers out of a database; what a crash left undone in it is first put right.
class StandStill {
  public:
    explicit StandStill(const std::string& path)
        : database_(path, sqlite::Access::ReadWrite), transaction_(database_) {}

  private:
    sqlite::Database database_;
    sqlite::Transaction transaction_;
};

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
    const StandStill source(from);
    try {
        copyFile(from, beside);
        std::optional<StandStill> target;
        if (kindOfDatabase(to) == DatabaseKind::Planner)
            target.emplace(to);
        if (identityOf(to)) {
            if (sameBytes(beside, to))
                return removeIfThere(beside);
            keepGeneration(to);
        }
        renameOver(beside, to);
    } catch (const Failure&) {
        ignoringErrors([&] { removeIfThere(beside); });
        throw;
    }
    // A journal of the replaced file must not be played back into the new one.
    ignoringErrors([&] { removeIfThere(to + "-journal"); });
}

}  // namespace velmora
