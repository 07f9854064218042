#pragma once

#include <QObject>
#include <functional>
#include <memory>

#include "app/World.h"
#include "core/CommandSet.h"
#include "core/PrintJobs.h"
#include "core/forms/Calendar.h"
#include "planner/Datewarden.h"
#include "planner/Reminders.h"
#include "planner/forms/Form7.h"
#include "planner/forms/Form8.h"

namespace velmora {

// What the windows of the occasions need of the rest of the program.
struct OccasionRoomParts {
    PrintJobs& printing;
    std::function<void()> ring;  // plays the alarm sound
    std::function<void(CommandName command)> runCommand;
};

// Builds Datewarden and the events of today, and connects them with the main window.
class OccasionRoom {
  public:
    // All must outlive the room.
    OccasionRoom(World& world, Calendar& calendar, OccasionRoomParts parts);

    void bindCommands(CommandSet& commands);

    // Steps of the start-up list. The events of today load here; they come into view behind the
    // first painting of the main window, which they lie in front of.
    void showAtStart();
    void keepInFront();

    // Opens the events of today, in front and as the active window.
    void showEvents();

  private:
    [[nodiscard]] Form7& datewardenForm();
    [[nodiscard]] Form8& eventsForm();
    void unloadEvents();

    World& world_;
    Calendar& calendar_;
    OccasionRoomParts parts_;
    Datewarden datewarden_;
    Reminders events_;
    std::unique_ptr<Form7> datewardenForm_;
    std::unique_ptr<Form8> eventsForm_;  // from its opening to its closing
    WorkOwner showing_;
    QObject connections_;  // ends them all before what they call is gone
};

}  // namespace velmora
