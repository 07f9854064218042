#include "planner/PlannerFolder.h"

#include "planner/PlannerDatabase.h"
#include "planner/PlannerDatabaseMove.h"
#include "platform/Failure.h"
#include "platform/Text.h"

namespace velmora {

PlannerFolder::PlannerFolder(const DataLocations& locations, PlannerOpener& opener,
                             AppointmentStore& store, Planner& planner, PlannerDesk& desk,
                             Messages& messages)
    : locations_(locations),
      opener_(opener),
      store_(store),
      planner_(planner),
      desk_(desk),
      messages_(messages) {}

void PlannerFolder::OpenAtStart() {
    // Where it is not known which database is the user's, none is opened in its stead; why, is told
    // with the state of the settings.
    ignoringErrors([&] { opener_.Open(store_, locations_.PlannerDatabasePath()); });
}

void PlannerFolder::Move(const std::string& folder) {
    const std::string own = locations_.programFolder() + kPlannerDatabaseFile;
    const std::string wanted(trimBlanks(folder));
    if (wanted.empty()) {
        opener_.Open(store_, own);
        return show();
    }
    desk_.CloseWeekAtAGlance();
    const std::string target = wanted + kPlannerDatabaseFile;
    opener_.Prepare(own);
    ignoringErrors(
        [&] { copyPlannerDatabase(opener_.nativePath(own), opener_.nativePath(target)); });
    // After a copy that failed this is what lay there before; with nothing there, the planner
    // stays where it is.
    if (kindOfDatabase(opener_.nativePath(target)) != DatabaseKind::Missing)
        opener_.Open(store_, target);
    show();
    messages_.warn(kApplicationTitle,
                   "If you have changed your network settings, you should exit the program and "
                   "then run it again for best results.");
}

void PlannerFolder::show() {
    planner_.RefreshControls();
    planner_.UpdateDays();
    planner_.LoadDayTasks();
}

}  // namespace velmora
