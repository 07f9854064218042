#include "planner/PlannerFolder.h"

#include "platform/Failure.h"
#include "platform/Text.h"

namespace velmora {

void PlannerFolder::OpenAtStart() {
    // Where it is not known which database is the user's, none is opened in its stead; why, is told
    // with the state of the settings.
    ignoringErrors([&] { open(parts_.locations.PlannerDatabasePath()); });
}

void PlannerFolder::Move(const std::string& folder) {
    const std::string own = parts_.locations.programFolder() + kPlannerDatabaseFile;
    const std::string wanted(trimBlanks(folder));
    if (wanted.empty()) {
        open(own);
        return show();
    }
    parts_.desk.CloseWeekAtAGlance();
    const std::string target = wanted + kPlannerDatabaseFile;
    parts_.places.prepare(own);
    const std::string failed = copy(own, target);
    // After a copy that failed this is what lay there before; with nothing there, the planner
    // stays where it is.
    if (parts_.places.isThere(target))
        open(target);
    show();
    parts_.messages.warn(
        kApplicationTitle,
        "If you have changed your network settings, you should exit the program and "
        "then run it again for best results.");
    if (!failed.empty())
        parts_.status.show(failed);
}

std::string PlannerFolder::copy(const std::string& from, const std::string& to) {
    try {
        parts_.places.copy(from, to);
        return {};
    } catch (const Failure& failure) {
        return "The planner was not copied to \"" + to + "\". " +
               parts_.codePage.fromUtf8(failure.what());
    }
}

void PlannerFolder::open(const std::string& path) {
    parts_.places.prepare(path);
    parts_.store.OpenDatabase(path);
}

void PlannerFolder::show() {
    parts_.planner.RefreshControls();
    parts_.planner.UpdateDays();
    parts_.planner.LoadDayTasks();
}

}  // namespace velmora
