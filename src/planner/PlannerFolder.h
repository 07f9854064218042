#pragma once

#include <string>

#include "core/DataLocations.h"
#include "planner/AppointmentStore.h"
#include "planner/Planner.h"
#include "planner/PlannerControls.h"
#include "planner/PlannerPlaces.h"
#include "platform/CodePage.h"
#include "platform/Messages.h"
#include "platform/StatusLine.h"

namespace velmora {

// Which database the planner works on: chosen at start, and anew when Preferences are confirmed.
class PlannerFolder {
  public:
    // All must outlive this object.
    struct Parts {
        const DataLocations& locations;
        PlannerPlaces& places;
        AppointmentStore& store;
        Planner& planner;  // works on `store`
        PlannerDesk& desk;
        Messages& messages;
        StatusLine& status;
        const CodePage& codePage;
    };
    explicit PlannerFolder(Parts parts) : parts_(parts) {}

    // At start-up: the database in the folder "Calendar" if there is one, else that of the
    // program's folder. Never throws.
    void OpenAtStart();

    // Preferences have been confirmed with `folder` for the planner, which may be empty: then the
    // database of the program's folder is opened. Otherwise that database is copied into the
    // folder first, over what is there; that it could not be copied, and why, stands on the status
    // line. An open editor of the day view must have ended before.
    // Never throws.
    void Move(const std::string& folder);

  private:
    void open(const std::string& path);
    void show();
    // What went wrong, in words for the status line; empty when the copy is there.
    [[nodiscard]] std::string copy(const std::string& from, const std::string& to);

    Parts parts_;
};

}  // namespace velmora
