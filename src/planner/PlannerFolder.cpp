#include "planner/PlannerFolder.h"

#include "platform/Failure.h"
#include "platform/Text.h"

namespace velmora {

PlannerFolder::PlannerFolder(const DataLocations& locations, PlannerPlaces& places,
                             AppointmentStore& store, Planner& planner, PlannerDesk& desk,
                             Messages& messages)
    : locations_(locations),
      places_(places),
      store_(store),
      planner_(planner),
      desk_(desk),
      messages_(messages) {}

void PlannerFolder::OpenAtStart() {
    // Where it is not known which database is the user's, none is opened in its stead; why, is told
    // with the state of the settings.
    ignoringErrors([&] { open(locations_.PlannerDatabasePath()); });
}

void PlannerFolder::Move(const std::string& folder) {
    const std::string own = locations_.programFolder() + kPlannerDatabaseFile;
    const std::string wanted(trimBlanks(folder));
    if (wanted.empty()) {
        open(own);
        return show();
    }
    desk_.CloseWeekAtAGlance();
    const std::string target = wanted + kPlannerDatabaseFile;
    places_.prepare(own);
    ignoringErrors([&] { places_.copy(own, target); });
    // After a copy that failed this is what lay there before; with nothing there, the planner
    // stays where it is.
    if (places_.isThere(target))
        open(target);
    show();
    messages_.warn(kApplicationTitle,
                   "If you have changed your network settings, you should exit the program and "
                   "then run it again for best results.");
}

void PlannerFolder::open(const std::string& path) {
    places_.prepare(path);
    store_.OpenDatabase(path);
}

void PlannerFolder::show() {
    planner_.RefreshControls();
    planner_.UpdateDays();
    planner_.LoadDayTasks();
}

}  // namespace velmora
