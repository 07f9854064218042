#include "planner/PlannerOpener.h"

#include "planner/PlannerDatabase.h"
#include "platform/Failure.h"

namespace velmora {

PlannerOpener::PlannerOpener(AccessTableReader& reader, Messages& messages,
                             const CodePage& codePage, const SystemPaths& paths)
    : conversion_(reader), messages_(messages), codePage_(codePage), paths_(paths) {}

void PlannerOpener::Open(AppointmentStore& store, const std::string& path) {
    Prepare(path);
    store.OpenDatabase(path);
}

void PlannerOpener::Prepare(const std::string& path) {
    const NativePath file = paths_.nativePath(path);
    if (kindOfDatabase(file) != DatabaseKind::Access)
        return;
    try {
        const std::string original = conversion_.convert(file);
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

}  // namespace velmora
