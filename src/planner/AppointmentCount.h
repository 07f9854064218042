#pragma once

#include <chrono>

#include "planner/AppointmentStore.h"

namespace velmora {

// Counts the appointments of a day, for those who can not see them, and tells whether there is any.
// It looks into the database of another store and leaves that store's cursor alone.
class AppointmentCount {
  public:
    // `store` gives the database of the moment. `own` is used for nothing else; it should wait for
    // no lock.
    AppointmentCount(const AppointmentStore& store, AppointmentStore& own)
        : store_(store), own_(own) {}

    // 0 also where the database can not be read.
    [[nodiscard]] int of(std::chrono::year_month_day day);

    // True when no day has an appointment; false where that can not be read.
    [[nodiscard]] bool isEmpty();

  private:
    const AppointmentStore& store_;
    AppointmentStore& own_;
};

}  // namespace velmora
