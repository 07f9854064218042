#pragma once

#include "planner/Appointment.h"
#include "planner/AppointmentRow.h"

// An appointment and the row of the table that holds it. Texts of both are code-page text.
namespace velmora {

// The row of an appointment, without a number. One without a day has Null there.
[[nodiscard]] AppointmentRow rowOf(const Appointment& appointment);

// What a row says. Null is the empty text; a day that is not as we store it is none; a tag that can
// not be read is that of an appointment without one, Moment{}.
[[nodiscard]] Appointment appointmentOf(const AppointmentRow& row);

}  // namespace velmora
