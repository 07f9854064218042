#pragma once

#include <string>

#include "core/DataLocations.h"
#include "planner/AppointmentStore.h"
#include "planner/Planner.h"
#include "planner/PlannerControls.h"
#include "planner/PlannerPlaces.h"
#include "platform/Messages.h"

namespace velmora {

// Which database the planner works on: chosen at start, and anew when Preferences are confirmed.
class PlannerFolder {
  public:
    // `planner` works on `store`.
    PlannerFolder(const DataLocations& locations, PlannerPlaces& places, AppointmentStore& store,
                  Planner& planner, PlannerDesk& desk, Messages& messages);

    // At start-up: the database in the folder "Calendar" if there is one, else that of the
    // program's folder. Never throws.
    void OpenAtStart();

    // Preferences have been confirmed with `folder` for the planner, which may be empty: then the
    // database of the program's folder is opened. Otherwise that database is copied into the
    // folder first, over what is there. An open editor of the day view must have ended before.
    // Never throws.
    void Move(const std::string& folder);

  private:
    void open(const std::string& path);
    void show();

    const DataLocations& locations_;
    PlannerPlaces& places_;
    AppointmentStore& store_;
    Planner& planner_;
    PlannerDesk& desk_;
    Messages& messages_;
};

}  // namespace velmora
