#include "planner/ScheduleTimes.h"

#include <tuple>

namespace velmora {

ScheduleTimes::ScheduleTimes(ScheduleTexts& texts, Messages& messages, const Clock& clock)
    : texts_(texts), messages_(messages), clock_(clock) {}

void ScheduleTimes::Open() {
    const Moment now = clock_.now();
    const std::chrono::hh_mm_ss time(timeOfDay(now));
    const int hour = static_cast<int>(time.hours().count());
    const int minute = static_cast<int>(time.minutes().count());
    setValue(Part::BeginHour, hour);
    setValue(Part::BeginMinute, minute);
    setValue(Part::EndHour, (hour + 1) % 24);
    setValue(Part::EndMinute, minute);
    texts_ = {};
}

std::string ScheduleTimes::label(Part part) const {
    const std::string digits = std::to_string(value(part));
    return digits.size() == 1 ? "0" + digits : digits;
}

bool ScheduleTimes::Apply() {
    if (std::tuple(value(Part::EndHour), value(Part::EndMinute)) <=
        std::tuple(value(Part::BeginHour), value(Part::BeginMinute))) {
        messages_.warn(kApplicationTitle,
                       "The event must end after the time that it starts. Please adjust the "
                       "ending time. If your event extends into the next day (after midnight), "
                       "please schedule the event for the next day.");
        return false;
    }
    texts_.ScheduleBegin = label(Part::BeginHour) + ":" + label(Part::BeginMinute);
    texts_.ScheduleEnd = label(Part::EndHour) + ":" + label(Part::EndMinute);
    return true;
}

}  // namespace velmora
