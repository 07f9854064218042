#include "planner/AppointmentConversion.h"

#include "planner/StoredText.h"

namespace velmora {
namespace {

// Of no meaning: tags are stored with years of four digits.
constexpr std::chrono::year kPivotYear{2000};

}  // namespace

AppointmentRow rowOf(const Appointment& appointment) {
    AppointmentRow row;
    row[Column::TagVariant] = storedMoment(appointment.tag);
    if (appointment.day)
        row[Column::Date] = storedDay(*appointment.day);
    row[Column::BeginTime] = appointment.begin;
    row[Column::EndTime] = appointment.end;
    row[Column::Desc] = appointment.text;
    row[Column::StyleSet] = appointment.style;
    return row;
}

Appointment appointmentOf(const AppointmentRow& row) {
    return {.tag = readMoment(row.text(Column::TagVariant), kPivotYear).value_or(Moment{}),
            .day = readStoredDay(row.text(Column::Date)),
            .begin = row.text(Column::BeginTime),
            .end = row.text(Column::EndTime),
            .text = row.text(Column::Desc),
            .style = row.text(Column::StyleSet)};
}

}  // namespace velmora
