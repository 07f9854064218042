#include "planner/sqlite/PlannerFiles.h"

#include "planner/sqlite/PlannerDatabase.h"
#include "planner/sqlite/PlannerDatabaseMove.h"
#include "platform/Failure.h"

namespace velmora {

void PlannerFiles::prepare(const std::string& path) {
    const NativePath file = paths_.nativePath(path);
    if (kindOfDatabase(file) != DatabaseKind::Access)
        return;
    try {
        std::string original;
        patiently_([&] { original = conversion_.convert(file); });
        if (!original.empty())
            messages_.tell(kApplicationTitle,
                           "The planner database \"" + path +
                               "\" was an Access database. Its appointments have been converted; "
                               "the original is kept beside it as \"" +
                               codePage_.fromUtf8(original) + "\".");
    } catch (const Failure& failure) {
        messages_.warn(kApplicationTitle,
                       "The planner database \"" + path +
                           "\" is an Access database that can not be converted. It has been left "
                           "as it is, and the planner is empty. " +
                           codePage_.fromUtf8(failure.what()));
    }
}

bool PlannerFiles::isThere(const std::string& path) const {
    return kindOfDatabase(paths_.nativePath(path)) != DatabaseKind::Missing;
}

void PlannerFiles::copy(const std::string& from, const std::string& to) {
    patiently_([&] { copyPlannerDatabase(paths_.nativePath(from), paths_.nativePath(to)); });
}

}  // namespace velmora
