#pragma once

#include <memory>

#include "app/World.h"
#include "planner/WeekLoad.h"
#include "planner/forms/WeekataGlance.h"
#include "planner/sqlite/SqliteAppointments.h"

namespace velmora {

// The form of the week, made when it is first asked for.
class WeekWindow {
  public:
    // All must outlive this object; the form belongs to `window` on the screen.
    WeekWindow(World& world, const MonthControl& month, QWidget& window);

    void present();

    // Nothing when the form is not open.
    void close();

  private:
    World& world_;
    QWidget& window_;
    SqliteAppointmentSource source_;
    WeekLoad load_;
    std::unique_ptr<WeekataGlance> form_;
};

}  // namespace velmora
